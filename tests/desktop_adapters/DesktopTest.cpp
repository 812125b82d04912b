#include "Support.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

/// A program of somebody else beside a window of ours.
class TheDesktop : public testing::Test {
  protected:
    TheDesktop() {
        ours.setWindowTitle(QString::fromUtf8("Olá – €"));
        ours.show();
        theirs = WaitForWindow(desktop, "Avó"_w);
        hasBoth = WaitForWindow(desktop, "Olá – €"_w) != 0 && GiveFocus(desktop, theirs);
    }
    QtDesktop desktop;
    QLineEdit ours;
    std::unique_ptr<ChildProcess> terminal = std::make_unique<ChildProcess>(
        std::vector<std::string>{"env", "LC_ALL=C.UTF-8", "xterm", "-T", "Avó", "-e", "cat"});
    WindowId theirs = 0;
    bool hasBoth = false;
};

TEST_F(TheDesktop, WindowsAreKnownByTitleAndProgram) {
    ASSERT_TRUE(hasBoth);
    const WindowId own = ours.winId();
    EXPECT_EQ(desktop.TitleOf(own, 3), "Olá"_w);
    EXPECT_TRUE(desktop.IsOurs(own));
    EXPECT_FALSE(desktop.IsOurs(theirs));
    EXPECT_TRUE(desktop.IsSameProgram(theirs, theirs));
    EXPECT_FALSE(desktop.IsSameProgram(theirs, own));
    terminal.reset();
    EXPECT_TRUE(Eventually([&] { return !desktop.IsSameProgram(theirs, theirs); }))
        << "a window that is gone";
    EXPECT_EQ(desktop.TitleOf(theirs), "");
}

TEST_F(TheDesktop, AFocusChangeIsToldOnceAndNeverAfterItsRegistration) {
    ASSERT_TRUE(hasBoth);
    PassTime(50); // the terminal's own arrival is told before the registration
    std::vector<WindowId> told;
    auto registration = desktop.OnFocusChange([&] { told.push_back(desktop.ForegroundWindow()); });
    desktop.Activate(ours.winId());
    EXPECT_TRUE(Eventually([&] { return told.size() == 1; }));
    desktop.Activate(theirs);
    EXPECT_TRUE(Eventually([&] { return told.size() == 2; }));
    EXPECT_EQ(told, (std::vector<WindowId>{ours.winId(), theirs}));
    registration.reset();
    desktop.Activate(ours.winId());
    EXPECT_TRUE(Eventually([&] { return desktop.ForegroundWindow() == ours.winId(); }));
    PassTime(50);
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(TheDesktop, AMessageBoxTakesTheFocusAndGivesItBackToTheProgramThatHadIt) {
    ASSERT_TRUE(hasBoth);
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
    desktop.MovePointer({321, 123});
    EXPECT_TRUE(Eventually([this] { return desktop.PointerPosition() == Point{321, 123}; }));
    EXPECT_EQ(desktop.ScreenArea({5, 5}), (Rectangle{0, 0, 1280, 900}));
    EXPECT_EQ(desktop.ScreenArea({-9000, 5}), desktop.ScreenArea({5, 5})) << "the primary one";
}

} // namespace
} // namespace ondrilo
