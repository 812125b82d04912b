#include "prediction/BestSelection.h"
#include "prediction/CSentencePredictor.h"
#include "prediction/CWordPredictor.h"
#include "prediction/ResultFilter.h"
#include "profiles/CUserProfileProperties.h"
#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Prediction : public DictionaryFolder {
  protected:
    Prediction() { SetCoefficients(1, 1, 1, 1, 0); }

    void SetCoefficients(int word, int userWord, int pair, int userPair, int wordClass) {
        profile.Set(option::COEFICIENTE_FREQUENCIA_PALAVRA, word);
        profile.Set(option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR, userWord);
        profile.Set(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS, pair);
        profile.Set(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR, userPair);
        profile.Set(option::COEFICIENTE_CLASSE_PALAVRA, wordClass);
    }
    Tokens Words(TextView previous, TextView prefix, std::size_t n = 100) {
        predictor.Predict(dictionary, profile, previous, prefix);
        (void)predictor.BestWords(n, words);
        return Texts(words);
    }
    Tokens WordForms(TextView previous, const Tokens& forms) {
        predictor.PredictForms(dictionary, profile, previous, forms);
        (void)predictor.BestWords(100, words);
        return Texts(words);
    }
    Tokens SentenceForms(TextView previous, const Tokens& forms) {
        sentencePredictor.PredictForms(dictionary, profile, previous, forms);
        (void)sentencePredictor.BestSentences(100, sentences);
        return Texts(sentences);
    }
    static Tokens Texts(const std::vector<DictionaryScore>& scores) {
        Tokens texts;
        for (const auto& [text, score] : scores)
            texts.emplace_back(text);
        return texts;
    }

    CUserProfileProperties profile;
    CWordPredictor predictor;
    CSentencePredictor sentencePredictor;
    CDictionaryWordScoreSet words;
    CDictionarySentenceScoreSet sentences;
};

TEST_F(Prediction, AScoreIsTheShareOfTheWordPlusTheProbabilityOfThePair) {
    Load({{"geral.pal", "q 100\nresto 880\nw 20\nwx 0\n"}, {"geral.par", "q resto 496\nq w 4\n"}});
    SetCoefficients(5, 0, 10, 0, 0);
    EXPECT_THAT(Words("Q", "W"), ElementsAre("wx"));
    EXPECT_THAT(Words("q", ""), ElementsAre("resto", "w"));
    EXPECT_EQ(words[1].score, 5 * 0.02 + 10 * (0.008 / 0.1));
}

TEST_F(Prediction, UserCountersWeighApartFromGeneralOnes) {
    Load({{"geral.pal", "a 10\npa 5\npb 5\n"},
          {"geral.par", "a pa 1\n"},
          {"ana.pal", "a 1\npb 3\n"},
          {"ana.par", "a pb 2\n"}});
    SetCoefficients(0, 1, 0, 2, 0);
    EXPECT_THAT(Words("a", "p"), ElementsAre("pb", "pa"));
    EXPECT_EQ(words[0].score, 0.75 + 2 * (1.0 / 0.25));
    EXPECT_EQ(words[1].score, 0);
}

TEST_F(Prediction, WithoutCountsNothingIsDividedAndEqualWordsComeInDescendingOrder) {
    Load({{"geral.pal", "pa 0\npb 0\npc 0\n"}, {"geral.par", "pa pb 3\n"}});
    EXPECT_THAT(Words("pa", "p"), ElementsAre("pc", "pb", "pa"))
        << "a first word without frequency adds nothing";
    EXPECT_THAT(Words("desconhecida", "p"), ElementsAre("pc", "pb", "pa"));
    EXPECT_THAT(Words("pa", "p", 2), ElementsAre("pb", "pa")) << "an equal score displaces nothing";
    EXPECT_EQ(predictor.BestWords(100, words), 3U) << "the results may be read again";
    EXPECT_THAT(Words("pa", "p", 0), IsEmpty());
    EXPECT_THAT(Words("", ""), IsEmpty());
    EXPECT_THAT(Words("desconhecida", ""), IsEmpty());
}

TEST_F(Prediction, TheClassOfTheWordBeforeWeighsTheClassOfTheCandidate) {
    Load({{"geral.pal", "a 0 DET\npa 0 V\npb 0 N\npc 0 X\npd 0\n"},
          {"geral.cg", "DET 20\nN 60\nV 20\n"},
          {"geral.pcg", "DET N 30\nDET V 10\nN V 60\nDET LONGE 0\n"}});
    SetCoefficients(0, 0, 0, 0, 3);
    EXPECT_THAT(Words("a", "p"), ElementsAre("pb", "pa", "pd", "pc"));
    EXPECT_EQ(words[0].score, 3 * (0.3 / 0.2));
    EXPECT_EQ(words[2].score, 0);
    EXPECT_THAT(Words("pd", "p"), ElementsAre("pd", "pc", "pb", "pa")) << "without a class before, no step";
}

