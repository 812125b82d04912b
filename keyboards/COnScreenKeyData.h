#pragma once

#include "platform/Geometry.h"
#include "text/Text.h"

#include <cstdint>
#include <vector>

namespace ondrilo {

/// One key as a value, away from any keyboard.
struct COnScreenKeyData {
    Text type;               ///< word of the file, see KeyType.h
    Text label;              ///< a text, a list of pictograms, or "<Nenhum>" for the symbol of the output
    Text imageText;          ///< caption over the pictograms
    Text description;        ///< what the key is called: spoken, and searched for pictograms
    Text output;             ///< what the key does, see KeyOutputs.h
    std::int32_t active = 1; ///< 1: the key reacts and shows its content
    Color backgroundColor = kDefaultColor;
    Color textColor = kDefaultColor;

    bool operator==(const COnScreenKeyData&) const = default;

    /// Sets `label`; of one that mixes pictograms with texts, the pictograms only, and the last text becomes
    /// `imageText`.
    void SetMixedLabel(TextView mixed);

    /// One line of words, blanks inside a text as ";;;"; used between partners, not in keyboard files.
    [[nodiscard]] Text ToHint() const;
    /// Reads that line. Eight words fill all fields, six leave the colours at their defaults; anything else
    /// gives an inactive key without texts.
    static COnScreenKeyData FromHint(TextView hint);
};

struct COnScreenKeyGroupData {
    Text name;
    std::vector<COnScreenKeyData> keys;
    bool operator==(const COnScreenKeyGroupData&) const = default;
};

struct COnScreenKeyLineData {
    Text name;
    std::vector<COnScreenKeyGroupData> groups;
    bool operator==(const COnScreenKeyLineData&) const = default;
};

} // namespace ondrilo
