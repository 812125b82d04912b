#pragma once

#include "app/Environment.h"
#include "app/PredictionCycle.h"

#include <functional>

namespace ondrilo {

/// Lets the person see and change what the active profile knows: its own words, sentences and abbreviations.
class VocabularyController {
  public:
    VocabularyController(const Environment& environment, CUserProfileSet& profiles, Predictions& predictions,
                         PredictionCycle& cycle);

    void EditWords();
    void EditSentences();
    void EditAbbreviations();

  private:
    struct Files {
        std::function<SaveResult()> save;
        std::function<std::vector<Text>()> reload;
    };
    /// A problem is told.
    [[nodiscard]] bool IsDone(const SaveResult& saved);
    void Edit(EntryList& entries, const Files& files);
    [[nodiscard]] CDictionary& Dictionary() { return profiles.Active().dictionary; }

    MessageBoxes& boxes;
    Dialogs& dialogs;
    CUserProfileSet& profiles;
    Predictions& predictions;
    PredictionCycle& cycle;
};

} // namespace ondrilo
