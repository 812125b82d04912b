#pragma once

#include "app/SessionWindows.h"

#include <QWidget>

namespace ondrilo {

/// The small text windows: previews and notices. They stand outside the window manager's order, so that they
/// are on top, have no frame and can never be activated.
class CTextWindow : public QWidget, public TextWindow {
    Q_OBJECT

  public:
    CTextWindow(const TextWindowStyle& style, QWidget* parent);

    void SetText(TextView newText) override;
    [[nodiscard]] Size GetSize() const override { return {width(), height()}; }
    void MoveTo(Point lowerLeft) override;
    void Show() override;
    void Hide() override { hide(); }
    [[nodiscard]] bool IsVisible() const override { return isVisible(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Fit();
    [[nodiscard]] QRect OnScreen(QRect place) const;

    TextWindowStyle style;
    QString text;
    Point lowerLeft;
};

} // namespace ondrilo
