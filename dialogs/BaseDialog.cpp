#include "dialogs/BaseDialog.h"

#include "dialogs/ScrolledContent.h"
#include "platform/qt/FocusReturn.h"

#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace ondrilo {
namespace {

/// Room in a caption for what is not its text, in heights of the caption.
constexpr int kCaptionButtons = 6;

} // namespace

BaseDialog::BaseDialog(const DialogHost& host, DialogNumber number, const char* objectName,
                       const QString& title)
    : host(host), number(number) {
    setObjectName(objectName);
    setWindowTitle(title);
    auto* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName("okButton");
    ok->setText(tr("OK"));
    auto* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName("cancelButton");
    cancel->setText(tr("Cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { TryAccept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void BaseDialog::SetContent(QWidget* content) {
    if (auto* layout = content->layout())
        layout->setContentsMargins({});
    rows->addWidget(new ScrolledContent(content), 1);
    // Only now: in the order in which they come, Tab goes from one to the next.
    lastRow->addWidget(buttons, 1);
    rows->addLayout(lastRow);
}

bool BaseDialog::Run() {
    host.record.DialogOpened(static_cast<int>(number));
    const bool accepted = RunDialog(*this, host.desktop) == Accepted;
    host.record.DialogClosed(static_cast<int>(number));
    return accepted;
}

void BaseDialog::setVisible(bool visible) {
    if (visible && !testAttribute(Qt::WA_Resized))
        FitScreen();
    QDialog::setVisible(visible);
}

void BaseDialog::FitScreen() {
    const int caption = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    auto captionFont = font();
    captionFont.setBold(true);
    const int title = QFontMetrics(captionFont).horizontalAdvance(windowTitle()) + kCaptionButtons * caption;
    const auto most = screen()->availableSize() - QSize(0, caption);
    setMaximumSize(most);
    // Qt on its own would scroll in two thirds of the screen.
    resize(sizeHint().expandedTo({title, 0}).boundedTo(most));
}

void BaseDialog::Refuse(TextView reason, QLineEdit& field) {
    host.boxes.Show(reason);
    field.setFocus();
    field.selectAll();
}

} // namespace ondrilo
