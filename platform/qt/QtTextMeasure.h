#pragma once

#include "platform/Measure.h"

#include <QFontMetrics>

#include <vector>

namespace ondrilo {

/// Text measures of the fonts that Qt paints with. Needs a QGuiApplication.
class QtTextMeasure : public TextMeasure {
  public:
    [[nodiscard]] int Width(const Font& font, TextView text) const override;
    [[nodiscard]] int AverageCharacterWidth(const Font& font) const override;
    [[nodiscard]] int LineHeight(const Font& font) const override;

  private:
    const QFontMetrics& MetricsOf(const Font& font) const;
    // A keyboard measures hundreds of keys in very few fonts.
    mutable std::vector<std::pair<Font, QFontMetrics>> known;
};

} // namespace ondrilo
