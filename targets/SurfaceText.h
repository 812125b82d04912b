#pragma once

#include "targets/TextContext.h"
#include "targets/TextSurface.h"

#include <vector>

namespace ondrilo {

/// The label with that number; empty for a picture that has none yet.
[[nodiscard]] TextView LabelAt(const std::vector<Text>& labels, int index);

/// The text of a box as the queries tell it: "\r\n" for each line break and, in front of each picture's
/// blank, the picture's label. It knows where each position of the box lies in that text.
class SurfaceText {
  public:
    SurfaceText(const TextSurface& surface, const std::vector<Text>& labels);

    /// The told text around the box's insertion point.
    [[nodiscard]] TextContext Context() const { return {text, offsets[cursor]}; }
    [[nodiscard]] const Text& WholeText() const { return text; }
    /// The first position of the box at or after the place `length` told characters right of the insertion
    /// point: a label counts to the end of its picture, a line break as a whole.
    [[nodiscard]] int PositionRight(std::size_t length) const;

  private:
    Text text;
    std::vector<std::size_t> offsets; // told place of each position of the box, its end included
    std::size_t cursor;
};

} // namespace ondrilo
