#pragma once

#include "platform/Desktop.h"
#include "platform/Geometry.h"

#include <QPushButton>

namespace ondrilo {

/// A button in the colour that is chosen, which lets the person choose another.
class ColorField : public QPushButton {
    Q_OBJECT

  public:
    ColorField(Color color, Desktop& desktop);
    [[nodiscard]] Color Value() const { return color; }

  Q_SIGNALS:
    void Chosen(ondrilo::Color color);

  private:
    void Choose();
    void ShowColor();

    Color color;
    Desktop& desktop;
};

} // namespace ondrilo
