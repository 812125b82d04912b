#include "tools/Commands.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iostream>
#include <sstream>

namespace ondrilo {
namespace {

using testing::HasSubstr;
using testing::Not;
using Words = std::vector<std::string>;

constexpr ToolOption kKnown[] = {{"--data", "DIR", ""}, {"--count", "N", ""}, {"--forms", "", ""}};
constexpr ToolOption kEncoding[] = {{"--encoding", "NAME", ""}};

Arguments Parsed(Words words) {
    return {std::move(words), kKnown};
}

TEST(Arguments, SortOptionsFromOperandsInBothSpellings) {
    const auto arguments = Parsed({"one", "--data", "dir", "--count=7", "two", "--forms"});
    EXPECT_EQ(arguments.Required("--data"), "dir");
    EXPECT_EQ(arguments.Number("--count", 1), 7);
    EXPECT_TRUE(arguments.Has("--forms"));
    EXPECT_EQ(arguments.Operands(), (Words{"one", "two"}));
}

TEST(Arguments, RefuseWhatWouldOtherwiseBeIgnored) {
    EXPECT_THROW(Parsed({"--dta", "x"}), UsageError);
    EXPECT_THROW(Parsed({"--data"}), UsageError);
    EXPECT_THROW(Parsed({"--forms=1"}), UsageError);
    EXPECT_THROW((void)Parsed({}).Required("--data"), UsageError);
    EXPECT_THROW((void)Parsed({"--count", "-1"}).Number("--count", 1), UsageError);
    EXPECT_THROW((void)Parsed({"--count", "7x"}).Number("--count", 1), UsageError);
    EXPECT_THROW(Arguments({"--encoding", "latin9"}, kEncoding), UsageError);
}

TEST(Arguments, TranslateTextsOfTheTerminalUnlessBytesAreAskedFor) {
    EXPECT_EQ(Parsed({}).FromTerminal("maçã"), "maçã"_w);
    EXPECT_EQ(Parsed({}).ToTerminal("maçã"_w), "maçã");
    const Arguments raw({"--encoding", "windows-1252"}, kEncoding);
    EXPECT_EQ(raw.FromTerminal("maçã"_w), "maçã"_w);
    EXPECT_EQ(raw.ToTerminal("maçã"_w), "maçã"_w);
}

/// How a command ended, and what it printed.
struct Ran {
    int code = 0;
    std::string out, problems;
};

/// Runs a command as the tool does, with what it reads.
Ran RunTool(const Command& command, Words words, const std::string& input = {}) {
    std::vector<ToolOption> options(command.options.begin(), command.options.end());
    options.push_back({"--encoding", "NAME", ""});
    std::istringstream in(input);
    auto* const before = std::cin.rdbuf(in.rdbuf());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Ran ran;
    try {
        ran.code = command.run(Arguments(std::move(words), options));
    } catch (const UsageError&) {
        ran.code = 2;
    }
    ran.out = testing::internal::GetCapturedStdout();
    ran.problems = testing::internal::GetCapturedStderr();
    std::cin.rdbuf(before);
    std::cin.clear();
    return ran;
}

/// A small data folder with the profile "ana", and beside it a folder for texts and results.
class PersonsData : public testing::Test {
  protected:
    PersonsData() {
        for (const auto* name : {"geral.frs", "geral.paf", "ana.pal", "ana.par", "ana.frs", "ana.paf"})
            folder.Write(name, "");
    }
    Ran Run(const Command& command, Words words, const std::string& input = {}) {
        words.insert(words.end(), {"--data", folder.Path().string(), "--profile", "ana"});
        return RunTool(command, std::move(words), input);
    }

