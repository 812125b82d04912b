#pragma once

#include "app/PredictionKeyLists.h"
#include "app/Predictions.h"
#include "app/SpecialKeys.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Writes words and sentences on their keys, page by page, and gives them hot keys in the order in which the
/// keys stand on the screen.
class TextPredictionKeys {
  public:
    TextPredictionKeys(COnScreenKeyboard& keyboard, PredictionKeyLists& lists, const Predictions& predictions,
                       const SpecialKeys& specialKeys, const CUserProfileSet& profiles);

    /// The first page.
    void ShowTextPredictions();
    /// The next page; after the last the first again.
    void ShowNextTextPredictions();
    void ClearWordKeys();
    void ClearSentenceKeys();

    /// The key that a hot key (by its index) stands for now.
    [[nodiscard]] std::optional<COnScreenKeyIdentifier> KeyOfHotKey(int index) const;
    void ClearHotKeys() { hotKeyMap.clear(); }

    /// What a key's position stands for on the present page; empty if nothing.
    [[nodiscard]] Text WordAt(int position) const;
    [[nodiscard]] Text SentenceAt(int position) const;

  private:
    void DistributeTextPredictions();
    void Place(PredictionKeyList& list, const Tokens& texts, int& position);
    void Clear(const PredictionKeyList& list);

    COnScreenKeyboard& keyboard;
    PredictionKeyLists& lists;
    const Predictions& predictions;
    const SpecialKeys& specialKeys;
    const CUserProfileSet& profiles;
    KeyIdentifiers hotKeyMap; // the entry of an index is the key of that hot key
};

} // namespace ondrilo
