#pragma once

#include "keyboards/COnScreenKey.h"
#include "keyboards/KeyboardSettings.h"

namespace ondrilo {

/// The measures that natural sizes rest on.
struct KeyMeasures {
    Font font;
    int charWidth = 0;  ///< width kept free for each character of a text that is not known yet
    int textHeight = 0; ///< full line height of the font
    const TextMeasure& text;
    const PictureMeasure& pictures;
};
[[nodiscard]] KeyMeasures MeasureKeys(const Font& font, const TextMeasure& text,
                                      const PictureMeasure& pictures);

/// Natural size of a key, before its line grows.
[[nodiscard]] Size NaturalSize(const COnScreenKey& key, const KeyboardSettings& settings,
                               const KeyMeasures& measures);

/// Sizes and places all keys, groups and lines; gives the size of the keyboard. `settings` hold the heights
/// that apply to this keyboard.
Size LayOutKeys(std::vector<COnScreenKeyLine>& lines, const KeyboardSettings& settings,
                const KeyMeasures& measures);

} // namespace ondrilo
