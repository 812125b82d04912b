#include <QApplication>
#include <QTemporaryFile>
#include <gtest/gtest.h>

namespace {

/// The usual screen and a second one, lower and at its right, on which everything is twice as large.
constexpr const char* kScreens = R"({"screens": [
    {"name": "first", "x": 0, "y": 0, "width": 800, "height": 800,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "second", "x": 800, "y": 100, "width": 1000, "height": 600,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

} // namespace

int main(int count, char** words) {
    QTemporaryFile screens;
    if (!screens.open() || screens.write(kScreens) < 0 || !screens.flush())
        return EXIT_FAILURE;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    qputenv("QT_SCREEN_SCALE_FACTORS", "1;2");
    const QApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
