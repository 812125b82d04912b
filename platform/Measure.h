#pragma once

#include "platform/Geometry.h"
#include "text/Text.h"

#include <optional>

namespace ondrilo {

/// A font as the profile names it; size in points.
struct Font {
    Text name;
    int size = 10;
    bool operator==(const Font&) const = default;
};

/// Text measures in logical pixels.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    [[nodiscard]] virtual int Width(const Font& font, TextView text) const = 0;
    [[nodiscard]] virtual int AverageCharacterWidth(const Font& font) const = 0;
    [[nodiscard]] virtual int LineHeight(const Font& font) const = 0;
};

/// Sizes of pictogram files, in picture pixels; nothing for one that does not load.
class PictureMeasure {
  public:
    virtual ~PictureMeasure() = default;
    [[nodiscard]] virtual std::optional<Size> SizeOf(TextView pictogram) const = 0;
};

} // namespace ondrilo
