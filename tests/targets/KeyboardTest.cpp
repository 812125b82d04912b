#include "targets/CKeyboard.h"
#include "targets/CKeyboardSimulator.h"
#include "tests/support/FakeKeyOutput.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class KeyboardTest : public testing::Test {
  protected:
    KeyboardTest() { keyboard.Initialize(); }

    FakeKeyOutput output;
    CKeyboard keyboard{output};
};

TEST_F(KeyboardTest, AKnownNameOrCodeIsNeverGivenAwayAndCodesOutsideTheTableHaveNoProperties) {
    keyboard.keySet.AddKey("Enter", 200, false, true);
    keyboard.keySet.AddKey("Return", vk::Enter, false, true);
    EXPECT_EQ(keyboard.keySet.GetCode("Enter"), vk::Enter);
    EXPECT_EQ(keyboard.keySet.GetName(vk::Enter), "Enter");
    EXPECT_FALSE(keyboard.keySet.GetCode("Return"));
    EXPECT_TRUE(keyboard.keySet.IsReserved(vk::Enter));
    EXPECT_THAT(keyboard.keySet.GetFreeKeyNames(), Contains("Pgup"));
    keyboard.keySet.SetReserved(vk::PageUp, true);
    EXPECT_THAT(keyboard.keySet.GetFreeKeyNames(), Not(Contains("Pgup"))) << "it has a special role";

    keyboard.keySet.AddKey("Longe", 256, true, true);
    keyboard.keySet.SetReserved(-1, true);
    EXPECT_EQ(keyboard.keySet.GetCode("Longe"), 256);
    EXPECT_FALSE(keyboard.keySet.IsReserved(256) || keyboard.keySet.IsReserved(-1));
    EXPECT_FALSE(keyboard.keySet.IsCombinableName("Longe"));
}

TEST_F(KeyboardTest, ALineBreakIsTypedAsOneEnterAndAKeyNameTappedAndAnyOtherTextTyped) {
    keyboard.TypeText("a\r\nb\n");
    EXPECT_THAT(output.events, ElementsAre("type a", "down 13", "up 13", "type b", "down 13", "up 13"));
    output.events.clear();
    for (const char* sent : {"Enter", "ent", " "})
        keyboard.SendKey(sent);
    EXPECT_THAT(output.events, ElementsAre("down 13", "up 13", "type e", "type n", "type t", "type  "));
}

TEST_F(KeyboardTest, ASequenceReleasesEachCombinationBeforeTheNext) {
    keyboard.PlaySequence("{Ctrl+Shift+a} Enter");
    EXPECT_THAT(output.events,
                ElementsAre("down 17", "down 16", "down 65", "up 65", "up 16", "up 17", "down 13", "up 13"));
    EXPECT_EQ(CKeyboard::CountSequenceKeys("{Ctrl+Shift+a} Enter"), 4);
}

TEST_F(KeyboardTest, ASequenceWithUnknownKeysLeavesNothingPressed) {
    keyboard.PlaySequence("{Ctrl+\x81+F13}"); // 0x81 is on no keyboard
    keyboard.PlaySequence("{++}{");
    keyboard.PlaySequence("{}");
    EXPECT_THAT(output.events, ElementsAre("down 17", "down 70", "up 70", "up 17"));
    output.events.clear();
    keyboard.PlaySequence("{Ctrl+}");
    keyboard.PlaySequence("{+a}");
    EXPECT_THAT(output.events, ElementsAre("down 17", "up 17", "down 65", "up 65"));
}

TEST_F(KeyboardTest, CapitalsAndAccentsCostTheirModifiersAndDeadKeys) {
    EXPECT_EQ(keyboard.CountKeys("á"_w), 2);
    EXPECT_EQ(keyboard.CountKeys("ê"_w), 3) << "the circumflex needs Shift";
    EXPECT_EQ(keyboard.CountKeys("À"_w), 4) << "accent and letter both need Shift";
    EXPECT_EQ(keyboard.CountKeys("Ç"_w), 2) << "the cedilla is a key of its own";
    EXPECT_EQ(keyboard.CountKeys("@"), 3) << "AltGr is Control with Alt";
    EXPECT_EQ(keyboard.CountKeys("\x81\r\n"), 1) << "what has no key costs nothing";
    EXPECT_EQ(keyboard.CountKeys("CapsLock"), 1);
}

TEST_F(KeyboardTest, OnlyKeysThatShowSomethingCanBeShownBeforeTheyAreSent) {
    for (const TextView writes : {"a", "7", "Num7", "Space", "Bom dia", "enter", ""})
        EXPECT_TRUE(keyboard.IsPrintingKey(writes)) << writes;
    for (const TextView steers : {"Enter", "BkSp", "Tab", "Shift", "Esquerda", "F1", "Del"})
        EXPECT_FALSE(keyboard.IsPrintingKey(steers)) << steers;
}

TEST(TypedTextTest, EveryLetterSwapsItsCaseAndThoseWithADeadAccentAreTwoStrokes) {
    EXPECT_EQ(CKeyboard::SwapCase("Ação é 1. Ÿ"_w), "aÇÃO É 1. ÿ"_w);
    EXPECT_EQ(TypedCharacters("Ìçã ü"_w), "`iç~a ü"_w);
}

class KeyboardSimulatorTest : public testing::Test {
  protected:
    std::vector<Text> Keys(TextView text, char next = ' ') {
        std::vector<Text> keys;
        const int count = CKeyboardSimulator::CountText(capsLock, text, next, keys);
        EXPECT_EQ(count, static_cast<int>(keys.size()));
        return keys;
    }
    bool capsLock = false;
};

TEST_F(KeyboardSimulatorTest, ALoneCapitalTakesShiftAndARunCapsLockUntilTheFirstSmallLetter) {
    EXPECT_THAT(Keys("Eu"), ElementsAre("Shift", "e", "u"));
    EXPECT_THAT(Keys("TV, a"), ElementsAre("CapsLock", "t", "v", ",", " ", "CapsLock", "a"));
    EXPECT_FALSE(capsLock);
}

TEST_F(KeyboardSimulatorTest, CapsLockStaysOnFromOneTextToTheNextAndSignsDoNotTouchIt) {
    EXPECT_THAT(Keys("A", "Ú"_w.front()), ElementsAre("CapsLock", "a")) << "an accented one goes on a run";
    EXPECT_THAT(Keys("Ú?»"_w), ElementsAre("'", "u", "Shift", "?", "Shift", "»"_w));
    EXPECT_TRUE(capsLock);
}

} // namespace
} // namespace ondrilo
