#include "keyboards/Pictograms.h"

#include "text/CaseFolding.h"

#include <algorithm>
#include <cstdint>

namespace ondrilo {
namespace {

/// No wider than a bitmap can be; keeps sums over damaged files within an int.
constexpr std::int64_t kWidest = 32767;

} // namespace

bool IsPictogramFile(TextView token) {
    return token.size() >= 4 && MakeLower(token.substr(token.size() - 4)) == ".bmp";
}

Tokens PictogramsOf(TextView text) {
    Tokens tokens = Split(text, ":", kAllTokens);
    std::erase_if(tokens, [](const Text& token) { return !IsPictogramFile(token); });
    if (tokens.size() > kMaximumPictograms)
        tokens.resize(kMaximumPictograms);
    return tokens;
}

int CountPictograms(TextView text) {
    const Tokens tokens = Split(text, ":", kAllTokens);
    return static_cast<int>(std::count_if(tokens.begin(), tokens.end(), IsPictogramFile));
}

bool HasPictograms(TextView text) {
    return CountPictograms(text) > 0;
}

JoinedPicture JoinPictures(const std::vector<Size>& parts) {
    JoinedPicture joined;
    for (const Size part : parts)
        joined.size.height = std::max(joined.size.height, part.height);
    for (const Size part : parts) {
        const std::int64_t factor = joined.size.height / part.height;
        const int width = static_cast<int>(std::min(factor * part.width, kWidest));
        joined.places.push_back({joined.size.width, 0, width, joined.size.height});
        joined.size.width += width;
    }
    return joined;
}

JoinedPicture MeasurePictograms(TextView label, const PictureMeasure& pictures) {
    std::vector<Size> parts;
    for (const auto& pictogram : PictogramsOf(label)) {
        const auto part = pictures.SizeOf(pictogram);
        if (part && part->width > 0 && part->height > 0)
            parts.push_back(*part);
    }
    return JoinPictures(parts);
}

} // namespace ondrilo
