#pragma once

#include "platform/Geometry.h"
#include "platform/Measure.h"
#include "text/Splitter.h"

#include <vector>

/// Lists of pictograms in labels and outputs: tokens joined by ":", each a ".bmp" (in any case) named
/// relative to the data folder. A label may hold a caption beside them.
namespace ondrilo {

/// Most pictograms that one label holds.
inline constexpr std::size_t kMaximumPictograms = 50;

[[nodiscard]] bool IsPictogramFile(TextView token);
/// The pictograms of a text, at most kMaximumPictograms.
[[nodiscard]] Tokens PictogramsOf(TextView text);
[[nodiscard]] int CountPictograms(TextView text);
[[nodiscard]] bool HasPictograms(TextView text);

/// Pictograms side by side in one picture, in picture pixels. The picture is as tall as its tallest part; a
/// lower part grows by whole factors in its width, so a 40-high one beside a 100-high one is twice as wide.
struct JoinedPicture {
    Size size;
    std::vector<Rectangle> places; ///< one for each part
    [[nodiscard]] bool IsLoaded() const { return !places.empty(); }
};
[[nodiscard]] JoinedPicture JoinPictures(const std::vector<Size>& parts);

/// The joined picture of those pictograms of `label` that load.
[[nodiscard]] JoinedPicture MeasurePictograms(TextView label, const PictureMeasure& pictures);

} // namespace ondrilo
