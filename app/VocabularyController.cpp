#include "app/VocabularyController.h"

#include "prediction/VocabularyLists.h"

namespace ondrilo {

VocabularyController::VocabularyController(const Environment& environment, CUserProfileSet& profiles,
                                           Predictions& predictions, PredictionCycle& cycle)
    : boxes(environment.boxes), dialogs(environment.dialogs), profiles(profiles), predictions(predictions),
      cycle(cycle) {
}

void VocabularyController::EditWords() {
    WordList words(Dictionary());
    Edit(words, {[this] {
                     auto pairs = Dictionary().SaveUserWordPairs();
                     return pairs ? Dictionary().SaveUserWords() : pairs;
                 },
                 [this] {
                     return Dictionary().ReloadWords();
                 }});
}

void VocabularyController::EditSentences() {
    SentenceList sentences(Dictionary());
    Edit(sentences, {[this] {
                         auto pairs = Dictionary().SaveUserSentencePairs();
                         return pairs ? Dictionary().SaveUserSentences() : pairs;
                     },
                     [this] {
                         return Dictionary().ReloadSentences();
                     }});
}

void VocabularyController::EditAbbreviations() {
    auto& set = Dictionary().abbreviations;
    AbbreviationList abbreviations(set);
    if (!IsDone(set.Save()))
        return;
    if (dialogs.EditEntries(abbreviations))
        (void)IsDone(set.Save());
    else
        set.Reload();
}

void VocabularyController::Edit(EntryList& entries, const Files& files) {
    // What could not be saved is in memory alone: to read the files again would lose it.
    if (!IsDone(files.save()) || (dialogs.EditEntries(entries) && !IsDone(files.save())))
        return;
    for (const auto& message : files.reload())
        boxes.Show(message);
    predictions.ClearResults();
    cycle.RunPrediction();
}

bool VocabularyController::IsDone(const SaveResult& saved) {
    if (!saved)
        boxes.Show(saved.problem);
    return bool(saved);
}

} // namespace ondrilo
