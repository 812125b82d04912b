#include "speech/CSpeechSynthesizer.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

class SpeechSynthesizerTest : public testing::Test {
  protected:
    [[nodiscard]] Text Spoken(TextView text) {
        EXPECT_TRUE(synthesizer.Speak(text));
        return engine.said.back().text;
    }
    [[nodiscard]] bool Exists(const char* file) const {
        return std::filesystem::exists(folder.Path() / file);
    }

    TemporaryFolder folder;
    FakeSpeechEngine engine;
    CSpeechSynthesizer synthesizer{engine, DataFolder(folder.Path())};
};

TEST_F(SpeechSynthesizerTest, EachVoiceHasItsOwnExceptionsFromTheMomentItIsChosen) {
    folder.Write("Ana_text_exceptions.txt", "bd:bom dia\n");
    synthesizer.SelectVoice("Ana", {.rate = 20, .pitch = {}, .volume = -5});
    EXPECT_EQ(Spoken("bd"), "bom dia");
    EXPECT_EQ(engine.said.back().manner, (SpeechManner{20, std::nullopt, -5}));
    EXPECT_EQ(Spoken("bd!"), "bd!");

    synthesizer.SelectVoice("Rui (a/b) - x\\y", {});
    EXPECT_TRUE(Exists("Rui (a_b) - x_y_text_exceptions.txt"));
    EXPECT_EQ(engine.said.back(), (FakeSpeechEngine::Utterance{" ", "Rui (a/b) - x\\y", {}}));
    EXPECT_EQ(Spoken("bd"), "bd");
    EXPECT_TRUE(synthesizer.SetException("bd", "boa noite"));
    EXPECT_EQ(Spoken("bd"), "boa noite");
    EXPECT_EQ(folder.Read("Ana_text_exceptions.txt"), "bd:bom dia\n");
}

TEST_F(SpeechSynthesizerTest, WithoutAVoiceNothingIsSaidAndNoFileIsMade) {
    EXPECT_FALSE(synthesizer.SelectVoice("", {}));
    EXPECT_FALSE(synthesizer.Speak("a"));
    EXPECT_FALSE(Exists("_text_exceptions.txt"));
    synthesizer.SelectVoice("Ana", {});
    synthesizer.Release();
    EXPECT_EQ(engine.stops, 1);
    EXPECT_FALSE(synthesizer.Speak("a"));
    EXPECT_EQ(engine.said.size(), 1U) << "the blank that warms a voice up";
}

TEST_F(SpeechSynthesizerTest, AFolderThatIsGoneIsToldOfAndTheExceptionHoldsUntilTheEnd) {
    std::filesystem::remove_all(folder.Path());
    EXPECT_TRUE(synthesizer.SelectVoice("Ana", {}));
    EXPECT_FALSE(synthesizer.SetException("bd", "bom dia"));
    EXPECT_EQ(Spoken("bd"), "bom dia");
}

} // namespace
} // namespace ondrilo
