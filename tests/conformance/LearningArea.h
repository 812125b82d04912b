#pragma once

#include "app/LearningController.h"
#include "tests/conformance/VocabularyArea.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeKeyOutput.h"

namespace ondrilo::conformance {

/// A dictionary, and a session's steps of learning into it.
class LearningArea : public VocabularyArea {
  public:
    explicit LearningArea(const std::filesystem::path& folder);

  protected:
    CDictionary& Dictionary() override { return profiles.Active().dictionary; }

  private:
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

    SilentBoxes boxes;
    FakeDialogs dialogs;
    CUserProfileSet profiles;
    FakeKeyOutput keys;
    CKeyboard keyboard{keys};
    FakeDesktop desktop;
    MessageQueue queue;
    Targets targets;
    GivenTarget* target = nullptr;
    LearningController learning{profiles, targets};
};

} // namespace ondrilo::conformance
