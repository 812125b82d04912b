#include "Support.h"
#include "platform/qt/QtConversion.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtQueuePump.h"
#include "platform/x11/VirtualKeys.h"
#include "platform/x11/X11KeyOutput.h"

#include <QPlainTextEdit>
#include <gtest/gtest.h>

#include <csignal>

namespace ondrilo {
namespace {

/// Types into a text box of ours, on the real server.
class Typing : public testing::Test {
  protected:
    Typing() {
        SetLayout("us");
        box.resize(600, 300);
        box.show();
    }
    void SetUp() override {
        ASSERT_TRUE(Eventually([this] { return GiveFocus(desktop, box.winId()) && box.hasFocus(); }));
    }
    ~Typing() override { EXPECT_EQ(server.Down(), std::vector<int>{}) << "a key stayed down"; }

    [[nodiscard]] Text Written() const { return FromQString(box.toPlainText()); }
    void ExpectWritten(TextView text) {
        EXPECT_TRUE(Eventually([&] { return Written() == text; })) << ToUtf8(Written());
        box.clear();
    }

    QtDesktop desktop;
    ServerKeyboard server;
    QPlainTextEdit box;
};

TEST_F(Typing, EachKeyOfABurstIsHandledBeforeTheNextOneArrives) {
    X11KeyOutput keys;
    MessageQueue queue;
    std::vector<Text> seen;
    const QtQueuePump pump(queue, [&](const MessageEvent&) { seen.push_back(Written()); });
    QObject::connect(&box, &QPlainTextEdit::textChanged, [&] { queue.Post(Message::UM_CHAR); });
    Type(keys, "um a");
    ASSERT_TRUE(Eventually([&] { return seen.size() == 4; }));
    EXPECT_EQ(seen, (std::vector<Text>{"u", "um", "um ", "um a"}));
    box.disconnect();
}

TEST_F(Typing, NothingIsLostOrReorderedAtFullSpeedOnAnyLayoutEvenIfItChangesWhileRunning) {
    X11KeyOutput keys;
    for (const char* layout : {"pt", "us", "fr", "us,pt"}) {
        SCOPED_TRACE(layout);
        SetLayout(layout);
        Text all;
        for (int i = 0; i < 10; ++i)
            all += Text(kSentence) + "\n";
        Type(keys, all);
        ExpectWritten(all);
    }
}

TEST_F(Typing, EveryCharacterOfTheCodePageCanBeWritten) {
    SetLayout("pt");
    X11KeyOutput keys;
    Text all;
    for (int byte = ' '; byte < 256; ++byte)
        if (const char32_t point = CodePointOf(static_cast<char>(byte)); point < 0x7F || point > 0xAD)
            all += static_cast<char>(byte);
    // A box of ours sees the keyboard's map as it is when the handler returns; other programs keep up
    // meanwhile.
    for (const char c : all) {
        keys.TypeCharacter(c);
        PassTime(1);
    }
    ExpectWritten(all);
}

TEST_F(Typing, OurLatchedShiftAndCapsLockActOnLettersWithAndWithoutAccents) {
    SetLayout("pt");
    X11KeyOutput keys;
    keys.KeyDown(vk::Shift);
    Type(keys, "aéç"_w);
    keys.KeyUp(vk::Shift);
    Type(keys, "aéç"_w);
    EXPECT_FALSE(keys.IsCapsLockOn());
    Tap(keys, {vk::CapsLock});
    EXPECT_TRUE(keys.IsCapsLockOn());
    Type(keys, "aéçB1"_w);
    Tap(keys, {vk::CapsLock});
    EXPECT_FALSE(keys.IsCapsLockOn());
    ExpectWritten("AÉÇaéçAÉÇb1"_w);
}

TEST_F(Typing, AShiftThatThePersonHoldsIsLiftedAndPutBack) {
    X11KeyOutput keys;
    server.PersonPresses(ServerKeyboard::kShift);
    Type(keys, "aé"_w);
    EXPECT_EQ(server.Down(), std::vector<int>{ServerKeyboard::kShift});
    server.PersonTaps(ServerKeyboard::kB);
    server.PersonReleases(ServerKeyboard::kShift);
    EXPECT_EQ(server.Down(), std::vector<int>{});
    // The device through which we type still believes the put-back Shift to be down.
    keys.KeyDown(vk::Shift);
    EXPECT_FALSE(keys.IsCapsLockOn()); // an answer: the server has taken the Shift
    server.PersonTaps(ServerKeyboard::kB);
    Type(keys, "c");
    keys.KeyUp(vk::Shift);
    ExpectWritten("aéBBC"_w);
}

TEST_F(Typing, AKeyThatThePersonHoldsStaysTheirsAndIsNotLostWhereWeNeedItToo) {
    X11KeyOutput keys;
    server.PersonPresses(ServerKeyboard::kA);
    Type(keys, "ab");
    server.PersonReleases(ServerKeyboard::kA);
    server.PersonPresses(ServerKeyboard::kShift);
    keys.KeyDown(vk::Shift);
    Type(keys, "c");
    keys.KeyUp(vk::Shift);
    EXPECT_EQ(server.Down(), std::vector<int>{ServerKeyboard::kShift});
    server.PersonTaps(ServerKeyboard::kB);
    server.PersonReleases(ServerKeyboard::kShift);
    ExpectWritten("aabCB");
}

TEST_F(Typing, ThePersonsKeysAndOursMayAlternate) {
    X11KeyOutput keys;
    Text all;
    for (int i = 0; i < 20; ++i) {
        server.PersonTaps(ServerKeyboard::kA);
        Type(keys, "ção"_w);
        EXPECT_FALSE(keys.IsCapsLockOn()); // an answer: the server has taken what we typed
        all += "ação"_w;
    }
    ExpectWritten(all);
}

TEST_F(Typing, TheNumericPadWritesDigitsWhateverNumLockSays) {
    X11KeyOutput keys;
    Tap(keys, {vk::Num0 + 5});
    ExpectWritten("5");
    Tap(keys, {vk::NumLock, vk::Num0 + 5, vk::Num0 + 7, vk::NumLock});
    ExpectWritten("57");
}

TEST_F(Typing, KeysAreToldWithTheModifiersThatTheLayoutAsksFor) {
    using Row = std::tuple<TextView, TextView, std::optional<LayoutKey>>;
    X11KeyOutput keys(X11KeyOutput::Lending::WhenAsked);
    for (const auto& [layout, c, told] : {Row{"us", "a", {{'A', kNoShift}}},
                                          {"us", "~", {{192, kShift}}},
                                          {"us", "´"_w, std::nullopt},
                                          {"us", "Ç"_w, {{kUnknownKey, kShift}}}, // lent
                                          {"pt", "A", {{'A', kShift}}},
                                          {"pt", "@", {{'2', kControl | kAlt}}},
                                          {"pt", "~", {{191, kNoShift}}},
                                          {"pt", "`", {{186, kShift}}},
                                          {"pt", "Ç"_w, {{192, kShift}}},
                                          {"pt", "é"_w, std::nullopt}}) { // only behind a dead key
        SetLayout(Text(layout));
        const auto key = keys.KeyOf(c.front());
        EXPECT_EQ(key.value_or(LayoutKey()).code, told.value_or(LayoutKey()).code) << ToUtf8(c);
        EXPECT_EQ(key.value_or(LayoutKey()).shift, told.value_or(LayoutKey()).shift) << ToUtf8(c);
    }
    EXPECT_EQ(keys.KeyName(191), "~");
    EXPECT_EQ(keys.KeyName(vk::Num0 + 5), "Num 5");
}

TEST_F(Typing, AStartThatLendsLaterStillWritesAccentsAndNothingOfTheMapChangesForGood) {
    const auto before = server.Symbols();
    {
        X11KeyOutput keys(X11KeyOutput::Lending::WhenAsked);
        EXPECT_EQ(server.Symbols(), before);
        Type(keys, "Olá, avó"_w);
        ExpectWritten("Olá, avó"_w);
        EXPECT_TRUE(keys.LendNext());
        while (keys.LendNext()) {
        }
        Type(keys, " não é"_w);
        ExpectWritten(" não é"_w);
        EXPECT_NE(server.Symbols(), before);
    }
    EXPECT_EQ(server.Symbols(), before);
}

TEST_F(Typing, AKilledRunLeavesNothingPressedAndItsSpareKeysAreFoundAgain) {
    const auto before = server.Symbols();
    for (const int signal : {SIGTERM, SIGSEGV, SIGKILL}) {
        SCOPED_TRACE(signal);
        ChildProcess run(Ourselves({kHoldShift}));
        ASSERT_TRUE(Eventually([this] { return !server.Down().empty(); }));
        run.Kill(signal);
        EXPECT_TRUE(Eventually([this] { return server.Down().empty(); }));
        PassTime(300); // its guardian looks twice more, and would release the Shift of the next
    }
    EXPECT_NE(server.Symbols(), before);
    { const X11KeyOutput next; }
    EXPECT_EQ(server.Symbols(), before);
}

} // namespace
} // namespace ondrilo
