#include "dialogs/CSystemOptionsDlg.h"

#include "dialogs/SelectedRow.h"
#include "platform/qt/QtConversion.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace ondrilo {
namespace {

constexpr int kServerRole = 1;
/// Rows of the list of priorities that show without scrolling.
constexpr int kListRows = 5;

/// A stored value stays chosen though it is none of the choices: the receiver may only be unplugged.
void Fill(QComboBox& box, const std::vector<Text>& choices, const Text& chosen) {
    for (const auto& choice : choices)
        box.addItem(ToQString(choice));
    if (std::find(choices.begin(), choices.end(), chosen) == choices.end())
        box.addItem(ToQString(chosen));
    box.setCurrentIndex(box.findText(ToQString(chosen), Qt::MatchExactly | Qt::MatchCaseSensitive));
}

Text Chosen(const QComboBox& box) {
    return FromQString(box.currentText());
}

} // namespace

CSystemOptionsDlg::CSystemOptionsDlg(const DialogHost& host, CSystemOptions& options,
                                     SystemOptionSources& sources)
    : BaseDialog(host, DialogNumber::SystemOptions, "systemOptionsDialog", tr("Opções Gerais")),
      options(options), sources(sources) {
    startProfile->setObjectName("startProfile");
    changes->setObjectName("changesAllowed");
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* form = new QFormLayout;
    form->addRow(tr("Perfil de Arranque:"), startProfile);
    column->addLayout(form);
    column->addWidget(CreateAdaptation());
    column->addWidget(CreateCooperation());
    column->addWidget(changes);
    SetContent(content);
    connect(changes, &QCheckBox::clicked, this, &CSystemOptionsDlg::TurnLock);
    Show();
}

QWidget* CSystemOptionsDlg::CreateAdaptation() {
    adaptation->setObjectName("contextAdaptation");
    leavingOnly->setObjectName("adaptWhenLeaving");
    gpsPort->setObjectName("gpsPort");
    bluetooth->setObjectName("bluetoothMechanism");
    auto* box = new QGroupBox(tr("Contexto"));
    auto* form = new QFormLayout(box);
    form->addRow(adaptation);
    form->addRow(leavingOnly);
    form->addRow(tr("Porta do Receptor de GPS:"), gpsPort);
    form->addRow(tr("Mecanismo de Procura Bluetooth: "), bluetooth);
    form->addRow(CreatePriorities());
    return box;
}

QWidget* CSystemOptionsDlg::CreatePriorities() {
    priorities->setObjectName("priorities");
    priorities->setMinimumHeight(kListRows * priorities->fontMetrics().lineSpacing());
    auto* label = new QLabel(tr("&Prioridade dos Perfis na Adaptação ao Contexto:"));
    label->setBuddy(priorities);
    priorities->setAccessibleName(tr("Prioridade dos Perfis na Adaptação ao Contexto"));
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(CreateButton(tr("A&dicionar..."), "addPriority", &CSystemOptionsDlg::AddPriority));
    buttons->addWidget(CreateButton(tr("&Remover"), "removePriority", &CSystemOptionsDlg::RemovePriority));
    buttons->addWidget(CreateButton(tr("Ci&ma"), "raisePriority", &CSystemOptionsDlg::RaisePriority));
    buttons->addWidget(CreateButton(tr("&Baixo"), "lowerPriority", &CSystemOptionsDlg::LowerPriority));
    buttons->addStretch();
    auto* part = new QWidget;
    auto* columns = new QHBoxLayout;
    columns->addWidget(priorities, 1);
    columns->addLayout(buttons);
    auto* rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->addWidget(label);
    rows->addLayout(columns);
    return part;
}

QWidget* CSystemOptionsDlg::CreateCooperation() {
    server->setObjectName("serverRole");
    client->setObjectName("clientRole");
    serverName->setObjectName("serverName");
    clearSuggestions->setObjectName("clearSuggestions");
    auto* box = new QGroupBox(tr("Comunicação Cooperativa"));
    auto* form = new QFormLayout(box);
    form->addRow(server);
    form->addRow(client);
    form->addRow(tr("Nome do Servidor:"), serverName);
    form->addRow(clearSuggestions);
    connect(client, &QRadioButton::toggled, serverName, &QWidget::setEnabled);
    return box;
}