TEST_F(Prediction, WithoutClassTablesScoresAreNoNumbersAndKeepTheirOrder) {
    Load({{"geral.pal", "a 1 DET\npa 1 V\npb 9\npc 5 V\n"}});
    EXPECT_THAT(Words("a", "p"), ElementsAre("pa", "pb", "pc")) << "even with a weight of 0";
    EXPECT_TRUE(std::isnan(words[0].score));
    EXPECT_THAT(Words("a", "p", 2), ElementsAre("pa", "pb"));
}

TEST_F(Prediction, FormsAddUpAndAnEmptyOneStandsForTheSuccessorsOfTheWordBefore) {
    Load({{"geral.pal", "[bom|dia] 3\na 1\nbom 2\nbomba 1\nc 1\n"}, {"geral.par", "a c 1\n"}});
    EXPECT_THAT(WordForms("a", {"Bo", "[bo"}), ElementsAre("[bom dia]", "bom", "bomba"));
    EXPECT_THAT(WordForms("a", {"", "bomb"}), ElementsAre("c", "bomba"));
    EXPECT_THAT(WordForms("", {"", "bomb"}), ElementsAre("bomba"));
    EXPECT_THAT(WordForms("a", {"", ""}), ElementsAre("c"));
    EXPECT_THAT(WordForms("a", {}), ElementsAre("c"));
    EXPECT_THAT(WordForms("c", {"bom", "bom"}), ElementsAre("bomba", "bomba")) << "doubles stay";
}

TEST_F(Prediction, PairsWithThePersonsOwnWordsCountAmongGeneralOnes) {
    Load({{"geral.pal", "a 10\npa 1\npc 1\n"}, {"geral.par", "a pa 1\na pc 2\n"}});
    dictionary.AddUserWord("a");
    dictionary.AddUserWord("pb");
    dictionary.AddUserWordPair("a", "pb");
    SetCoefficients(0, 0, 0, 1, 0);
    EXPECT_THAT(Words("a", "p"), ElementsAre("pb", "pc", "pa"));
    EXPECT_EQ(words[0].score, 2);
    EXPECT_THAT(Words("a", ""), ElementsAre("pb", "pc", "pa"));
}

TEST_F(Prediction, OfARepeatedPairTheFirstCountsAndPairsInDisorderAreSearchedAsTheyStand) {
    Load({{"geral.pal", "a 1\npa 1\npb 1\npc 1\n"}, {"geral.par", "a pa 7\na pa 1\n"}});
    SetCoefficients(0, 0, 1, 0, 0);
    (void)Words("a", "pa", 1);
    (void)Words("a", "p", 1);
    EXPECT_EQ(words[0].score, 7.0 / 8 / 0.25);

    // The search in the middle turns away from "pb" and "pa" and finds only "pc".
    Load({{"geral.par", "a pb 4\na pa 2\na pc 2\n"}});
    EXPECT_THAT(Words("a", "p"), ElementsAre("pc", "pb", "pa"));
    EXPECT_EQ(words[0].score, 2.0 / 8 / 0.25);
    EXPECT_EQ(words[1].score, 0);
}

