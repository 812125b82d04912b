#include "keyboards/CScanning.h"
#include "keyboards/KeyFlash.h"
#include "tests/support/FakeClock.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <limits>

namespace ondrilo {
namespace {

constexpr auto kInverse = ScanningMethod::Inverso;
constexpr auto kStepwise = ScanningMethod::PassoAPasso;

/// A level that starts, ">" for a step, or what was selected with the digits of line, group and key.
Text Word(const MessageEvent& event) {
    const char* const words[] = {">", "k", "Lines", "Groups", "Keys", "l", "g"};
    const Text word = words[static_cast<int>(event.message) - static_cast<int>(Message::UM_SCAN_ADVANCE)];
    const auto key = COnScreenKeyIdentifier::FromPacked(event.first);
    const bool selected = word == "k" || word == "l" || word == "g";
    EXPECT_TRUE(selected || event.first == 0) << word;
    return selected ? word + std::to_string(key.line * 100 + key.group * 10 + key.key) : word;
}

class Scanning : public testing::Test {
  protected:
    /// Lines are parted by '|', groups by a blank, and each letter is a key; capitals are inactive. Every
    /// line begins with a group, which may be empty.
    void Open(TextView layout, ScanningMethod method = ScanningMethod::Regular) {
        Text file = "LINHA line\nGRUPO group\n";
        for (const char c : layout) {
            if (c == '|')
                file += "LINHA line\nGRUPO group\n";
            else if (c == ' ')
                file += "GRUPO group\n";
            else
                file += Text("TECLA TECLA_NORMAL x ") + c + " x " + (c >= 'a' ? "1\n" : "0\n");
        }
        settings.scanning.method = method;
        keyboard.Open(folder.Write("k.tec", file), settings);
        lit.clear();
    }
    /// Plays '1' and '2' (a press), '!' (switch 1 is let go) and '.' (a tick); gives the ticks with what was
    /// posted, and in brackets the keys that are lit from then on.
    Text Play(TextView script) {
        Text seen;
        for (const char c : script) {
            if (c == '!')
                scanning.SwitchUp(1);
            else if (c != '.')
                scanning.SwitchDown(c - '0');
            else
                seen += Tick();
        }
        return seen;
    }
    Text PlayOn(TextView layout, TextView script) {
        Open(layout);
        return Play(script);
    }
    Text CueAfter(TextView layout, TextView script) {
        PlayOn(layout, script);
        return scanning.CueText();
    }

    TemporaryFolder folder;
    KeyboardSettings settings;
    int& speed = settings.scanning.speed = 200;
    int& latency = settings.scanning.switchLatency = 100;
    int& maxCycles = settings.scanning.maxCycles = 2;
    COnScreenKeyboard keyboard;
    MessageQueue queue;
    CScanning scanning{keyboard, queue};

  private:
    Text Tick() {
        scanning.Tick();
        Text seen = ".";
        queue.Drain([&seen](const MessageEvent& event) { seen += Word(event); });
        Text nowLit;
        for (const auto& key : keyboard.AllKeys())
            if (keyboard.Key(key).highlighted)
                nowLit += keyboard.Key(key).data.description;
        if (nowLit != lit)
            seen += "[" + nowLit + "]";
        lit = nowLit;
        return seen;
    }

