#pragma once

#include "app/FrameWindow.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace ondrilo {

/// The view: holds editor and keyboard at the places that the session gives them, and paints what is behind.
class ViewWidget : public QWidget {
    Q_OBJECT

  public:
    explicit ViewWidget(QWidget* parent);
    void SetBackground(const std::optional<WindowBackground>& background);

  Q_SIGNALS:
    void resized();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void PaintPicture(QPainter& painter);

    std::optional<WindowBackground> background;
    QImage picture;
    QPixmap stretched; // the picture in the view's size
};

} // namespace ondrilo
