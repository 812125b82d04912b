#include "prediction/ResultFilter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
