#include "app/ui/CMainFrame.h"
#include "app/ui/CTextWindow.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/Images.h"

#include <QMenuBar>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace ondrilo {
namespace {

using testing::ElementsAre;

class Listener : public FrameWindowListener {
  public:
    void OnActivateView() override { told.push_back("activate"); }
    void OnDraw() override { told.push_back("draw"); }
    void OnKeyDown(int code, std::int32_t) override { told.push_back("down " + std::to_string(code)); }
    void OnKeyUp(int code, std::int32_t) override { told.push_back("up " + std::to_string(code)); }
    void OnMenuCommand(int command) override { told.push_back("menu " + std::to_string(command)); }
    void OnDestroy() override { told.push_back("destroy"); }
    std::vector<Text> Take() { return std::exchange(told, {}); }

  private:
    std::vector<Text> told;
};

class MainFrameTest : public testing::Test {
  protected:
    MainFrameTest() { frame.SetListener(&listener); }
    void ShowIt() {
        frame.Show(WindowState::Normal);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&frame));
        Settle();
    }
    /// The events of the view so far, handled.
    int Settle() {
        QApplication::processEvents();
        int layouts = 0;
        queue.Drain(
            [&](const MessageEvent& event) { layouts += event.message == Message::UM_LAYOUT ? 1 : 0; });
        return layouts;
    }
    QImage ViewImage() { return frame.View().grab().toImage(); }

    MessageQueue queue;
    FakeKeyOutput layout;
    Listener listener;
    CMainFrame frame{queue, layout};
};

TEST_F(MainFrameTest, TheMenuOffersEveryEntryOnceAndTellsTheSessionItsNumber) {
    std::vector<int> numbers;
    for (const auto* action : frame.findChildren<QAction*>())
        if (action->data().isValid())
            numbers.push_back(action->data().toInt());
    EXPECT_EQ(numbers.size(), 50U);
    EXPECT_EQ(std::set<int>(numbers.begin(), numbers.end()).size(), numbers.size());
    frame.findChild<QAction*>("command_32951")->trigger();
    QApplication::processEvents();
    EXPECT_THAT(listener.Take(), testing::Contains("menu 32951"));

    for (const bool enabled : {false, true}) {
        frame.EnableMenu(enabled);
        for (const auto* top : frame.menuBar()->actions())
            EXPECT_EQ(top->isEnabled(), enabled);
    }
}

TEST_F(MainFrameTest, TheViewGetsTheSizeAskedForWithAndWithoutMenuAndStatusLine) {
    ShowIt();
    for (const bool visible : {true, false, true}) {
        frame.ShowMenu(visible);
        frame.ShowStatusBar(visible);
        frame.FitClient({500, 300});
        Settle();
        EXPECT_EQ(frame.ClientSize(), (Size{500, 300})) << visible;
    }
    EXPECT_EQ(Settle(), 0) << "what was asked for needs no other layout";
    frame.resize(700, 500);
    EXPECT_EQ(Settle(), 1);
}

TEST_F(MainFrameTest, ActivationAndExposureAreToldFromTheEventLoopAndAKeysOwnPaintIsNone) {
    frame.Show(WindowState::Normal);
    EXPECT_TRUE(listener.Take().empty()) << "nothing comes from inside the call";
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    QApplication::processEvents();
    const auto told = listener.Take();
    EXPECT_THAT(told, testing::Contains("activate"));
    EXPECT_EQ(told.back(), "draw");

    QWidget key(&frame.View());
    key.setAttribute(Qt::WA_OpaquePaintEvent);
    key.resize(50, 50);
    key.show();
    QApplication::processEvents();
    key.update();
    QApplication::processEvents();
    EXPECT_TRUE(listener.Take().empty());

    frame.Redraw();
    EXPECT_TRUE(listener.Take().empty());
    QApplication::processEvents();
    EXPECT_THAT(listener.Take(), ElementsAre("draw"));
}

TEST_F(MainFrameTest, PaintsPictureFillOrGreyBehindTheKeyboard) {
    ShowIt();
    frame.FitClient({200, 100});
    EXPECT_EQ(ViewImage().pixel(5, 5), qRgb(0xBE, 0xBE, 0xBE));

    WindowBackground background{{}, 0, 0x0000FF, 0xFF0000, 0};
    frame.SetBackground(background);
    EXPECT_EQ(ViewImage().pixel(5, 5), qRgb(255, 0, 0));
    background.fill = 1;
    background.picture = "falta.bmp"; // a picture that does not load leaves the fill
    frame.SetBackground(background);
    EXPECT_GT(qRed(ViewImage().pixel(2, 50)), 240);
    EXPECT_GT(qBlue(ViewImage().pixel(197, 50)), 240);

    const TemporaryFolder folder;
    background.picture = folder.Path() / "fundo.bmp";
    SavePicture(background.picture, {10, 10}, Qt::green);
    frame.SetBackground(background);
    EXPECT_EQ(CountPixels(ViewImage(), qRgb(0, 255, 0)), 200 * 100);
}

TEST_F(MainFrameTest, KeysAndTheWishToCloseReachTheSessionOnceEvenIfAskedAgainMeanwhile) {
    ShowIt();
    listener.Take();
    QTest::keyClick(&frame, Qt::Key_A);
    EXPECT_THAT(listener.Take(), ElementsAre("down 65", "up 65"));
    frame.Close();
    EXPECT_TRUE(listener.Take().empty()) << "the wish is only posted";
    QApplication::processEvents();
    frame.close();
    EXPECT_THAT(listener.Take(), ElementsAre("destroy"));
}

TEST(TextWindows, HaveTheSizeOfTheirTextAndStandOnTheirLowerLeftCorner) {
    CTextWindow window({{"DejaVu Sans", 12}, 0xFF0000, 0xFFFFFF, 10}, nullptr);
    window.SetText("");
    EXPECT_EQ(window.GetSize().width, 20) << "twice the margin";
    window.SetText("casa");
    window.MoveTo({100, 200});
    EXPECT_EQ(window.geometry().bottomLeft(), QPoint(100, 199));
    EXPECT_FALSE(window.IsVisible());
    window.Show();
    const auto image = window.grab().toImage();
    EXPECT_EQ(InkOf(image, qRgb(0, 0, 255)).left() / 2, 5) << "the text starts at the margin";
    EXPECT_FALSE(window.isActiveWindow());
    window.Hide();
    EXPECT_FALSE(window.IsVisible());
}

} // namespace
} // namespace ondrilo