    Text lit;
};

TEST_F(Scanning, RegularMovesByItselfAndEachPressSelectsWhatIsLit) {
    Open("ab c|de|f g");
    EXPECT_EQ(Play("1......."), "..Lines[abc]..>[de]...>[fg]");
    EXPECT_EQ(Play("1.."), "..l200Groups[f]") << "a release is not needed";
    EXPECT_EQ(Play("!...2..."), "..>[g]...>[f].") << "releases and the other switch do nothing";
    EXPECT_EQ(Play("1.."), "..g200k200[]");
    EXPECT_EQ(Play("......"), "......");
    EXPECT_EQ(scanning.Now().switch1Count, 3);
    EXPECT_EQ(scanning.Now().switch2Count, 1);
}

TEST_F(Scanning, StepwiseMovesByOneSwitchAndSelectsByTheOther) {
    Open("ab|cd", kStepwise);
    EXPECT_EQ(Play("2.."), "..") << "nothing to select yet";
    EXPECT_EQ(Play("1......."), "..Lines[ab]..>[cd]...>[ab]") << "goes on while the switch is held";
    EXPECT_EQ(Play("!......."), ".......");
    EXPECT_EQ(Play("1..!....."), "..>[cd].....");
    EXPECT_EQ(Play("2..1..!.."), "..l100g100Keys[c]..>[d]..");
    EXPECT_EQ(Play("2....."), "..k101[]...");
}

TEST_F(Scanning, InverseMovesWhileTheSwitchIsHeldAndSelectsOnLettingGo) {
    Open("ab|cd", kInverse);
    EXPECT_EQ(Play("1....!....."), "..Lines[ab]..>[cd]..l100g100Keys[c]...");
    EXPECT_EQ(Play("1...."), "....>[d]") << "the next press moves on from where it stands";
    EXPECT_EQ(Play("!.1..!.."), ".....k101[]") << "a press in time takes the release back";
    EXPECT_EQ(Play("1.!......"), ".......") << "too short to start anything";

    maxCycles = 1;
    keyboard.ApplySettings(settings);
    EXPECT_EQ(Play("1.......!.."), "..Lines[ab]..>[cd]...[]..") << "nothing is left to select";
}

TEST_F(Scanning, WithoutAMethodPressesAreOnlyCounted) {
    Open("ab|cd", ScanningMethod::Nenhum);
    EXPECT_EQ(Play("1..!..2..1.!.."), ".........");
    EXPECT_EQ(scanning.Now().switch1Count, 1) << "the last one was too short";
    EXPECT_EQ(scanning.Now().switch2Count, 1);
}

TEST_F(Scanning, TheLatencyBeginsAnewWithEachPress) {
    latency = 200;
    EXPECT_EQ(PlayOn("ab|cd", "1..1..1..."), ".......Lines[ab]");
    latency = speed = 0;
    EXPECT_EQ(PlayOn("ab|cd", "1..."), ".Lines>[cd].>[ab].>[cd]") << "without times every tick counts";
}

TEST_F(Scanning, TimesThatAreNoMultipleOfATickNeverCome) {
    for (const int time : {150, -100, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        latency = time;
        EXPECT_EQ(PlayOn("ab|cd", "1....."), ".....") << time;
        latency = 0;
        speed = time;
        EXPECT_EQ(PlayOn("ab|cd", "1....."), ".Lines[ab]....") << time;
    }
}

TEST_F(Scanning, WhatIsAloneIsChosenAtOnceAndWhatIsEmptyIsPassedOver) {
    speed = 0;
    EXPECT_EQ(PlayOn("  ||", "1...."), "....") << "no keys";
    EXPECT_EQ(PlayOn("a", "1...."), "..l0g0k0..");
    EXPECT_EQ(PlayOn("A", "1...."), "..l0g0..") << "an inactive key";
    EXPECT_EQ(PlayOn("|  aB|", "1...1.."), "..l100g120Keys>[B].>[a].>[B].[]") << "an inactive key";
    EXPECT_EQ(PlayOn(" ab||", "1...1.."), "..l0g10Keys>[b].>[a].>[b].k11[]");
    EXPECT_EQ(PlayOn("| ab  c|", "1...1.."), "..l100Groups>[c].>[ab].>[c].g130k130[]");
    EXPECT_EQ(PlayOn("a||b|| ", "1..."), "..Lines>[b].>[a]");
}

TEST_F(Scanning, ComingBackToTheFirstClosesACycleAndTheLastCycleEndsScanning) {
    speed = 0;
    for (const int cycles : {-1, 0, 1}) {
        maxCycles = cycles;
        EXPECT_EQ(PlayOn("a|b|c", "1......."), "..Lines>[b].>[c].[]...") << cycles;
    }
    maxCycles = 2;
    speed = 200;
    latency = 0;
    Open("ab cd|e", kStepwise);
    EXPECT_EQ(Play("1.!.1.!.1.!."), ".Lines[abcd]..>[e]..>[abcd].");
    EXPECT_EQ(Play("2.1.1.!.2."), ".l0Groups[ab].>[cd].>[ab]..g0Keys[a]") << "each level counts anew";
    EXPECT_EQ(Play("1.1.1.1.!."), ".>[b].>[a].>[b].[].") << "no falling back to the groups";
    EXPECT_EQ(Play("1."), ".Lines[abcd]");
}

TEST_F(Scanning, TheCueNamesWhatIsLit) {
    latency = 0;
    EXPECT_EQ(CueAfter("ab c|d", "."), "");
    EXPECT_EQ(CueAfter("ab c|d", "1."), "line");
    EXPECT_EQ(CueAfter(" ab |c", "1."), "group") << "the only one with keys";
    EXPECT_EQ(CueAfter(" a |c", "1."), "a");
    EXPECT_EQ(CueAfter("a bc|d", "1."), "") << "a first group of one key keeps the line silent";
    EXPECT_EQ(CueAfter("ab c", "1."), "group");
    EXPECT_EQ(CueAfter("a bc", "1."), "a");
    EXPECT_EQ(CueAfter("ab", "1..."), "b");
}

TEST_F(Scanning, AnotherKeyboardStartsDarkAndKeepsTheCounts) {
    PlayOn("ab|cd", "1..1");
    EXPECT_EQ(PlayOn("a|b|c", "......"), "......") << "a pending press is dropped too";
    EXPECT_EQ(scanning.Now().switch1Count, 1);
    Play("1..");
    keyboard.Close();
    EXPECT_EQ(Play("1....."), ".[]....");
    PlayOn("a|b", "1..");
    scanning.Reset();
    EXPECT_EQ(Play("..."), ".[]..") << "lights are put out";
    EXPECT_EQ(scanning.Now().switch1Count, 0);
}

TEST_F(Scanning, StandsStillWhileTheKeyboardIsEdited) {
    PlayOn("ab|cd", "1..");
    keyboard.SetEditing(true);
    EXPECT_EQ(Play("1...."), "....");
    keyboard.SetEditing(false);
    EXPECT_EQ(Play(".."), "..l0g0Keys[a]");
}

class Flashing : public Scanning {
  protected:
    Flashing() { Open("ab"); }
    [[nodiscard]] bool Flashed(int key) const { return keyboard.Key({0, 0, key}).flashed; }
    void PassHalf() { timers.Fire(Milliseconds{50}); }

    FakeTimers timers;
    KeyFlash flash{keyboard, timers};
};

TEST_F(Flashing, LightsTwiceAndLeavesWhatScanningLit) {
    keyboard.SetHighlighted({0, 0, 0}, true);
    flash.Flash({{0, 0, 0}, {0, 0, 1}});
    for (const bool lit : {true, false, true, false, false}) {
        EXPECT_TRUE(Flashed(0) == lit && Flashed(1) == lit);
        PassHalf();
    }
    EXPECT_TRUE(keyboard.Key({0, 0, 0}).highlighted);
}

TEST_F(Flashing, ANewFlashOrANewKeyboardEndsTheOneBefore) {
    flash.Flash({{0, 0, 0}});
    flash.Flash({{0, 0, 1}});
    EXPECT_FALSE(Flashed(0));
    PassHalf();
    PassHalf();
    EXPECT_FALSE(Flashed(0));
    EXPECT_TRUE(Flashed(1)) << "the new one keeps its own time";
    Open("ab");
    keyboard.SetFlashed({0, 0, 1}, true);
    PassHalf();
    flash.Flash({{0, 0, 0}});
    EXPECT_TRUE(Flashed(1)) << "keys of the new keyboard are none of its business";
}

} // namespace
} // namespace ondrilo
