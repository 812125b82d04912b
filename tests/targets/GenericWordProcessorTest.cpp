#include "targets/CGenericWordProcessor.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/FakeOtherProgram.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;

constexpr WindowId kWindow = 7;

struct GenericWordProcessorTest : testing::Test {
    GenericWordProcessorTest() {
        keyboard.Initialize();
        desktop.programs = {{kWindow, 200}};
        keys.surface = &program.surface;
        EXPECT_TRUE(target.Create());
    }
    ~GenericWordProcessorTest() override { target.Destroy(); }

    /// The messages that wait for the view.
    std::vector<Message> Posted() {
        std::vector<Message> posted;
        queue.Drain([&posted](const MessageEvent& event) { posted.push_back(event.message); });
        return posted;
    }
    [[nodiscard]] Text Sentence() const { return target.GetCurrentSentence(); }
    [[nodiscard]] Text Left() const { return target.GetCurrentSentenceLeft(); }

    FakeDesktop desktop;
    FakeOtherProgram program;
    FakeKeyOutput keys;
    CKeyboard keyboard{keys};
    MessageQueue queue;
    int reads = 0;
    CGenericWordProcessor target{kWindow, keyboard, {program, program, desktop, queue, [this] {
                                                         ++reads;
                                                     }}};
};

TEST_F(GenericWordProcessorTest, TheShadowFollowsWhatTheKeysDo) {
    program.Write("abc");
    program.Press(vk::Left);
    program.Write("x");
    EXPECT_EQ(Sentence(), "abxc");
    EXPECT_EQ(Left(), "abx");
    program.Press(vk::Backspace);
    program.Press(vk::Delete);
    EXPECT_EQ(Sentence(), "ab");
    program.Press(vk::Delete); // nothing stands there
    program.Press(vk::Right);
    for (int i = 0; i < 3; ++i)
        program.Press(vk::Backspace);
    program.Press(vk::Left);
    EXPECT_EQ(Sentence(), "");
    program.Write("ç");
    EXPECT_FALSE(Sentence().empty()) << "an insertion point beside the text";
}

TEST_F(GenericWordProcessorTest, WhatMovesTheInsertionPointUnseenThrowsTheShadowAway) {
    const std::function<void()> moves[] = {
        [this] { program.Press(vk::Up); },
        [this] { program.Press(vk::Home); },
        [this] { program.Click(); },
        [this] { program.Click(Message::UM_RIGHT_DOWN); },
        [this] { program.Write("\x16"); }, // Control and V
        [this] {
            desktop.MoveFocus(kWindow + 1); // a dialog of the program
            desktop.MoveFocus(kWindow);
        },
        [this] { program.Press(vk::Left, kKeyWithControl); },
        [this] { program.Press(vk::Right, kKeyWithShift); },
    };
    for (const auto& move : moves) {
        program.Write("tudo bem");
        move();
        EXPECT_EQ(Sentence(), "") << &move - moves;
        program.Write("novo");
        EXPECT_EQ(Sentence(), "novo") << "what is typed then is a new shadow";
        program.Click();
    }
    keyboard.keySet.SetReserved(vk::Home, true);
    program.Write("tudo");
    program.Press(vk::Home);
    EXPECT_EQ(Sentence(), "tudo") << "a switch moves nothing";
    target.DisableMouse();
    program.Click();
    EXPECT_EQ(Sentence(), "tudo");
    EXPECT_EQ(desktop.foreground, kWindow) << "a click on our keys gives the focus back";
    EXPECT_TRUE(program.mouseIsSwallowed);
}

TEST_F(GenericWordProcessorTest, TheRealTextTakesThePlaceOfALostShadow) {
    program.Write("antes");
    program.Answer("antes", 5);
    program.Click();
    program.Answer("O dia. Um belo dia de sol", 14);
    EXPECT_EQ(reads, 2);
    EXPECT_EQ(target.GetCurrentWordLeft(), "belo");
    EXPECT_EQ(target.GetPreviousWord(), "Um");
    EXPECT_FALSE(program.question) << "from here on the keys tell";
    program.Write("z");
    EXPECT_EQ(target.GetCurrentWordLeft(), "beloz");

    program.Click();
    program.question = {};
    program.Write("a");
    ASSERT_TRUE(program.question) << "a key that comes first makes the question out of date";
    program.Answer("uma", 99);
    EXPECT_EQ(target.GetCurrentWordLeft(), "uma");

    program.Write("\r");
    EXPECT_EQ(target.GetPreviousWord(), "uma") << "kept until the program tells";
    program.Answer("", 0);
    EXPECT_EQ(target.GetPreviousWord(), "") << "the message was sent, its field is empty";
    program.caretMoved(false);
    program.Answer("um clique lento", 9);
    EXPECT_EQ(target.GetPreviousWord(), "um") << "it came when the place before it had been read";
    program.Press('A');
    program.caretMoved(false);
    EXPECT_FALSE(program.question) << "the key tells";
    program.caretMoved(true);
    program.Answer("outro campo", 11);
    EXPECT_EQ(target.GetPreviousWord(), "outro") << "the page has moved the focus";
}

TEST_F(GenericWordProcessorTest, OfAPasswordNothingIsKept) {
    program.Write("olá segr"_w);
    program.isPassword = true;
    program.Write("edo");
    EXPECT_TRUE(target.IsPassword());
    EXPECT_EQ(Sentence(), "");
    Posted();
    program.Press('A');
    EXPECT_THAT(Posted(), ElementsAre(Message::UM_KEY_DOWN, Message::UM_KEY_UP)) << "a switch still works";
}

TEST_F(GenericWordProcessorTest, EndsOfWordsAndSentencesAreToldAfterTheShadowKnowsThem) {
    program.Write("a.");
    EXPECT_THAT(Posted(), ElementsAre(Message::UM_CHAR, Message::UM_CHAR, Message::UM_WORD_END,
                                      Message::UM_SENTENCE_END));
    EXPECT_EQ(target.GetPreviousSentence(), "a.");
}

TEST_F(GenericWordProcessorTest, WritingNeverDeletesFirst) {
    program.Write("ca");
    target.WriteWord("casa");
    EXPECT_EQ(program.surface.text, "casa ");
    target.WriteWord("Gato");
    EXPECT_EQ(program.surface.text, "casa Gato ");
    program.Write("xy");
    target.WriteWord("gato");
    EXPECT_EQ(program.surface.text, "casa Gato xygato ");
    program.Write(". Bom");
    target.WriteSentence("Bom dia.");
    EXPECT_EQ(program.surface.text, "casa Gato xygato . Bom dia. ");
    target.DeleteCurrentWord();
    target.DeleteCurrentSentence();
    target.ClearAll();
    EXPECT_EQ(program.surface.text, "casa Gato xygato . Bom dia. ");
    program.Write("uma");
    target.DeleteCurrentWordLeft();
    EXPECT_EQ(program.surface.text, "casa Gato xygato . Bom dia. ");
}

} // namespace
} // namespace ondrilo
