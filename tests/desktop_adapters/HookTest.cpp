#include "Support.h"
#include "hook/HookTessivor.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtTargetHook.h"
#include "platform/x11/X11KeyOutput.h"
#include "tests/support/TemporaryFolder.h"

#include <QPushButton>
#include <gtest/gtest.h>

#include <dlfcn.h>

namespace ondrilo {
namespace {

constexpr int kAltGr = 108, kAcute = 35, kE = 26, kTwo = 11, kBackspace = 22, kX = 53, kF11 = 95; // keycodes
constexpr int kVirtualF11 = vk::F1 + 10;
constexpr auto kF11InTerminal = "\x1b[23~";

/// A terminal is watched; what reaches it stands in a file, byte for byte.
class AHook : public testing::Test {
  protected:
    AHook() {
        SetLayout("pt");
        target = WaitForWindow(desktop, "watched");
        keys.OnAnnounce(QtTargetHook::Expect);
    }
    void SetUp() override {
        ASSERT_TRUE(Eventually([this] { return std::filesystem::exists(file); }));
        ASSERT_TRUE(GiveFocus(desktop, target));
        ASSERT_TRUE(hook.InitializeHook(target, [this](const MessageEvent& event) { Note(event); }));
    }
    ~AHook() override { EXPECT_EQ(server.Down(), std::vector<int>{}) << "a key stayed down"; }

    void Note(const MessageEvent& event) {
        switch (event.message) {
        case Message::UM_KEY_DOWN:
            told += Tells(event.second, kKeyWasDown) ? " *" : " +";
            told += Tells(event.second, kKeyWithShift) ? "shift " : "";
            told += std::to_string(event.first);
            break;
        case Message::UM_KEY_UP:
            told += " -" + std::to_string(event.first);
            break;
        case Message::UM_CHAR:
            written += static_cast<char>(event.first);
            told += " " + (event.first < ' ' ? std::to_string(event.first) : Text{char(event.first)});
            break;
        case Message::UM_POINTER_MOVED:
            break;
        default:
            told += " button " + std::to_string(static_cast<unsigned>(event.message) & 0xF);
        }
    }
    void ExpectTold(TextView expected) {
        EXPECT_TRUE(Eventually([&] { return told == expected; })) << ToUtf8(told);
        told.clear();
    }
    void ExpectReached(const std::string& utf8) {
        EXPECT_TRUE(Eventually([&] { return folder.Read("received") == utf8; })) << folder.Read("received");
    }
    void PersonTapsWith(int modifier, int keycode) const {
        server.PersonPresses(modifier);
        server.PersonTaps(keycode);
        server.PersonReleases(modifier);
    }
    void ClickInside(WindowId window) { Click(desktop, Middle(desktop.ClientArea(window))); }

