#include "dialogs/CUserDlg.h"

#include "platform/qt/QtConversion.h"

#include <QLabel>
#include <QSignalBlocker>

namespace ondrilo {

CUserDlg::CUserDlg(const DialogHost& host, const std::vector<Text>& names)
    : BaseDialog(host, DialogNumber::ChooseProfile, "chooseProfileDialog",
                 tr("Seleccionar Perfil de Utilizador")) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* label = new QLabel(tr("&Nome do Perfil:"));
    label->setBuddy(field);
    field->setObjectName("profileName");
    list->setObjectName("profiles");
    list->setAccessibleName(tr("Perfis de Utilizador"));
    for (const auto& name : names)
        list->addItem(ToQString(name));
    list->setCurrentRow(0);
    column->addWidget(label);
    column->addWidget(field);
    column->addWidget(list);
    SetContent(content);
    connect(field, &QLineEdit::textChanged, this, &CUserDlg::FollowTyping);
    connect(list, &QListWidget::itemSelectionChanged, this, &CUserDlg::FollowList);
    connect(list, &QListWidget::itemDoubleClicked, this, [this] { TryAccept(); });
}

Text CUserDlg::Name() const {
    const auto* item = Chosen();
    return item ? FromQString(item->text()) : Text();
}

const QListWidgetItem* CUserDlg::Chosen() const {
    const auto selected = list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.front();
}

void CUserDlg::FollowTyping(const QString& typed) {
    const QSignalBlocker quiet(list);
    const auto matches = list->findItems(typed, Qt::MatchStartsWith | Qt::MatchCaseSensitive);
    list->setCurrentItem(matches.isEmpty() ? nullptr : matches.front());
}

void CUserDlg::FollowList() {
    const QSignalBlocker quiet(field);
    field->setText(ToQString(Name()));
}

void CUserDlg::TryAccept() {
    if (!Chosen())
        return Refuse("Não existe nenhum utilizador com esse nome!"_w, *field);
    accept();
}

} // namespace ondrilo
