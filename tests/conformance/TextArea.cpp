#include "tests/conformance/TextArea.h"

#include "text/CaseFolding.h"
#include "text/Classes.h"
#include "text/NormalForm.h"

namespace ondrilo::conformance {
namespace {

Text NameOf(LearnedKind kind) {
    switch (kind) {
    case LearnedKind::Sentence:
        return "sentence";
    case LearnedKind::Terminators:
        return "terminators";
    case LearnedKind::Words:
        return "words";
    case LearnedKind::Nothing:
        break;
    }
    return "";
}

} // namespace

TextArea::TextArea(const std::filesystem::path&) {
    On("split", [](const Arguments& a) { return Split(a.at(0)); });
    On("split_tokens", [](const Arguments& a) { return SplitTokens(a.at(0)); });
    On("collapse", [](const Arguments& a) { return Values{CollapseWhiteSpace(a.at(0))}; });
    On("normalize", [](const Arguments& a) { return Values{NormalizeSentence(a.at(0))}; });
    On("lower", [](const Arguments& a) { return Values{MakeLower(a.at(0))}; });
    On("remainder", [](const Arguments& a) { return Values{GetRemainder(a.at(0), a.at(1))}; });
    On("classes", [](const Arguments& a) {
        return Values{Flag(IsSingleWord(a.at(0))), Flag(IsSentence(a.at(0))), Flag(IsWordSequence(a.at(0)))};
    });
    On("learned_kind", [](const Arguments& a) { return Values{NameOf(LearnedKindOf(a.at(0)))}; });
    On("pictograms", [](const Arguments& a) {
        return Values{Flag(IsAllPictograms(a.at(0))), Flag(HasNoPictograms(a.at(0)))};
    });
    On("is_pictogram_token", [](const Arguments& a) { return Values{Flag(IsPictogramToken(a.at(0)))}; });
    On("word_forms", [](const Arguments& a) { return WordForms(a.at(0), a.at(1)); });
    On("sentence_forms", [](const Arguments& a) { return SentenceForms(a.at(0)); });
}

} // namespace ondrilo::conformance
