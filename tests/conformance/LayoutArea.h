#pragma once

#include "keyboards/COnScreenKey.h"
#include "keyboards/KeyboardSettings.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// Sizes and places of keys, with measures of its own for texts and pictures.
class LayoutArea : public Area {
  public:
    explicit LayoutArea(const std::filesystem::path& folder);

  private:
    class ByteWidths : public TextMeasure {
      public:
        [[nodiscard]] int Width(const Font& font, TextView text) const override;
        [[nodiscard]] int AverageCharacterWidth(const Font&) const override { return charWidth; }
        [[nodiscard]] int LineHeight(const Font&) const override { return textHeight; }

        int charWidth = 0;
        int textHeight = 0;
    };
    class GivenPictures : public PictureMeasure {
      public:
        [[nodiscard]] std::optional<Size> SizeOf(TextView pictogram) const override;

        std::map<Text, Size, std::less<>> sizes;
    };

    void Set(const Text& setting, int value);
    [[nodiscard]] Values LayOut(const std::filesystem::path& file);

    KeyboardSettings settings;
    int wordLetters = 0;
    int sentenceLetters = 0;
    ByteWidths text;
    GivenPictures pictures;
    std::vector<COnScreenKeyLine> lines;
};

} // namespace ondrilo::conformance
