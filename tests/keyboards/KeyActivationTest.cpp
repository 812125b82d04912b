#include "keyboards/KeyActivation.h"

#include "tests/support/FakeClock.h"
#include "tests/support/FakeSounds.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr COnScreenKeyIdentifier kActive{1, 0, 1};
constexpr COnScreenKeyIdentifier kInactive{1, 0, 0};

class KeyActivationTest : public testing::Test {
  protected:
    KeyActivationTest() { Open(); }
    void Open() {
        keyboard.Open(folder.Write("k.tec", "LINHA a\nLINHA b\nGRUPO c\nTECLA TECLA_NORMAL a a a 0\n"
                                            "TECLA TECLA_NORMAL a a a\n"),
                      settings);
    }
    std::vector<MessageEvent> Posted() {
        std::vector<MessageEvent> events;
        queue.Drain([&events](const MessageEvent& event) { events.push_back(event); });
        return events;
    }

    TemporaryFolder folder;
    DataFolder data{folder.Path()};
    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
    MessageQueue queue;
    FakeTimers timers;
    FakeSounds sounds;
    KeyActivation activation{keyboard, queue, timers, sounds, data};
};

TEST_F(KeyActivationTest, ALeftPressPostsItsAddressAndShowsADotForAShortTime) {
    activation.Press(kActive, PressButton::Left);
    EXPECT_THAT(Posted(), ElementsAre(MessageEvent{Message::UM_KEY_PRESS, 65536 + 1, 0}));
    EXPECT_TRUE(keyboard.Key(kActive).pressDotShowing);
    timers.Fire(Milliseconds{300});
    EXPECT_FALSE(keyboard.Key(kActive).pressDotShowing);
    activation.Press(kActive, PressButton::Left);
    EXPECT_TRUE(keyboard.Key(kActive).pressDotShowing) << "a second press shows it again";
}

TEST_F(KeyActivationTest, OtherButtonsArePostedInSilenceAndInactiveKeysAndThoseBeingEditedDoNotReact) {
    activation.Press(kActive, PressButton::Right);
    EXPECT_THAT(Posted(), ElementsAre(MessageEvent{Message::UM_KEY_PRESS, 65536 + 1, 1}));
    EXPECT_FALSE(keyboard.Key(kActive).pressDotShowing);
    activation.Press(kInactive, PressButton::Left);
    keyboard.SetEditing(true);
    activation.Press(kActive, PressButton::Left);
    EXPECT_THAT(Posted(), IsEmpty());
    EXPECT_THAT(sounds.played, IsEmpty());
}

TEST_F(KeyActivationTest, ASilentPressStillEndsTheSoundOfTheOneBefore) {
    activation.Press(kActive, PressButton::Left);
    EXPECT_THAT(sounds.played, ElementsAre(std::filesystem::path{}));
    settings.keySound = true;
    keyboard.ApplySettings(settings);
    activation.Press(kActive, PressButton::Left);
    EXPECT_EQ(sounds.played.back(), data.Find("SomTecla.wav"));
}

TEST_F(KeyActivationTest, AKeyUnderThePointerIsSpokenAsOftenAsTheProfileSays) {
    settings.hoverSpeechLimit = 2;
    keyboard.ApplySettings(settings);
    activation.PointerEntered(kActive, {5, 5});
    EXPECT_TRUE(keyboard.Key(kActive).hovered);
    timers.Fire(Milliseconds{400});
    EXPECT_THAT(Posted(), ElementsAre(MessageEvent{Message::UM_KEY_HOVER, 65536 + 1, 0}));
    timers.Fire(Milliseconds{4000});
    EXPECT_THAT(Posted(), SizeIs(1));
    timers.Fire(Milliseconds{4000});
    EXPECT_THAT(Posted(), IsEmpty());

    activation.PointerLeft(kActive);
    EXPECT_FALSE(keyboard.Key(kActive).hovered);
    activation.PointerEntered(kActive, {5, 5});
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
    activation.PointerEntered(kActive, {5, 5});
    EXPECT_THAT(rest(), ElementsAre(MessageEvent{Message::UM_KEY_PRESS, 65536 + 1, 0}));
    EXPECT_TRUE(keyboard.Key(kActive).pressDotShowing);
    EXPECT_THAT(sounds.played, SizeIs(1));

    activation.PointerLeft(kActive);
    activation.PointerEntered(kActive, {6, 6});
    activation.Press(kActive, PressButton::Left);
    EXPECT_THAT(rest(), SizeIs(1));
}

TEST_F(KeyActivationTest, LeavingAKeyOrReplacingTheKeyboardEndsWhatWasPending) {
    settings.hoverSpeechLimit = 5;
    keyboard.ApplySettings(settings);
    activation.PointerEntered(kActive, {5, 5});
    activation.PointerLeft(kActive);
    timers.Fire(Milliseconds{400});
    activation.PointerEntered(kActive, {5, 5});
    activation.Press(kActive, PressButton::Left);
    Open();
    Posted();
    timers.Fire(Milliseconds{400});
    EXPECT_THAT(Posted(), IsEmpty());
    EXPECT_FALSE(keyboard.Key(kActive).pressDotShowing);
}

} // namespace
} // namespace ondrilo
