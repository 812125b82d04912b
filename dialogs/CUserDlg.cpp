#include "dialogs/CUserDlg.h"

#include "dialogs/SelectedRow.h"
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
    const int row = SelectedRow(*list);
    return row < 0 ? Text() : FromQString(list->item(row)->text());
}

void CUserDlg::FollowTyping(const QString& typed) {
    const QSignalBlocker quiet(list);
    list->setCurrentItem(nullptr);
    // "ana" typed whole is not the "anabela" above it.
    for (const auto how : {Qt::MatchStartsWith, Qt::MatchExactly})
        if (const auto found = list->findItems(typed, how | Qt::MatchCaseSensitive); !found.isEmpty())
            list->setCurrentItem(found.front());
}

void CUserDlg::FollowList() {
    const QSignalBlocker quiet(field);
    field->setText(ToQString(Name()));
}

void CUserDlg::TryAccept() {
    if (SelectedRow(*list) < 0)
        return Refuse("Não existe nenhum utilizador com esse nome!"_w, *field);
    accept();
}

} // namespace ondrilo
