#include "Support.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <unistd.h>

namespace ondrilo {
namespace {

/// A program of somebody else beside a window of ours.
class TheDesktop : public testing::Test {
  protected:
    TheDesktop() {
        ours.setWindowTitle(QString::fromUtf8("Olá – €"));
        ours.show();
        theirs = WaitForWindow(desktop, "Avó"_w);
    }
    void SetUp() override {
        ASSERT_TRUE(WaitForWindow(desktop, "Olá – €"_w) != 0 && GiveFocus(desktop, theirs));
    }

    QtDesktop desktop;
    QLineEdit ours;
    std::unique_ptr<ChildProcess> terminal = std::make_unique<ChildProcess>(
        std::vector<std::string>{"env", "LC_ALL=C.UTF-8", "xterm", "-T", "Avó", "-e", "cat"});
    WindowId theirs = 0;
};

TEST_F(TheDesktop, WindowsAreKnownByTitleAndProgram) {
    const WindowId own = ours.winId();
    EXPECT_EQ(desktop.TitleOf(own, 3), "Olá"_w);
    EXPECT_TRUE(desktop.IsOurs(own));
    EXPECT_FALSE(desktop.IsOurs(theirs));
    EXPECT_EQ(desktop.ProcessOf(own), static_cast<std::uint32_t>(getpid()));
    EXPECT_NE(desktop.ProcessOf(theirs), desktop.ProcessOf(own));
    EXPECT_NE(desktop.ProcessOf(theirs), 0U);
    terminal.reset();
    EXPECT_TRUE(Eventually([&] { return desktop.ProcessOf(theirs) == 0; })) << "a window that is gone";
    EXPECT_EQ(desktop.TitleOf(theirs), "");
}

TEST_F(TheDesktop, AFocusChangeIsToldAlsoToNobodyAndNeverAfterItsRegistration) {
    PassTime(50); // the terminal's own arrival is told before the registration
    std::vector<WindowId> told;
    const auto isTold = [&](WindowId window) {
        return Eventually([&] { return !told.empty() && told.back() == window; });
    };
    auto registration = desktop.OnFocusChange([&] { told.push_back(desktop.ForegroundWindow()); });
    desktop.Activate(ours.winId());
    EXPECT_TRUE(isTold(ours.winId()));
    desktop.Activate(theirs);
    EXPECT_TRUE(isTold(theirs));
    const auto screen = desktop.ScreenArea({});
    Click(desktop, {screen.width - 5, screen.height - 5});
    EXPECT_TRUE(isTold(0)) << "the bare desktop takes it from everybody";
    PassTime(50);
    registration.reset();
    const auto count = told.size();
    desktop.Activate(ours.winId());
    EXPECT_TRUE(Eventually([&] { return desktop.ForegroundWindow() == ours.winId(); }));
    PassTime(50);
    EXPECT_EQ(told.size(), count);
}

TEST_F(TheDesktop, AMessageBoxTakesTheFocusAndGivesItBackToTheProgramThatHadIt) {
    QtMessageBoxes boxes(desktop);
    bool hadFocus = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        hadFocus = Eventually([&] { return desktop.ForegroundWindow() == box->winId(); });
        box->findChild<QPushButton*>("noButton")->click();
    });
    EXPECT_EQ(boxes.AskYesNo("Pretende guardar as alterações?"_w), Answer::No);
    EXPECT_TRUE(hadFocus);
    EXPECT_TRUE(Eventually([&] { return desktop.ForegroundWindow() == theirs; }))
        << ToUtf8(desktop.TitleOf(desktop.ForegroundWindow()));
}

TEST_F(TheDesktop, ThePointerMovesAndStaysOnAScreen) {
    const int factor = qRound(ours.devicePixelRatio());
    desktop.MovePointer({321, 123});
    EXPECT_TRUE(Eventually([this] { return desktop.PointerPosition() == Point{321, 123}; }));
    EXPECT_EQ(desktop.ScreenArea({5, 5}), (Rectangle{0, 0, 1280 / factor, 900 / factor}));
    EXPECT_EQ(desktop.ScreenArea({-9000, 5}), desktop.ScreenArea({5, 5})) << "the primary one";
}

TEST_F(TheDesktop, PointerAndWindowsOfOthersArePlacedInTheSamePixels) {
    ASSERT_TRUE(GiveFocus(desktop, ours.winId()));
    const auto area = desktop.ClientArea(theirs);
    ours.setGeometry(area.x, area.y, 60, 30);
    const auto corner = [&] {
        return Point{ours.geometry().right(), ours.geometry().bottom()};
    };
    EXPECT_TRUE(Eventually([&] { return desktop.IsUnder(ours.winId(), corner()); }));
    EXPECT_FALSE(desktop.IsUnder(theirs, corner())) << "ours is over it";
    EXPECT_TRUE(desktop.IsUnder(theirs, Middle(area)));
    Click(desktop, Middle(area));
    EXPECT_TRUE(Eventually([&] { return desktop.ForegroundWindow() == theirs; }));
}

} // namespace
} // namespace ondrilo
