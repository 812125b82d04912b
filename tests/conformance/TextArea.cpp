#include "prediction/BestSelection.h"
#include "tests/conformance/Area.h"
#include "text/CaseFolding.h"
#include "text/Classes.h"
#include "text/NormalForm.h"

namespace ondrilo::conformance {
namespace {

Text NameOf(LearnedKind kind) {
    static const std::map<LearnedKind, Text> names{{LearnedKind::Sentence, "sentence"},
                                                   {LearnedKind::Terminators, "terminators"},
                                                   {LearnedKind::Words, "words"},
                                                   {LearnedKind::Nothing, ""}};
    return names.at(kind);
}

/// Splitting, classes and forms of texts.
class TextArea : public Area {
  public:
    explicit TextArea(const std::filesystem::path&) {
        On("split", [](const auto& a) { return Split(a.at(0)); });
        On("split_tokens", [](const auto& a) { return SplitTokens(a.at(0)); });
        On("collapse", [](const auto& a) { return CollapseWhiteSpace(a.at(0)); });
        On("normalize", [](const auto& a) { return NormalizeSentence(a.at(0)); });
        On("lower", [](const auto& a) { return MakeLower(a.at(0)); });
        On("remainder", [](const auto& a) { return GetRemainder(a.at(0), a.at(1)); });
        On("classes", [](const auto& a) {
            return NumbersOf(IsSingleWord(a.at(0)), IsSentence(a.at(0)), IsWordSequence(a.at(0)));
        });
        On("learned_kind", [](const auto& a) { return NameOf(LearnedKindOf(a.at(0))); });
        On("pictograms",
           [](const auto& a) { return NumbersOf(IsAllPictograms(a.at(0)), HasNoPictograms(a.at(0))); });
        On("is_pictogram_token", [](const auto& a) { return IsPictogramToken(a.at(0)); });
        On("word_forms", [](const auto& a) { return WordForms(a.at(0), a.at(1)); });
        On("sentence_forms", [](const auto& a) { return SentenceForms(a.at(0)); });
    }
};

/// The choice of the best scores, with its rules for equal ones.
class SelectionArea : public Area {
  public:
    explicit SelectionArea(const std::filesystem::path&) {
        On("best", [](const auto& a) {
            std::vector<double> scores;
            for (std::size_t i = 2; i < a.size(); i += 2)
                scores.push_back(ToNumber<double>(a[i]));
            std::vector<SelectedScore> best;
            SelectBest(scores, a.Index(0), best);
            Values values;
            for (const auto& [score, index] : best)
                Append(values, {a.at(1 + 2 * index), Real(score)});
            return values;
        });
    }
};

} // namespace

const AreaMaker kTextArea = Make<TextArea>;
const AreaMaker kSelectionArea = Make<SelectionArea>;

} // namespace ondrilo::conformance