    TemporaryFolder folder;
    TemporaryFolder texts;
};

class Predict : public PersonsData {
  protected:
    Predict() {
        folder.Write("geral.pal", "casa 10\ncasaco 5\ncaso 1\nágua 4\n"_w);
        folder.Write("geral.par", "casa caso 9\n");
        folder.Write("ana.cfg", "NUMERO_MAXIMO_PALAVRAS_PREDITAS 2\n");
    }
    std::string Answers(Words words, const std::string& queries) {
        const auto ran = Run(kPredictCommand, std::move(words), queries);
        EXPECT_EQ(ran.code, 0);
        return ran.out;
    }
};

TEST_F(Predict, AnswersEachQueryUpToTheNumberOfTheProfileOrAnother) {
    EXPECT_EQ(Answers({}, "\tcas\ncasa\tcas\r\n\tx\n"), "1\tcasa\n2\tcasaco\n\n1\tcaso\n2\tcasa\n\n\n");
    EXPECT_EQ(Answers({"--forms", "--count", "9"}, "\tcasac\taz\tcaso\n"), "1\tcasaco\n\n");
    EXPECT_EQ(Answers({"--count", "0"}, "\tcas\n"), "\n");
}

TEST_F(Predict, SpeaksTheEncodingOfTheTerminal) {
    EXPECT_EQ(Answers({}, "\tá\n"), "1\tágua\n\n");
    EXPECT_EQ(Answers({"--encoding=windows-1252"}, std::string("\tá\n"_w)), "1\tágua\n\n"_w);
}

TEST_F(Predict, ShowsScoresThatReadBackExactly) {
    const auto shown = Answers({"--scores", "--count", "1"}, "\tcas\n");
    const auto score = shown.substr(2, shown.find('\t', 2) - 2);
    EXPECT_EQ(std::stod(score), 50.0) << shown;
}

class Simulate : public PersonsData {
  protected:
    Simulate() {
        folder.Write("geral.pal", "água 4\nbom 3\n"_w);
        folder.Write("geral.par", "");
        folder.Write("ana.cfg", "NUMERO_MAXIMO_PALAVRAS_PREDITAS 1\n");
    }
    Ran OnText(const std::string& bytes, Words words = {}) {
        words.insert(words.begin(), {"words", "--text", texts.Write("texto.txt", bytes).string()});
        return Run(kSimulateCommand, std::move(words));
    }
    std::string Printed(const std::string& bytes, Words words = {}) {
        const auto ran = OnText(bytes, std::move(words));
        EXPECT_EQ(ran.code, 0);
        return ran.out;
    }
};

TEST_F(Simulate, TellsWhatIsSavedOnATextOfEitherEncoding) {
    const auto utf8 = Printed("\xEF\xBB\xBF"
                              "água\n");
    EXPECT_EQ(utf8.substr(0, utf8.find("Percentagem")), "Número de Palavras: 1\nNúmero de Caracteres: 5\n"
                                                        "Número de Caracteres Escritos Pelo Utilizador: 2\n");
    EXPECT_EQ(Printed(std::string("água"_w), {"--encoding", "windows-1252"}), utf8)
        << "the encoding is the text's";
    EXPECT_NE(Printed("água", {"--predictions", "0"}), utf8);
}

TEST_F(Simulate, WritesARowARunAndLeavesTheDataAlone) {
    const auto rows = texts.Path() / "linhas.sim";
    Printed("xis xis", {"--adapt", "1", "--sim", rows.string()});
    EXPECT_EQ(texts.Read("linhas.sim"), "2\t8\t6\t25\t6\t6\t0\t5\t1\t0.0\t1.0\n");
    const auto six = Printed("xis xis", {"--type=1", "--sim", rows.string()});
    const auto written = texts.Read("linhas.sim");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 6);
    EXPECT_EQ(std::count(six.begin(), six.end(), '\n'), 6 * 12 - 1)
        << "eleven figures a run, and a line between";
    EXPECT_EQ(folder.Read("ana.cfg"), "NUMERO_MAXIMO_PALAVRAS_PREDITAS 1\n");
    EXPECT_EQ(folder.Read("ana.pal"), "");
    EXPECT_EQ(OnText("", {"--type", "3"}).code, 2);
}

class Vocabulary : public testing::Test {
  protected:
    /// Makes the files of these texts, and of a "lexicon", with these options.
    Ran Make(std::initializer_list<std::pair<std::string, TextView>> files, Words words = {}) {
        for (const auto& [name, bytes] : files) {
            const auto path = folder.Write(name, bytes).string();
            words.push_back(name == "lexicon" ? "--lexicon=" + path : path);
        }
        words.push_back("--out=" + folder.Path().string());
        return RunTool(kVocabularyCommand, std::move(words));
    }
    [[nodiscard]] std::string File(const std::string& name) const { return ToUtf8(folder.Read(name)); }

