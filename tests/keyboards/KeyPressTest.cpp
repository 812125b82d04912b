#include "keyboards/DwellPress.h"
#include "keyboards/KeyActivation.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeSounds.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <utility>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr COnScreenKeyIdentifier kInactive{1, 0, 0}, kLetter{1, 0, 1}, kEmpty{1, 0, 2}, kPrediction{1, 0, 3};
constexpr MessageEvent kPress{Message::UM_KEY_PRESS, 65536 + 1, 0};

class PressTest : public testing::Test {
  protected:
    PressTest() { Open(); }
    void Open() {
        keyboard.Open(folder.Write("k.tec", "LINHA a\nLINHA b\nGRUPO c\nTECLA TECLA_NORMAL a a a 0\n"
                                            "TECLA TECLA_NORMAL a a a\nTECLA TECLA_VAZIA\n"
                                            "TECLA TECLA_PREDICAO\n"),
                      settings);
    }

    TemporaryFolder folder;
    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
    FakeTimers timers;
};

class KeyActivationTest : public PressTest {
  protected:
    std::vector<MessageEvent> Posted() {
        std::vector<MessageEvent> events;
        queue.Drain([&events](const MessageEvent& event) { events.push_back(event); });
        return events;
    }

    DataFolder data{folder.Path()};
    MessageQueue queue;
    FakeSounds sounds;
    KeyActivation activation{keyboard, queue, timers, sounds, data};
};

TEST_F(KeyActivationTest, ALeftPressPostsItsAddressAndShowsADotForAShortTime) {
    activation.Press(kLetter, PressButton::Left);
    EXPECT_THAT(Posted(), ElementsAre(kPress));
    EXPECT_TRUE(keyboard.Key(kLetter).pressDotShowing);
    timers.Fire(Milliseconds{300});
    EXPECT_FALSE(keyboard.Key(kLetter).pressDotShowing);
    activation.Press(kLetter, PressButton::Left);
    EXPECT_TRUE(keyboard.Key(kLetter).pressDotShowing) << "a second press shows it again";
}

TEST_F(KeyActivationTest, OtherButtonsArePostedInSilenceAndInactiveKeysAndThoseBeingEditedDoNotReact) {
    activation.Press(kLetter, PressButton::Right);
    EXPECT_THAT(Posted(), ElementsAre(MessageEvent{Message::UM_KEY_PRESS, 65536 + 1, 1}));
    EXPECT_FALSE(keyboard.Key(kLetter).pressDotShowing);
    activation.Press(kInactive, PressButton::Left);
    keyboard.SetEditing(true);
    activation.Press(kLetter, PressButton::Left);
    EXPECT_THAT(Posted(), IsEmpty());
    EXPECT_THAT(sounds.played, IsEmpty());
}

TEST_F(KeyActivationTest, ASilentPressStillEndsTheSoundOfTheOneBefore) {
    activation.Press(kLetter, PressButton::Left);
    EXPECT_THAT(sounds.played, ElementsAre(std::filesystem::path{}));
    settings.keySound = true;
    keyboard.ApplySettings(settings);
    activation.Press(kLetter, PressButton::Left);
    EXPECT_EQ(sounds.played.back(), data.Find("SomTecla.wav"));
}

TEST_F(KeyActivationTest, AKeyUnderThePointerIsSpokenAsOftenAsTheProfileSays) {
    settings.hoverSpeechLimit = 2;
    keyboard.ApplySettings(settings);
    activation.PointerEntered(kLetter, {5, 5});
    EXPECT_TRUE(keyboard.Key(kLetter).hovered);
    timers.Fire(Milliseconds{400});
    EXPECT_THAT(Posted(), ElementsAre(MessageEvent{Message::UM_KEY_HOVER, 65536 + 1, 0}));
    timers.Fire(Milliseconds{4000});
    EXPECT_THAT(Posted(), SizeIs(1));
    timers.Fire(Milliseconds{4000});
    EXPECT_THAT(Posted(), IsEmpty());

    activation.PointerLeft(kLetter);
    EXPECT_FALSE(keyboard.Key(kLetter).hovered);
    activation.PointerEntered(kLetter, {5, 5});
    timers.Fire(Milliseconds{400});
    EXPECT_THAT(Posted(), SizeIs(1)) << "the count starts again";
}

TEST_F(KeyActivationTest, ADwellIsPressedLikeAClickAndAClickEndsADwell) {
    settings.dwellTime = 100;
    keyboard.ApplySettings(settings);
    const auto rest = [this] {
        for (int i = 0; i < 4; ++i)
            timers.Fire(Milliseconds{25});
        return Posted();
    };
    activation.PointerEntered(kLetter, {5, 5});
    EXPECT_THAT(rest(), ElementsAre(kPress));
    EXPECT_TRUE(keyboard.Key(kLetter).pressDotShowing);
    EXPECT_THAT(sounds.played, SizeIs(1));

    activation.PointerLeft(kLetter);
    activation.PointerEntered(kLetter, {6, 6});
    activation.Press(kLetter, PressButton::Left);
    EXPECT_THAT(rest(), SizeIs(1));
}

TEST_F(KeyActivationTest, LeavingAKeyOrReplacingTheKeyboardEndsWhatWasPending) {
    settings.hoverSpeechLimit = 5;
    keyboard.ApplySettings(settings);
    activation.PointerEntered(kLetter, {5, 5});
    activation.PointerLeft(kLetter);
    timers.Fire(Milliseconds{400});
    activation.PointerEntered(kLetter, {5, 5});
    activation.Press(kLetter, PressButton::Left);
    Open();
    Posted();
    timers.Fire(Milliseconds{400});
    EXPECT_THAT(Posted(), IsEmpty());
    EXPECT_FALSE(keyboard.Key(kLetter).pressDotShowing);
}

constexpr Point kRest{50, 50}, kNear{51, 50};
constexpr int kSteps = 8; // of 25 ms in the 200 ms that a dwell takes here

class Dwell : public PressTest {
  protected:
    Dwell() {
        settings.dwellTime = 200;
        keyboard.ApplySettings(settings);
        dwell.KeysMoved(kRest);
    }
    /// Presses within so many steps; without a number, within the time of two dwells.
    int Presses(int count = 2 * kSteps) {
        for (int i = 0; i < count; ++i)
            timers.Fire(Milliseconds{25});
        return std::exchange(presses, 0);
    }
    double Progress(COnScreenKeyIdentifier key = kLetter) { return keyboard.Key(key).dwell; }

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
