#include "keyboards/COnScreenKeyData.h"

#include "keyboards/KeyboardFile.h"
#include "keyboards/Pictograms.h"
#include "text/LineReader.h"

#include <array>

namespace ondrilo {

void COnScreenKeyData::SetMixedLabel(TextView mixed) {
    Tokens pictograms;
    Tokens texts;
    for (auto& token : Split(mixed, ":", kAllTokens))
        (IsPictogramFile(token) ? pictograms : texts).push_back(std::move(token));

    if (pictograms.empty() || texts.empty()) {
        label = mixed;
        return;
    }
    label = Join(pictograms, ":");
    imageText = Replace(texts.back(), ";;;", " ");
}

Text COnScreenKeyData::ToHint() const {
    const Tokens words{type,
                       EncodeKeyboardText(label),
                       EncodeKeyboardText(imageText),
                       EncodeKeyboardText(description),
                       EncodeKeyboardText(output),
                       std::to_string(active),
                       std::to_string(backgroundColor),
                       std::to_string(textColor)};
    return Join(words, " ");
}

COnScreenKeyData COnScreenKeyData::FromHint(TextView hint) {
    COnScreenKeyData unreadable;
    unreadable.active = 0;

    FieldScanner fields(hint);
    std::array<TextView, 5> words;
    for (auto& word : words) {
        const auto next = fields.Word();
        if (!next)
            return unreadable;
        word = *next;
    }
    const auto active = fields.Integer();
    if (!active)
        return unreadable;

    COnScreenKeyData key;
    key.type = words[0];
    key.label = Replace(words[1], ";;;", " ");
    key.imageText = Replace(words[2], ";;;", " ");
    key.description = Replace(words[3], ";;;", " ");
    key.output = Replace(words[4], ";;;", " ");
    key.active = *active;
    const auto background = fields.Integer();
    const auto text = fields.Integer();
    if (background && text) {
        key.backgroundColor = *background;
        key.textColor = *text;
    }
    return key;
}

} // namespace ondrilo
