#include "app/KeySelection.h"

#include "keyboards/KeyOutputs.h"

namespace ondrilo {

KeySelection::KeySelection(const COnScreenKeyboard& keyboard, const PredictionKeys& keys,
                           const CKeySet& keySet, const SpecialKeys& specialKeys,
                           KeyboardController& keyboards, CommandController& commands,
                           SelectionController& selections, AbbreviationController& abbreviations)
    : keyboard(keyboard), keys(keys), keySet(keySet), specialKeys(specialKeys), keyboards(keyboards),
      commands(commands), selections(selections), abbreviations(abbreviations) {
}

void KeySelection::Select(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    // What a prediction happens to look like (an address that ends in ".com") gives it no other meaning.
    if (SelectPrediction(key, origin))
        return;
    const auto output = keyboard.Key(key).data.output;
    const auto kind = KindOfOutput(output);
    switch (kind) {
    case OutputKind::KeyboardLink:
        keyboards.FollowKeyboardLink(key, origin);
        return;
    case OutputKind::Program:
        commands.ExecuteProgram(key, origin);
        return;
    case OutputKind::Sequence:
        commands.ExecuteKeySequence(key, origin);
        return;
    case OutputKind::Command:
        commands.ExecuteCommand(key, origin);
        return;
    case OutputKind::Pictogram:
    case OutputKind::Text:
        break;
    }
    if (IsExpansionKey(output))
        abbreviations.Press(origin, key);
    else if (kind == OutputKind::Pictogram)
        selections.SelectPictogramKey(key, origin);
    else
        selections.SelectTextKey(key, origin);
}

bool KeySelection::SelectPrediction(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    if (keys.lists.images.PositionOf(key))
        selections.SelectPredictedImage(key, origin);
    else if (keys.lists.imageSentences.PositionOf(key))
        selections.SelectPredictedImageSentence(key, origin);
    else if (keys.lists.words.PositionOf(key))
        selections.SelectPredictedWord(key, origin);
    else if (keys.lists.sentences.PositionOf(key))
        selections.SelectPredictedSentence(key, origin);
    else
        return false;
    return true;
}

bool KeySelection::IsExpansionKey(TextView output) const {
    const auto code = keySet.GetCode(output);
    return code && *code == specialKeys.expansionKey;
}

} // namespace ondrilo
