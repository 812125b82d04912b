#include "tests/conformance/LearningArea.h"

#include "tests/support/FakeTextSurface.h"

namespace ondrilo::conformance {

LearningArea::LearningArea(const std::filesystem::path& folder)
    : VocabularyArea(folder), profiles(DataFolder(folder), boxes, dialogs) {
    profiles.Load();
    profiles.Open(kGenericProfile);
    profiles.Active().properties.Set(option::ADAPTACAO_UTILIZADOR, 1);

    auto given = std::make_unique<GivenTarget>(std::make_unique<FakeTextSurface>(), keyboard, desktop, queue);
    target = given.get();
    targets.UseExternal(std::move(given));

    On("learn_word", [this](const Arguments& a) {
        target->unit = a.at(0);
        target->before = a.at(1);
        learning.LearnWord();
        return Values{};
    });
    On("learn_sentence", [this](const Arguments& a) {
        target->previous = a.at(0);
        target->before = a.at(1);
        learning.LearnSentence();
        return Values{};
    });
    On("learn_current_sentence", [this](const Arguments& a) {
        target->unit = a.at(0);
        target->previous = a.at(1);
        learning.LearnCurrentSentence();
        return Values{};
    });
}

} // namespace ondrilo::conformance