    TemporaryFolder folder;
};

TEST_F(Vocabulary, CountsWordsAndPairsAcrossSentencesButNotAcrossLines) {
    Make({{"t.txt", "Olá! Quero água.\nQuero.\n"}}, {"--weight=1"});
    EXPECT_EQ(File("geral.pal"), "___ 3\nolá 1\nquero 2\nágua 1\n");
    EXPECT_EQ(File("geral.par"), "___ olá 1\n___ quero 2\nolá quero 1\nquero água 1\n");
    EXPECT_EQ(File("geral.frs"), "___ 2\nolá! 1\nquero|água. 1\nquero. 1\n");
    EXPECT_EQ(File("geral.paf"), "___ olá! 1\n___ quero. 1\nolá! quero|água. 1\n");
}

TEST_F(Vocabulary, WeighsEachKindOfTextByItself) {
    Make({{"a.txt", "um dois\n"}, {"prosa.txt", "dois\n"}, {"frases.txt", "três\n"}},
         {"--prose=prosa", "--prose-weight=3", "--phrases=frases"});
    EXPECT_EQ(File("geral.pal"), "___ 23\ndois 13\ntrês 10\num 10\n");
    EXPECT_EQ(File("geral.par"), "___ dois 3\n___ três 10\n___ um 10\num dois 10\n");
    EXPECT_EQ(File("geral.frs"), "___ 11\ntrês 10\num|dois 1\n");
}

TEST_F(Vocabulary, KeepsLexiconWordsOnceUnderTheTextsAndInByteOrder) {
    Make({{"t.txt", "casa\n"}, {"lexicon", "Évora\nzebra\ncasa\nbom dia\na|b\n"}});
    EXPECT_EQ(File("geral.pal"), "___ 10\nbom|dia 1\ncasa 10\nzebra 1\névora 1\n");
}

TEST_F(Vocabulary, CountsClassesInTheTextsAlone) {
    const auto ran = Make(
        {{"t.txt", "o gato xyz. o rato\n"}, {"lexicon", "o\tart\ngato\tn\nrato\tn\npato\tn\nsim\tadv\n"}},
        {"--weight=2"});
    EXPECT_EQ(File("geral.pal"), "___ 4\ngato 2 n\no 4 art\npato 1 n\nrato 2 n\nsim 1 adv\nxyz 2\n");
    EXPECT_EQ(File("geral.cg"), "art 4\nn 4\n");
    EXPECT_EQ(File("geral.pcg"), "art n 4\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.out, HasSubstr("71 % of the words, 80 % of the running text"));
}

TEST_F(Vocabulary, LinksNoSentencesAcrossOneThatIsLeftOut) {
    Make({{"t.txt", "Sim. Esta frase é comprida. Não.\n"}}, {"--longest-sentence=5"});
    EXPECT_EQ(File("geral.frs"), "___ 1\nnão. 1\nsim. 1\n");
    EXPECT_EQ(File("geral.paf"), "___ sim. 1\n");
}

TEST_F(Vocabulary, WritesNothingBeyondWhatADictionaryHolds) {
    Text lexicon;
    for (int i = 0; i <= 250'000; ++i)
        lexicon += "p" + std::to_string(i) + "\n";
    const auto ran = Make({{"t.txt", "um\n"}, {"lexicon", lexicon}});
    EXPECT_EQ(ran.code, 1);
    EXPECT_THAT(ran.problems, HasSubstr("250000"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "geral.pal"));
}

Ran Judge(TextView text, Words options) {
    const TemporaryFolder folder;
    options.push_back(folder.Write("t.txt", text).string());
    return RunTool(kCorpusCommand, std::move(options));
}

TEST(Corpus, FailsPastEachBoundAndNamesTheRepeats) {
    const auto text = "um dois um\num, dois um!\na b c d e f g\nh b c d e f g\n";
    EXPECT_EQ(Judge(text, {"--least-variety=50", "--most-lines=250", "--most-runs=250"}).code, 0);
    EXPECT_EQ(Judge(text, {"--least-variety=51"}).code, 1);
    EXPECT_EQ(Judge(text, {"--most-runs=249"}).code, 1);
    const auto lines = Judge(text, {"--most-lines=249"});
    EXPECT_EQ(lines.code, 1);
    EXPECT_THAT(lines.out, HasSubstr("t.txt:2: repeats t.txt:1: um dois um\n"));
    EXPECT_THAT(lines.out, HasSubstr("t.txt:4: repeats t.txt:3: b c d e f g\n"));
}

TEST(Corpus, FailsOnCharactersThatTheDataCannotHold) {
    const auto verdict = Judge("que é?\nOlá \xE2\x86\x92 aqui\n", {});
    EXPECT_EQ(verdict.code, 1);
    EXPECT_THAT(verdict.problems, HasSubstr("t.txt:2: 1 char"));
    EXPECT_THAT(verdict.problems, Not(HasSubstr("t.txt:1:")));
}

} // namespace
} // namespace ondrilo
