#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunTool.h"

namespace ondrilo {
namespace {

/// What `predict` prints for a small data folder with these options and queries.
std::string Answers(std::vector<std::string> words, const std::string& queries) {
    const TemporaryFolder folder;
    folder.Write("geral.pal", "casa 10\ncasaco 5\ncaso 1\nágua 4\n"_w);
    folder.Write("geral.par", "casa caso 9\n");
    for (const auto* name : {"geral.frs", "geral.paf", "ana.pal", "ana.par", "ana.frs", "ana.paf"})
        folder.Write(name, "");
    folder.Write("ana.cfg", "NUMERO_MAXIMO_PALAVRAS_PREDITAS 2\n");
    words.insert(words.end(), {"--data", folder.Path().string(), "--profile", "ana"});
    const auto ran = RunTool(kPredictCommand, std::move(words), queries);
    EXPECT_EQ(ran.code, 0);
    return ran.out;
}

TEST(Predict, AnswersEachQueryUpToTheNumberOfTheProfile) {
    EXPECT_EQ(Answers({}, "\tcas\ncasa\tcas\r\n\tx\n"), "1\tcasa\n2\tcasaco\n\n1\tcaso\n2\tcasa\n\n\n");
}

TEST(Predict, TakesFormsAndAnyCount) {
    EXPECT_EQ(Answers({"--forms", "--count", "9"}, "\tcasac\taz\tcaso\n"), "1\tcasaco\n\n");
    EXPECT_EQ(Answers({"--count", "0"}, "\tcas\n"), "\n");
}

TEST(Predict, SpeaksTheEncodingOfTheTerminal) {
    EXPECT_EQ(Answers({}, "\tá\n"), "1\tágua\n\n");
    EXPECT_EQ(Answers({"--encoding=windows-1252"}, std::string("\tá\n"_w)), "1\tágua\n\n"_w);
}

TEST(Predict, ShowsScoresThatReadBackExactly) {
    const auto shown = Answers({"--scores", "--count", "1"}, "\tcas\n");
    const auto score = shown.substr(2, shown.find('\t', 2) - 2);
    EXPECT_EQ(std::stod(score), 50.0) << shown;
}

} // namespace
} // namespace ondrilo
