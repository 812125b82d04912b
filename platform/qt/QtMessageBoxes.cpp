#include "platform/qt/QtMessageBoxes.h"

#include "platform/qt/FocusReturn.h"
#include "platform/qt/QtConversion.h"

#include <QMessageBox>
#include <QPushButton>

#include <initializer_list>

namespace ondrilo {
namespace {

struct ButtonText {
    QMessageBox::StandardButton button;
    const char* objectName;
    TextView text;
};
constexpr ButtonText kButtons[] = {
    {QMessageBox::Ok, "okButton", "&OK"},
    {QMessageBox::Yes, "yesButton", "&Sim"},
    {QMessageBox::No, "noButton", "&Não"_w},
    {QMessageBox::Cancel, "cancelButton", "&Cancelar"},
};

void NameButtons(QMessageBox& box) {
    for (const auto& [standard, objectName, text] : kButtons)
        if (auto* button = box.button(standard)) {
            button->setObjectName(objectName);
            button->setText(ToQString(text));
            button->setAccessibleName(button->text().remove('&'));
        }
}

int Ask(Desktop& desktop, TextView text, QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
        QMessageBox::StandardButton preselected) {
    QMessageBox box(icon, "Ondrilo", ToQString(text), buttons);
    box.setObjectName("messageBox");
    box.setAccessibleName(ToQString(text));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(preselected);
    NameButtons(box);
    return RunDialog(box, desktop);
}

Answer AnswerOf(int button) {
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

} // namespace

void QtMessageBoxes::Show(TextView text) {
    Ask(desktop, text, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok);
}

Answer QtMessageBoxes::AskYesNo(TextView question, Answer preselected) {
    return AnswerOf(Ask(desktop, question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                        preselected == Answer::Yes ? QMessageBox::Yes : QMessageBox::No));
}

Answer QtMessageBoxes::AskYesNoCancel(TextView question) {
    return AnswerOf(Ask(desktop, question, QMessageBox::Question,
                        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes));
}

} // namespace ondrilo
