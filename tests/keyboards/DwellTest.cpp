#include "keyboards/DwellPress.h"
#include "tests/support/FakeClock.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <utility>

namespace ondrilo {
namespace {

constexpr COnScreenKeyIdentifier kInactive{0, 0, 0}, kEmpty{0, 0, 1}, kPrediction{0, 0, 2}, kLetter{0, 0, 3};
constexpr Point kRest{50, 50}, kNear{51, 50};
constexpr int kSteps = 8; // of 25 ms in the 200 ms that a dwell takes here

class Dwell : public testing::Test {
  protected:
    Dwell() {
        settings.dwellTime = 200;
        Open();
        dwell.KeysMoved(kRest);
    }
    void Open() {
        keyboard.Open(folder.Write("k.tec",
                                   "LINHA a\nGRUPO b\nTECLA TECLA_NORMAL a a a 0\nTECLA TECLA_VAZIA\n"
                                   "TECLA TECLA_PREDICAO\nTECLA TECLA_NORMAL a a a\n"),
                      settings);
    }
    /// Presses within so many steps; without a number, within the time of two dwells.
    int Presses(int count = 2 * kSteps) {
        for (int i = 0; i < count; ++i)
            timers.Fire(Milliseconds{25});
        return std::exchange(presses, 0);
    }
    double Progress(COnScreenKeyIdentifier key = kLetter) { return keyboard.Key(key).dwell; }

    TemporaryFolder folder;
    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
    FakeTimers timers;
    int presses = 0;
    DwellPress dwell{keyboard, timers, [this](auto key) {
                         ++presses;
                         dwell.Pressed(key);
                     }};
};

TEST_F(Dwell, ARestingPointerPressesTheKeyAfterExactlyTheDwellTimeAndThenHasToLeave) {
    dwell.PointerEntered(kLetter, kNear);
    EXPECT_EQ(Presses(2), 0);
    EXPECT_EQ(Progress(), 0.25);
    dwell.PointerMoved(kLetter, kRest); // a pointer that trembles still rests
    EXPECT_EQ(Presses(kSteps - 3), 0);
    EXPECT_EQ(Presses(1), 1);
    EXPECT_EQ(Progress(), 0);

    dwell.PointerLeft(kLetter);
    dwell.PointerEntered(kLetter, kRest); // something came between pointer and key, and went
    dwell.PointerMoved(kLetter, kNear);
    EXPECT_EQ(Presses(), 0);
    dwell.PointerLeft(kLetter);
    dwell.KeysMoved(kRest); // the window was away while the pointer went elsewhere
    dwell.PointerEntered(kLetter, kRest);
    dwell.PointerMoved(kLetter, kNear);
    EXPECT_EQ(Presses(3), 0);
    dwell.Pressed(kLetter);
    EXPECT_EQ(Presses(), 0) << "a click counts as well";
}

TEST_F(Dwell, AHalfDoneSelectionIsConfirmedByASecondDwellAndNoThirdFollows) {
    dwell.PointerEntered(kLetter, kNear);
    EXPECT_EQ(Presses(), 1);
    keyboard.SetHalfSelected(kLetter);
    EXPECT_EQ(Presses(kSteps - 1), 0) << "it starts from zero";
    EXPECT_EQ(Presses(1), 1);
    keyboard.SetPressDot(kLetter, false); // the key changes before the press is handled
    keyboard.SetHalfSelected(std::nullopt);
    EXPECT_EQ(Presses(), 0);
}

TEST_F(Dwell, AKeyThatComesToLieUnderARestingPointerWaitsForItToMove) {
    dwell.PointerEntered(kLetter, kRest);
    EXPECT_EQ(Presses(), 0);
    dwell.PointerMoved(kLetter, kNear);
    EXPECT_EQ(Presses(kSteps - 1), 0);
    dwell.KeysMoved(kNear); // the window follows the caret
    EXPECT_EQ(Presses(), 0);
    EXPECT_EQ(Progress(), 0);
    dwell.PointerMoved(kLetter, kRest);
    EXPECT_EQ(Presses(kSteps - 1), 0);
    Open();
    dwell.PointerEntered(kLetter, kRest);
    EXPECT_EQ(Presses(), 0) << "another keyboard";
}

TEST_F(Dwell, WhatChangesUnderThePointerIsNotSelectedByTheTimeBefore) {
    const auto show = [this](TextView word) {
        keyboard.SetOutput(kPrediction, "");
        keyboard.SetOutput(kPrediction, word);
    };
    show("casa");
    dwell.PointerEntered(kPrediction, kNear);
    EXPECT_EQ(Presses(kSteps - 1), 0);
    show("casa");
    EXPECT_EQ(Presses(1), 1) << "shown anew, it is the same word";
    dwell.PointerLeft(kPrediction);
    dwell.PointerEntered(kPrediction, kRest);
    EXPECT_EQ(Presses(kSteps - 1), 0);
    show("carro");
    EXPECT_EQ(Presses(kSteps), 0);
    show("");
    EXPECT_EQ(Presses(1), 0);
    show("cara");
    EXPECT_EQ(Presses(), 0) << "a key that was empty waits for the pointer to move";
    dwell.PointerMoved(kPrediction, kNear);
    EXPECT_EQ(Presses(), 1);
}

TEST_F(Dwell, KeysWithoutEffectAndKeyboardsWithoutADwellTimeDoNotDwell) {
    for (const auto& key : {kInactive, kEmpty, kPrediction}) {
        dwell.PointerEntered(key, kNear);
        dwell.PointerMoved(key, kRest);
        EXPECT_EQ(Presses(), 0);
    }
    dwell.PointerEntered(kLetter, kNear);
    EXPECT_EQ(Presses(3), 0);
    keyboard.SetEditing(true);
    EXPECT_EQ(Presses(), 0);
    keyboard.SetEditing(false);
    dwell.PointerMoved(kLetter, kRest);
    EXPECT_EQ(Presses(3), 0);
    settings.dwellTime = 0;
    keyboard.ApplySettings(settings);
    EXPECT_EQ(Presses(), 0);
    EXPECT_EQ(Progress(), 0);
}

} // namespace
} // namespace ondrilo
