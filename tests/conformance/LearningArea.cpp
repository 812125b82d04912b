#include "app/LearningController.h"
#include "tests/conformance/VocabularyArea.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeKeyOutput.h"

namespace ondrilo::conformance {
namespace {

/// A target that answers what a query says.
class GivenTarget : public CInternalWordProcessor {
  public:
    using CInternalWordProcessor::CInternalWordProcessor;
    [[nodiscard]] Text GetLabelledPreviousWord() const override { return unit; }
    [[nodiscard]] Text GetLabelledSecondPreviousWord() const override { return before; }
    [[nodiscard]] Text GetLabelledSentence() const override { return unit; }
    [[nodiscard]] Text GetLabelledPreviousSentence() const override { return previous; }
    [[nodiscard]] Text GetLabelledSecondPreviousSentence() const override { return before; }

    Text unit, previous, before;
};

class SilentBoxes : public MessageBoxes {
  public:
    void Show(TextView) override {}
    [[nodiscard]] ondrilo::Answer AskYesNo(TextView, ondrilo::Answer preselected) override {
        return preselected;
    }
    [[nodiscard]] ondrilo::Answer AskYesNoCancel(TextView) override { return ondrilo::Answer::Cancel; }
};

/// A dictionary, and a session's steps of learning into it.
class LearningArea : public VocabularyArea {
  public:
    explicit LearningArea(const std::filesystem::path& folder)
        : VocabularyArea(folder), profiles(DataFolder(folder), boxes, dialogs) {
        profiles.Load();
        profiles.Open(kGenericProfile);
        profiles.Active().properties.Set(option::ADAPTACAO_UTILIZADOR, 1);

        auto given =
            std::make_unique<GivenTarget>(std::make_unique<FakeTextSurface>(), keyboard, desktop, queue);
        auto& target = *given;
        targets.UseExternal(std::move(given));

        On("learn_word", [this, &target](const auto& a) {
            target.unit = a.at(0);
            target.before = a.at(1);
            learning.LearnWord();
        });
        On("learn_sentence", [this, &target](const auto& a) {
            target.previous = a.at(0);
            target.before = a.at(1);
            learning.LearnSentence();
        });
        On("learn_current_sentence", [this, &target](const auto& a) {
            target.unit = a.at(0);
            target.previous = a.at(1);
            learning.LearnCurrentSentence();
        });
    }

  protected:
    CDictionary& Dictionary() override { return profiles.Active().dictionary; }

  private:
    SilentBoxes boxes;
    FakeDialogs dialogs;
    CUserProfileSet profiles;
    FakeKeyOutput keys;
    CKeyboard keyboard{keys};
    FakeDesktop desktop;
    MessageQueue queue;
    Targets targets;
    LearningController learning{profiles, targets};
};

} // namespace

const AreaMaker kLearningArea = Make<LearningArea>;

} // namespace ondrilo::conformance
