#include "targets/SurfaceText.h"

#include <algorithm>

namespace ondrilo {

TextView LabelAt(const std::vector<Text>& labels, int index) {
    const auto number = static_cast<std::size_t>(index); // -1, no number, is past any list
    return number < labels.size() ? TextView(labels[number]) : TextView();
}

SurfaceText::SurfaceText(const TextSurface& surface, const std::vector<Text>& labels) {
    const Text plain = surface.PlainText();
    const auto pictures = surface.Pictures();
    auto picture = pictures.begin();
    offsets.reserve(plain.size() + 1);
    for (std::size_t position = 0; position < plain.size(); ++position) {
        offsets.push_back(text.size());
        if (picture != pictures.end() && static_cast<std::size_t>(picture->position) == position)
            text += LabelAt(labels, picture++->index);
        if (plain[position] == '\n')
            text += '\r';
        text += plain[position];
    }
    offsets.push_back(text.size());
    cursor = std::min(static_cast<std::size_t>(surface.SelectionEnd()), plain.size());
}

int SurfaceText::PositionRight(std::size_t length) const {
    const auto start = offsets.begin() + static_cast<std::ptrdiff_t>(cursor);
    return static_cast<int>(std::lower_bound(start, offsets.end(), offsets[cursor] + length) -
                            offsets.begin());
}

} // namespace ondrilo