QPushButton* CSystemOptionsDlg::CreateButton(const QString& text, const char* objectName,
                                             void (CSystemOptionsDlg::*pressed)()) {
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void CSystemOptionsDlg::Show() {
    using namespace system_option;
    Fill(*startProfile, sources.ProfileNames(), options.Get(PERFIL_UTILIZADOR_ARRANQUE));
    adaptation->setChecked(options.IsOn(ADAPTACAO_CONTEXTO));
    leavingOnly->setChecked(options.IsOn(ADAPTAR_APENAS_COM_PERFIL_GENERICO_ATIVO));
    Fill(*gpsPort, sources.GpsPorts(), options.Get(PORTA_GPS));
    Fill(*bluetooth, sources.BluetoothMechanisms(), options.Get(MODO_PROCURA_ETIQUETAS_BLUETOOTH));
    for (const auto& name : options.GetPriorities())
        priorities->addItem(ToQString(name));
    const bool isServer = options.Get(PAPEL_COMUNICACAO_COOPERATIVA) == kServerRole;
    (isServer ? server : client)->setChecked(true);
    serverName->setText(ToQString(options.Get(NOME_SERVIDOR_COMUNICACAO_COOPERATIVA)));
    serverName->setEnabled(!isServer);
    clearSuggestions->setChecked(options.IsOn(LIMPAR_SUGESTOES_APOS_SELECCAO));
    changes->setChecked(options.IsOn(ALTERACOES_SISTEMA));
}

void CSystemOptionsDlg::TryAccept() {
    using namespace system_option;
    options.Set(PERFIL_UTILIZADOR_ARRANQUE, Chosen(*startProfile));
    options.Set(ADAPTACAO_CONTEXTO, adaptation->isChecked());
    options.Set(ADAPTAR_APENAS_COM_PERFIL_GENERICO_ATIVO, leavingOnly->isChecked());
    options.Set(PORTA_GPS, Chosen(*gpsPort));
    options.Set(MODO_PROCURA_ETIQUETAS_BLUETOOTH, Chosen(*bluetooth));
    options.SetPriorities(Priorities());
    options.Set(PAPEL_COMUNICACAO_COOPERATIVA, server->isChecked() ? kServerRole : 0);
    options.Set(NOME_SERVIDOR_COMUNICACAO_COOPERATIVA, FromQString(serverName->text()));
    options.Set(LIMPAR_SUGESTOES_APOS_SELECCAO, clearSuggestions->isChecked());
    options.Set(ALTERACOES_SISTEMA, changes->isChecked());
    accept();
}

void CSystemOptionsDlg::AddPriority() {
    const auto name = sources.ChooseProfile();
    if (name.empty())
        return;
    const auto listed = Priorities();
    if (std::find(listed.begin(), listed.end(), name) != listed.end())
        return host.boxes.Show("Esse perfil de utilizador já se encontra na lista! "_w);
    priorities->addItem(ToQString(name));
    priorities->setCurrentRow(priorities->count() - 1);
}

void CSystemOptionsDlg::RemovePriority() {
    const int row = AskForRow();
    if (row < 0)
        return;
    const auto name = FromQString(priorities->item(row)->text());
    if (host.boxes.AskYesNo("Quer mesmo retirar o perfil " + name + "da lista?") != Answer::Yes)
        return;
    delete priorities->takeItem(row);
    priorities->setCurrentRow(std::max(0, row - 1));
}

void CSystemOptionsDlg::MovePriority(int rows) {
    const int row = AskForRow();
    const int target = row + rows;
    if (row < 0 || target < 0 || target >= priorities->count())
        return;
    priorities->insertItem(target, priorities->takeItem(row));
    priorities->setCurrentRow(target);
}

int CSystemOptionsDlg::AskForRow() {
    if (priorities->count() == 0) {
        host.boxes.Show("Lista vazia!");
        return -1;
    }
    const int row = SelectedRow(*priorities);
    if (row < 0)
        host.boxes.Show("Seleccione primeiro um perfil de utilizador.");
    return row;
}

std::vector<Text> CSystemOptionsDlg::Priorities() const {
    std::vector<Text> names;
    for (int row = 0; row < priorities->count(); ++row)
        names.push_back(FromQString(priorities->item(row)->text()));
    return names;
}

/// The click is undone: only who passes the lock turns it, whichever way.
void CSystemOptionsDlg::TurnLock() {
    const bool wanted = changes->isChecked();
    changes->setChecked(!wanted);
    if (sources.PassesLock())
        changes->setChecked(wanted);
}

} // namespace ondrilo
