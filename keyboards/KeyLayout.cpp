#include "keyboards/KeyLayout.h"

#include "keyboards/KeySymbol.h"
#include "keyboards/Pictograms.h"

#include <algorithm>
#include <cstdint>
#include <functional>

namespace ondrilo {
namespace {

/// A sentence key never becomes wider; it grows in height.
constexpr std::int64_t kMaximumSentenceWidth = 400;

/// The largest length that window systems take. Bounds what a broken profile or keyboard file asks for, so
/// that the sums over all keys stay within an int.
constexpr std::int64_t kLongest = 32767;

int Bounded(std::int64_t length) {
    return static_cast<int>(std::clamp(length, -kLongest, kLongest));
}

/// Settings whose lengths are bounded, and what follows from them.
struct Sizes {
    Sizes(const KeyboardSettings& settings, const KeyMeasures& measures)
        : keyHeight(Bounded(settings.keyHeight)), imageHeight(Bounded(settings.imageHeight)),
          keyMargin(Bounded(settings.keyMargin)), imageMargin(Bounded(settings.imageMargin)),
          sentenceKeyHeight(Bounded(settings.sentenceKeyHeight)),
          sentencePictograms(Bounded(settings.sentencePictograms)), measures(measures) {}

    std::int64_t keyHeight, imageHeight, keyMargin, imageMargin, sentenceKeyHeight, sentencePictograms;
    const KeyMeasures& measures;