    const TemporaryFolder folder;
    const std::string file = (folder.Path() / "received").string();
    QtDesktop desktop;
    ServerKeyboard server;
    const ChildProcess terminal{{"env", "LC_ALL=C.UTF-8", "xterm", "-T", "watched", "-geometry", "60x10-0-0",
                                 "-e", "sh", "-c", "stty raw -echo; cat >\"$0\"", file}};
    QtTargetHook hook;
    X11KeyOutput keys;
    WindowId target = 0;
    Text told;
    Text written; ///< the characters told
};

TEST_F(AHook, TellsThePersonsKeysAndWhatTheProgramMakesOfThem) {
    server.PersonTaps(ServerKeyboard::kA);
    PersonTapsWith(ServerKeyboard::kShift, ServerKeyboard::kB);
    ExpectTold(" +65 a -65 +16 +shift 66 B -66 -16");
    server.PersonTaps(kAcute);
    server.PersonTaps(kE);
    PersonTapsWith(kAltGr, kTwo);
    server.PersonTaps(kBackspace);
    ExpectTold(" +186 -186 +69 é -69 +17 +18 +50 @ -50 -18 -17 +8 8 -8"_w);
    server.PersonPresses(kX);
    EXPECT_TRUE(Eventually([this] { return told.ends_with("*88 x *88 x"); })) << told;
    server.PersonReleases(kX);
    EXPECT_TRUE(Eventually([this] { return told.ends_with("x -88"); })) << told;
    EXPECT_TRUE(told.starts_with(" +88 x *88 x"));
    EXPECT_EQ(std::ranges::count(told, '-'), 1) << "a repeat is no release";
}

TEST_F(AHook, TellsOurLettersAsTheStrokesThatTheyCountForAndNothingOfModifiersThatWeLift) {
    Type(keys, "eé"_w);
    ExpectTold(" +69 e -69 +186 +69 é -69 -186"_w);
    keys.TypeCharacter('\n');
    ExpectTold(" +13 13 -13");
    server.PersonPresses(ServerKeyboard::kShift);
    keys.TypeCharacter("ã"_w.front());
    ExpectTold(" +16 +191 +65 ã -65 -191"_w);
    server.PersonTaps(ServerKeyboard::kA);
    server.PersonReleases(ServerKeyboard::kShift);
    ExpectTold(" +shift 65 A -65 -16");
    ExpectReached("eé\rãA");
}

TEST_F(AHook, TheTerminalReceivesAccentsOnEveryLayout) {
    std::string all;
    for (const char* layout : {"pt", "us"}) {
        SetLayout(layout);
        Type(keys, kSentence);
        all += ToUtf8(kSentence);
        ExpectReached(all);
    }
}

TEST_F(AHook, ASwallowedKeyIsToldAndNothingThatIsTypedWhileItIsHeldGetsLost) {
    hook.AddSpecialKey(kVirtualF11);
    PassTime(100);
    Text typed;
    for (int round = 0; round < 10; ++round) {
        server.PersonPresses(kF11);
        Type(keys, "Não há só"_w);
        server.PersonReleases(kF11);
        typed += "Não há só"_w;
    }
    ExpectReached(ToUtf8(typed)); // or the person's Shift may overtake the last letters
    PersonTapsWith(ServerKeyboard::kShift, kF11);
    Tap(keys, {kVirtualF11});
    EXPECT_TRUE(Eventually([&] { return told.ends_with("+16 +shift 122 -122 -16 +122 -122"); }))
        << ToUtf8(told);
    EXPECT_EQ(ToUtf8(written), ToUtf8(typed));
    hook.TerminateHook();
    told.clear();
    server.PersonTaps(kF11);
    ExpectReached(ToUtf8(typed) + kF11InTerminal);
    EXPECT_EQ(told, "");
}

TEST_F(AHook, AKilledWatcherLeavesNoKeySwallowed) {
    hook.TerminateHook();
    Dl_info library{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(&InitializeHook), &library), 0);
    ChildProcess watcher(
        {"python3", "-c",
         "import ctypes, sys, time\n"
         "hook = ctypes.CDLL(sys.argv[1])\n"
         "receiver = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_int, ctypes.c_int)\n"
         "told = receiver(lambda context, message, first, second: open(sys.argv[3], 'w').close())\n"
         "hook.InitializeHook(int(sys.argv[2]), told, None)\n"
         "hook.AddSpecialKey(122)\n"
         "hook.AddMouseButtons()\n"
         "time.sleep(100)\n",
         library.dli_fname, std::to_string(target), (folder.Path() / "told").string()});
    EXPECT_TRUE(Eventually([&] {
        server.PersonTaps(ServerKeyboard::kA);
        return std::filesystem::exists(folder.Path() / "told");
    }));
    PassTime(100);
    const auto before = folder.Read("received");
    server.PersonPresses(kF11);
    PassTime(100);
    EXPECT_EQ(folder.Read("received"), before);
    watcher.Kill();
    server.PersonReleases(kF11);
    server.PersonTaps(kF11);
    ExpectReached(before + kF11InTerminal);
}

TEST_F(AHook, WhatThePersonDoesInAnotherProgramIsNeitherToldNorSwallowed) {
    QPushButton button("outra");
    button.show();
    const auto other = button.winId();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    hook.AddMouseButtons();
    ASSERT_TRUE(GiveFocus(desktop, other));
    ClickInside(other);
    EXPECT_TRUE(Eventually([&] { return clicks == 1; }));
    server.PersonTaps(ServerKeyboard::kA);
    PassTime(100);
    EXPECT_EQ(told, "");
    ClickInside(target);
    ExpectTold(" button 1 button 2");
    EXPECT_EQ(desktop.ForegroundWindow(), other) << "the click reached the terminal";
    hook.DeleteMouseButtons();
    PassTime(50);
    ClickInside(target);
    EXPECT_TRUE(Eventually([&] { return desktop.ForegroundWindow() == target; }));
    ExpectTold(" button 1 button 2");
}

TEST_F(AHook, AReceiverThatWaitsInADialogStopsNoLaterEventAndTheEndOfTheWatchStopsAll) {
    int drained = 0;
    hook.OnHandled([&] { ++drained; });
    int received = 0;
    EXPECT_TRUE(hook.InitializeHook(target, [&](const MessageEvent&) {
        ++received;
        EXPECT_TRUE(received != 1 || Eventually([&] { return received == 6; }));
    }));
    server.PersonTaps(ServerKeyboard::kA);
    server.PersonTaps(ServerKeyboard::kB);
    EXPECT_TRUE(Eventually([&] { return drained == 6; })) << received;
    server.PersonTaps(ServerKeyboard::kA);
    hook.TerminateHook();
    PassTime(100);
    EXPECT_EQ(received, 6);
}

} // namespace
} // namespace ondrilo
