#pragma once

#include "app/ImagePredictionKeys.h"
#include "app/TextPredictionKeys.h"

namespace ondrilo {

/// All prediction keys of the keyboard on show: which they are, and what stands on them.
class PredictionKeys {
  public:
    PredictionKeys(COnScreenKeyboard& keyboard, const Predictions& predictions,
                   const SpecialKeys& specialKeys, const CUserProfileSet& profiles);

    /// Finds the keys of the keyboard that was opened and tells those with text how long it gets. To be
    /// followed by a layout.
    void BindPredictionKeys();
    /// Forgets the keys, before the keyboard goes.
    void Unbind();
    /// First page of everything, from the last results.
    void Show();
    void ShowNext();
    void ClearTexts();
    void ClearAll();

    PredictionKeyLists lists;
    TextPredictionKeys text;
    ImagePredictionKeys images;

  private:
    COnScreenKeyboard& keyboard;
    const CUserProfileSet& profiles;
};

} // namespace ondrilo
