#pragma once

#include "app/AbbreviationController.h"
#include "app/CommandController.h"
#include "app/SelectionController.h"
#include "app/SpecialKeys.h"

namespace ondrilo {

/// Finds out what a selected key is for, by mouse or by scanning, and has it done.
class KeySelection {
  public:
    KeySelection(const COnScreenKeyboard& keyboard, const PredictionKeys& keys, const CKeySet& keySet,
                 const SpecialKeys& specialKeys, KeyboardController& keyboards, CommandController& commands,
                 SelectionController& selections, AbbreviationController& abbreviations);

    void Select(COnScreenKeyIdentifier key, const ActionOrigin& origin);

  private:
    /// True if the key is one that predictions stand on.
    bool SelectPrediction(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    [[nodiscard]] bool IsExpansionKey(TextView output) const;

    const COnScreenKeyboard& keyboard;
    const PredictionKeys& keys;
    const CKeySet& keySet;
    const SpecialKeys& specialKeys;
    KeyboardController& keyboards;
    CommandController& commands;
    SelectionController& selections;
    AbbreviationController& abbreviations;
};

} // namespace ondrilo