TEST_F(Prediction, MoreCandidatesThanTheScoresHoldAreRefused) {
    Text lines;
    for (int i = 0; i < 100'001; ++i)
        lines += "w" + std::to_string(100'000 + i) + " 1\n";
    Load({{"geral.pal", lines}});
    EXPECT_THROW((void)Words("", "w"), std::invalid_argument);
    EXPECT_EQ(predictor.BestWords(100, words), 0U);
    EXPECT_THROW((void)WordForms("", {"w1", "w2", "w1"}), std::invalid_argument);
    EXPECT_EQ(Words("", "w1").size(), 100U);
}

TEST_F(Prediction, ASentenceIsNormalisedAndAnEmptyFormAmongOthersGivesNothing) {
    Load({{"geral.frs", "[quero]|[água] 2\n___ 1\nbom|dia. 1\nquero|água. 4\nquero|água.|já. 1\n"_w},
          {"geral.paf", "___ bom|dia. 3\nbom|dia. quero|água. 1\n"_w}});
    EXPECT_THAT(SentenceForms("___", {}), ElementsAre("bom dia."));
    EXPECT_THAT(SentenceForms("___", {""}), ElementsAre("bom dia."));
    EXPECT_THAT(SentenceForms("BOM  dia.", {"Quero", "[quero", ""}),
                ElementsAre("quero água."_w, "[quero] [água]"_w, "quero água. já."_w));
    const double share = 4.0 / 9;
    EXPECT_EQ(sentences[0].score, share + (1.0 / 4) / (1.0 / 9));
    EXPECT_THAT(SentenceForms("", {Text("quero água."_w)}), ElementsAre("quero água. já."_w));
    sentencePredictor.Predict(dictionary, profile, "bom dia.", "");
    EXPECT_EQ(sentencePredictor.BestSentences(1, sentences), 1U);
}

TEST_F(Prediction, OnePredictorServesOneDictionaryAfterAnother) {
    Load({{"geral.pal", "a 1\npa 1\npb 1\n"}, {"geral.par", "a pa 1\n"}});
    EXPECT_THAT(Words("a", "p"), ElementsAre("pa", "pb"));
    CDictionary other;
    other.AddUserWord("a");
    other.AddUserWord("pb");
    other.AddUserWord("pa");
    predictor.Predict(other, profile, "a", "p");
    EXPECT_EQ(predictor.BestWords(100, words), 2U);
    EXPECT_THAT(Texts(words), ElementsAre("pb", "pa")) << "no pair of the first dictionary is left";
}

TEST(BestSelection, OfEqualScoresTheLaterComesFirstUntilTheListIsFullAndNoNumbersGoToTheTail) {
    constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
    const struct {
        std::vector<double> scores;
        std::size_t n;
        std::vector<std::uint32_t> expected;
    } rows[] = {
        {{1, 1, 1, 1}, 3, {2, 1, 0}},
        {{1, 2, 1, 2, 2}, 3, {4, 3, 1}},
        {{3, 1, 3}, 1, {0}},
        {{1, 3, 2, 3, 1, 2, 4}, 4, {6, 3, 1, 5}},
        {{1, 2}, 0, {}},
        {{}, 5, {}},
        {{kNoNumber, 1, kNoNumber, 2}, 4, {0, 3, 1, 2}},
        {{kNoNumber, kNoNumber, 5}, 2, {0, 1}}, // nothing is above no number either
    };
    for (const auto& [scores, n, expected] : rows) {
        std::vector<SelectedScore> best;
        SelectBest(scores, n, best);
        std::vector<std::uint32_t> indexes;
        for (const auto& selected : best)
            indexes.push_back(selected.index);
        EXPECT_EQ(indexes, expected) << testing::PrintToString(scores);
    }
}

std::vector<DictionaryScore> Best(std::initializer_list<TextView> texts) {
    std::vector<DictionaryScore> best;
    for (const TextView text : texts)
        best.push_back({text, 0});
    return best;
}

TEST(ResultFilter, KeepsSingleWordsUpToTheLimitAndPictogramWordsOfAnyLength) {
    const auto kept = FilterWords(
        Best({"bom dia", "casa", "casas", "olá."_w, "guarda", "[bom dia]", "[bom  dia]", "[casa"}),
        {{}, {}, 5});
    EXPECT_THAT(kept.plain, ElementsAre("casa", "casas", "[casa"));
    EXPECT_THAT(kept.pictograms, ElementsAre("[bom dia]"));
}

TEST(ResultFilter, LeavesOutUnwantedLettersAndSequences) {
    const auto kept =
        FilterWords(Best({"ama", "maca", "taça"_w, "[xis]", "rua", "cama"}), {"xç"_w, "ac, am", 20});
    EXPECT_THAT(kept.plain, ElementsAre("rua"));
    EXPECT_THAT(kept.pictograms, IsEmpty());
    EXPECT_THAT(FilterWords(Best({"ama"}), {{}, " . ", 20}).plain, ElementsAre("ama"));
}

TEST(ResultFilter, KeepsSentencesOfWordsOrOfPictogramsAndOfTheseEachWordingOnce) {
    const auto kept = FilterSentences(
        Best({"[bom dia]", "[bom] [dia]", "eu [vou]", "vou já."_w, "vou agora mesmo.", "?!"}), {{}, {}, 8});
    EXPECT_THAT(kept.plain, ElementsAre("vou já."_w));
    EXPECT_THAT(kept.pictograms, ElementsAre("[bom dia]", "?!"));
}

TEST(ResultFilter, ANegativeLimitKeepsNoPlainText) {
    EXPECT_THAT(FilterWords(Best({"a", "[a]"}), {{}, {}, -1}).plain, IsEmpty());
    EXPECT_THAT(FilterSentences(Best({"a", "[a]"}), {{}, {}, -1}).pictograms, ElementsAre("[a]"));
}

} // namespace
} // namespace ondrilo
