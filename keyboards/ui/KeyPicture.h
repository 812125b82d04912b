#pragma once

#include "platform/qt/QtPictures.h"

namespace ondrilo {

/// The pictograms of a key's label side by side in one picture, in picture pixels; one that does not load is
/// left out. Null if none is there. Reads files: to be called when the label changes, never while painting.
[[nodiscard]] QImage LoadKeyPicture(TextView label, const QtPictures& source);

} // namespace ondrilo
