#include "keyboards/ui/CColorButton.h"

#include "keyboards/ui/KeyPainter.h"
#include "platform/qt/QtConversion.h"

#include <QMouseEvent>

namespace ondrilo {
namespace {

std::optional<PressButton> PressButtonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return PressButton::Left;
    case Qt::RightButton:
        return PressButton::Right;
    case Qt::MiddleButton:
        return PressButton::Middle;
    default:
        return std::nullopt;
    }
}

} // namespace

CColorButton::CColorButton(COnScreenKeyIdentifier identifier, KeyActivation& activation, QWidget* parent)
    : QPushButton(parent), identifier(identifier), activation(activation) {
    setObjectName(QString("key_%1_%2_%3").arg(identifier.line).arg(identifier.group).arg(identifier.key));
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    // The mouse handlers below never reach the base class, so this is the press of an assistive program.
    connect(this, &QPushButton::pressed, this,
            [this] { this->activation.Press(this->identifier, PressButton::Left); });
}

void CColorButton::ShowFace(const KeyFace& face, bool pressDot) {
    if (face == latest && pressDot == pressDotShowing)
        return;
    latest = face;
    if (!pressDot)
        painted = latest;
    const bool visibly = !pressDot || !pressDotShowing;
    pressDotShowing = pressDot;
    if (visibly)
        update();
}

bool CColorButton::ShowDwell(double progress) {
    if (progress == dwell)
        return false;
    dwell = progress;
    update();
    return true;
}

/// A style that polishes a button has it repainted with what is behind it, and at each move of the pointer.
void CColorButton::showEvent(QShowEvent* event) {
    QPushButton::showEvent(event);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_Hover, false);
}

void CColorButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintKey(painter, rect(), painted);
    if (pressDotShowing)
        PaintPressDot(painter, rect(), painted.mark);
    if (dwell > 0)
        PaintDwellRing(painter, rect(), painted, dwell);
}

void CColorButton::mousePressEvent(QMouseEvent* event) {
    if (const auto button = PressButtonOf(event->button()))
        activation.Press(identifier, *button);
}

void CColorButton::mouseMoveEvent(QMouseEvent* event) {
    activation.PointerMoved(identifier, FromQPoint(event->globalPosition().toPoint()));
}

void CColorButton::mouseReleaseEvent(QMouseEvent*) {
}

void CColorButton::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

void CColorButton::enterEvent(QEnterEvent* event) {
    activation.PointerEntered(identifier, FromQPoint(event->globalPosition().toPoint()));
}

void CColorButton::leaveEvent(QEvent*) {
    activation.PointerLeft(identifier);
}

} // namespace ondrilo
