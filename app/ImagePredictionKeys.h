#pragma once

#include "app/PredictionKeyLists.h"
#include "app/Predictions.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Writes pictograms on their prediction keys, page by page. What is on show anyway is passed over.
class ImagePredictionKeys {
  public:
    ImagePredictionKeys(COnScreenKeyboard& keyboard, PredictionKeyLists& lists,
                        const Predictions& predictions, const CUserProfileSet& profiles);

    /// The first page.
    void ShowImagePredictions();
    /// The next page; after the last the first again.
    void ShowNextImagePredictions();
    void ClearImageKeys();
    void ClearImageSentenceKeys();

  private:
    void PlaceImages();
    void PlaceImageSentences();
    void Write(COnScreenKeyIdentifier key, const COnScreenKeyData& content);
    void Clear(const PredictionKeyList& list);
    [[nodiscard]] bool IsOnShow(TextView description) const;

    COnScreenKeyboard& keyboard;
    PredictionKeyLists& lists;
    const Predictions& predictions;
    const CUserProfileSet& profiles;
};

} // namespace ondrilo
