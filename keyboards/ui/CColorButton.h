#pragma once

#include "keyboards/KeyActivation.h"
#include "keyboards/ui/KeyFace.h"

#include <QPushButton>

namespace ondrilo {

/// The widget of one key: an accessible push button, named by the key's description. It paints the face that
/// it is given and hands what the pointer does, and the accessible press, to KeyActivation. It never takes
/// the focus.
class CColorButton : public QPushButton {
    Q_OBJECT

  public:
    CColorButton(COnScreenKeyIdentifier identifier, KeyActivation& activation, QWidget* parent);

    /// While the press dot shows, what is painted stays as it was when the dot came.
    void ShowFace(const KeyFace& face, bool pressDot);
    /// The part of the dwell time that has passed, 0 to 1; false if it shows already.
    bool ShowDwell(double progress);

  Q_SIGNALS:
    /// The left button was pressed for a second time in short order; that it was pressed went to
    /// KeyActivation.
    void doubleClicked();

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    COnScreenKeyIdentifier identifier;
    KeyActivation& activation;
    KeyFace latest;
    KeyFace painted;
    bool pressDotShowing = false;
    double dwell = 0;
};

} // namespace ondrilo
