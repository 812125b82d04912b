#pragma once

#include "platform/Measure.h"

#include <map>

namespace ondrilo {

/// Every character is 8 pixels wide, or 10 for the average; lines are 16 tall.
class FakeTextMeasure : public TextMeasure {
  public:
    [[nodiscard]] int Width(const Font&, TextView text) const override {
        return 8 * static_cast<int>(text.size());
    }
    [[nodiscard]] int AverageCharacterWidth(const Font&) const override { return averageWidth; }
    [[nodiscard]] int LineHeight(const Font&) const override { return 16; }

    int averageWidth = 10;
};

/// Pictograms load if a test gave them a size.
class FakePictureMeasure : public PictureMeasure {
  public:
    [[nodiscard]] std::optional<Size> SizeOf(TextView pictogram) const override {
        const auto found = sizes.find(Text(pictogram));
        return found == sizes.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<Text, Size> sizes;
};

} // namespace ondrilo
