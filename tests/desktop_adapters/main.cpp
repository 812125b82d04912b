#include "Support.h"
#include "platform/x11/X11KeyOutput.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include <iostream>
#include <string_view>
#include <unistd.h>

namespace ondrilo {

bool Eventually(const std::function<bool()>& condition) {
    constexpr int kDeadline = 10'000;
    QElapsedTimer time;
    for (time.start(); time.elapsed() < kDeadline;) {
        if (condition())
            return true;
        PassTime(5);
    }
    return condition();
}

void PassTime(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

namespace {

[[noreturn]] void HoldShift() {
    X11KeyOutput keys;
    keys.KeyDown(vk::Shift);
    while (true)
        pause();
}

} // namespace
} // namespace ondrilo

int main(int argc, char** argv) {
    const std::string_view role = argc > 1 ? argv[1] : "";
    if (role == ondrilo::kHoldShift)
        ondrilo::HoldShift();
    if (role == ondrilo::kTextBoxes)
        return ondrilo::ShowTextBoxes(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
