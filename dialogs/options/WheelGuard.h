#pragma once

#include <QEvent>
#include <QWidget>

namespace ondrilo {

/// Who turns the wheel to move the page must not change the value that comes under the pointer.
class WheelGuard : public QObject {
  public:
    explicit WheelGuard(QWidget* control) : QObject(control), control(control) {
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel || control->hasFocus())
            return false;
        event->ignore();
        return true;
    }

  private:
    QWidget* control;
};

} // namespace ondrilo
