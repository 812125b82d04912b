#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunTool.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::HasSubstr;
using testing::Not;

class Vocabulary : public testing::Test {
  protected:
    /// Makes the files of these texts with these options.
    void Make(std::vector<std::string> words) {
        for (auto& word : words)
            if (!word.starts_with("--"))
                word = (folder.Path() / word).string();
        words.push_back("--out=" + folder.Path().string());
        const auto ran = RunTool(kVocabularyCommand, std::move(words));
        EXPECT_EQ(ran.code, 0);
        report = ran.out;
    }
    [[nodiscard]] std::string File(const std::string& name) const { return ToUtf8(folder.Read(name)); }

    TemporaryFolder folder;
    std::string report;
};

TEST_F(Vocabulary, CountsWordsAndPairsAcrossSentencesButNotAcrossLines) {
    folder.Write("t.txt", "Olá! Quero água.\nQuero.\n");
    Make({"t.txt", "--weight=1"});
    EXPECT_EQ(File("geral.pal"), "___ 3\nolá 1\nquero 2\nágua 1\n");
    EXPECT_EQ(File("geral.par"), "___ olá 1\n___ quero 2\nolá quero 1\nquero água 1\n");
    EXPECT_EQ(File("geral.frs"), "___ 2\nolá! 1\nquero|água. 1\nquero. 1\n");
    EXPECT_EQ(File("geral.paf"), "___ olá! 1\n___ quero. 1\nolá! quero|água. 1\n");
}

TEST_F(Vocabulary, WeighsEachKindOfTextByItself) {
    folder.Write("a.txt", "um dois\n");
    folder.Write("prosa.txt", "dois\n");
    folder.Write("frases.txt", "três\n");
    Make({"a.txt", "prosa.txt", "frases.txt", "--prose=prosa", "--prose-weight=3", "--phrases=frases"});
    EXPECT_EQ(File("geral.pal"), "___ 23\ndois 13\ntrês 10\num 10\n");
    EXPECT_EQ(File("geral.par"), "___ dois 3\n___ três 10\n___ um 10\num dois 10\n");
    EXPECT_EQ(File("geral.frs"), "___ 11\ntrês 10\num|dois 1\n");
}

TEST_F(Vocabulary, KeepsLexiconWordsOnceUnderTheTextsAndInByteOrder) {
    folder.Write("t.txt", "casa\n");
    folder.Write("lexicon", "Évora\nzebra\ncasa\nbom dia\na|b\n");
    Make({"t.txt", "--lexicon=" + (folder.Path() / "lexicon").string()});
    EXPECT_EQ(File("geral.pal"), "___ 10\nbom|dia 1\ncasa 10\nzebra 1\névora 1\n");
}

TEST_F(Vocabulary, CountsClassesInTheTextsAlone) {
    folder.Write("t.txt", "o gato xyz. o rato\n");
    folder.Write("lexicon", "o\tart\ngato\tn\nrato\tn\npato\tn\nsim\tadv\n");
    Make({"t.txt", "--weight=2", "--lexicon=" + (folder.Path() / "lexicon").string()});
    EXPECT_EQ(File("geral.pal"), "___ 4\ngato 2 n\no 4 art\npato 1 n\nrato 2 n\nsim 1 adv\nxyz 2\n");
    EXPECT_EQ(File("geral.cg"), "art 4\nn 4\n");
    EXPECT_EQ(File("geral.pcg"), "art n 4\n");
    EXPECT_THAT(report, HasSubstr("71 % of the words, 80 % of the running text"));
}

TEST_F(Vocabulary, LinksNoSentencesAcrossOneThatIsLeftOut) {
    folder.Write("t.txt", "Sim. Esta frase é comprida. Não.\n");
    Make({"t.txt", "--longest-sentence=5"});
    EXPECT_EQ(File("geral.frs"), "___ 1\nnão. 1\nsim. 1\n");
    EXPECT_EQ(File("geral.paf"), "___ sim. 1\n");
}

TEST_F(Vocabulary, WritesNothingBeyondWhatADictionaryHolds) {
    Text lexicon;
    for (int i = 0; i <= 250'000; ++i)
        lexicon += "p" + std::to_string(i) + "\n";
    folder.Write("lexicon", lexicon);
    const auto text = folder.Write("t.txt", "um\n").string();
    const auto ran = RunTool(kVocabularyCommand, {text, "--out", folder.Path().string(), "--lexicon",
                                                  (folder.Path() / "lexicon").string()});
    EXPECT_EQ(ran.code, 1);
    EXPECT_THAT(ran.problems, HasSubstr("250000"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "geral.pal"));
}

Ran Judge(TextView text, std::vector<std::string> options) {
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