    [[nodiscard]] std::int64_t TextWidth(int letters) const {
        return std::int64_t{Bounded(measures.charWidth)} * Bounded(letters) + 2 * keyMargin;
    }
    [[nodiscard]] std::int64_t SentenceHeight(int letters) const {
        if (sentenceKeyHeight != 0)
            return sentenceKeyHeight;
        const auto width = std::max<std::int64_t>(TextWidth(letters), 1);
        return measures.textHeight * (width / std::min(width, kMaximumSentenceWidth) + 1);
    }
    [[nodiscard]] std::int64_t EmptySide() const { return (imageHeight + keyHeight) / 6; }
    [[nodiscard]] std::int64_t ImageKeyHeight() const { return imageHeight + 2 * imageMargin; }
    [[nodiscard]] std::int64_t OutputWidth(const COnScreenKeyData& key) const {
        if (const auto* row = FindSymbolOutput(key.output))
            return row->halfHeights * keyHeight / 2;
        return measures.text.Width(measures.font, key.label) + 2 * keyMargin;
    }
};

std::int64_t NaturalHeight(const COnScreenKey& key, const JoinedPicture& picture, const Sizes& sizes) {
    switch (key.Type()) {
    case KeyType::Normal:
        return HasPictograms(key.data.label) && !picture.IsLoaded() ? 2 * sizes.keyMargin : sizes.keyHeight;
    case KeyType::Image:
        return picture.IsLoaded() ? sizes.ImageKeyHeight() : 2 * sizes.imageMargin;
    case KeyType::WordPrediction:
        return sizes.keyHeight;
    case KeyType::SentencePrediction:
        return sizes.SentenceHeight(key.letters);
    case KeyType::ImagePrediction:
    case KeyType::ImageSentencePrediction:
        return sizes.ImageKeyHeight();
    case KeyType::Empty:
        return sizes.EmptySide();
    case KeyType::Other:
        break;
    }
    return 2 * sizes.keyMargin;
}

std::int64_t NaturalWidth(const COnScreenKey& key, const JoinedPicture& picture, const Sizes& sizes) {
    switch (key.Type()) {
    case KeyType::Normal:
        return sizes.OutputWidth(key.data);
    case KeyType::Image:
        return picture.IsLoaded() ? sizes.imageHeight * picture.size.width / picture.size.height
                                  : 2 * sizes.imageMargin;
    case KeyType::WordPrediction:
        return sizes.TextWidth(key.letters);
    case KeyType::SentencePrediction:
        return std::min(sizes.TextWidth(key.letters), kMaximumSentenceWidth);
    case KeyType::ImagePrediction:
        return sizes.imageHeight;
    case KeyType::ImageSentencePrediction:
        return sizes.sentencePictograms * sizes.imageHeight + 2 * sizes.keyMargin;
    case KeyType::Empty:
        return sizes.EmptySide();
    case KeyType::Other:
        break;
    }
    return 2 * sizes.keyMargin;
}

/// Places the items from left to right along the top and gives the size that holds them.
template <typename Items>
Size PlaceInRow(Items& items, int gap) {
    Size row;
    for (auto& item : items) {
        if (&item != &items.front())
            row.width += gap;
        item.place.x = row.width;
        item.place.y = 0;
        row.width += item.place.width;
        row.height = std::max(row.height, item.place.height);
    }
    return row;
}

template <typename Item>
void SetSize(Item& item, Size size) {
    item.place.width = size.width;
    item.place.height = size.height;
}

void FitLine(COnScreenKeyLine& line, const KeyboardSettings& settings) {
    for (auto& group : line.groups)
        SetSize(group, PlaceInRow(group.keys, Bounded(settings.keyGap)));
    SetSize(line, PlaceInRow(line.groups, Bounded(settings.groupGap)));
}

/// The keys that grow with their line: all but the empty ones.
std::vector<std::reference_wrapper<COnScreenKey>> GrowingKeys(COnScreenKeyLine& line) {
    std::vector<std::reference_wrapper<COnScreenKey>> keys;
    for (auto& group : line.groups)
        for (auto& key : group.keys)
            if (key.Type() != KeyType::Empty)
                keys.emplace_back(key);
    return keys;
}

void SetKeyHeights(COnScreenKeyLine& line, int height, const KeyboardSettings& settings) {
    for (COnScreenKey& key : GrowingKeys(line))
        key.place.height = height;
    FitLine(line, settings);
}

void StretchLine(COnScreenKeyLine& line, int width, const KeyboardSettings& settings) {
    const auto keys = GrowingKeys(line);
    if (keys.empty())
        return;
    const int missing = width - line.place.width;
    const int count = static_cast<int>(keys.size());
    for (COnScreenKey& key : keys)
        key.place.width += missing / count;
    keys.front().get().place.width += missing % count;
    FitLine(line, settings);
}

int WidestLine(const std::vector<COnScreenKeyLine>& lines) {
    int widest = 0;
    for (const auto& line : lines)
        widest = std::max(widest, line.place.width);
    return widest;
}

/// Places the lines below one another and gives the size of the keyboard.
Size PlaceLines(std::vector<COnScreenKeyLine>& lines, int gap) {
    if (lines.empty())
        return {0, 2 * gap};
    int y = 0;
    for (auto& line : lines) {
        y += gap;
        line.place.x = 0;
        line.place.y = y;
        y += line.place.height;
    }
    return {WidestLine(lines), y + gap};
}

} // namespace

KeyMeasures MeasureKeys(const Font& font, const TextMeasure& text, const PictureMeasure& pictures) {
    return {font, Bounded(std::int64_t{text.AverageCharacterWidth(font)} * 3 / 2), text.LineHeight(font),
            text, pictures};
}

Size NaturalSize(const COnScreenKey& key, const KeyboardSettings& settings, const KeyMeasures& measures) {
    const Sizes sizes(settings, measures);
    const auto picture = MeasurePictograms(key.data.label, measures.pictures);
    return {Bounded(NaturalWidth(key, picture, sizes)), Bounded(NaturalHeight(key, picture, sizes))};
}

Size LayOutKeys(std::vector<COnScreenKeyLine>& lines, const KeyboardSettings& settings,
                const KeyMeasures& measures) {
    for (auto& line : lines) {
        for (auto& group : line.groups)
            for (auto& key : group.keys)
                SetSize(key, NaturalSize(key, settings, measures));
        FitLine(line, settings);
        SetKeyHeights(line, line.place.height, settings);
    }
    if (settings.stretchLines) {
        const int width = std::max(WidestLine(lines), settings.minimumWidth);
        for (auto& line : lines)
            StretchLine(line, width, settings);
    }
    if (settings.equalLineHeights) {
        int tallest = 0;
        for (const auto& line : lines)
            tallest = std::max(tallest, line.place.height);
        for (auto& line : lines)
            SetKeyHeights(line, tallest, settings);
    }
    return PlaceLines(lines, Bounded(settings.lineGap));
}

} // namespace ondrilo
