#include "platform/qt/QtTextMeasure.h"

#include "platform/qt/QtConversion.h"

#include <algorithm>

namespace ondrilo {

int QtTextMeasure::Width(const Font& font, TextView text) const {
    return MetricsOf(font).horizontalAdvance(ToQString(text));
}

int QtTextMeasure::AverageCharacterWidth(const Font& font) const {
    return MetricsOf(font).averageCharWidth();
}

int QtTextMeasure::LineHeight(const Font& font) const {
    return MetricsOf(font).height();
}

const QFontMetrics& QtTextMeasure::MetricsOf(const Font& font) const {
    const auto found = std::ranges::find(known, font, &std::pair<Font, QFontMetrics>::first);
    if (found != known.end())
        return found->second;
    return known.emplace_back(font, QFontMetrics(ToQFont(font))).second;
}

} // namespace ondrilo
