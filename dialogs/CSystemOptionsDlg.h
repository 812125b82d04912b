#pragma once

#include "dialogs/BaseDialog.h"
#include "profiles/OptionDialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>

namespace ondrilo {

/// "Opções Gerais": the options of the installation.
class CSystemOptionsDlg : public BaseDialog {
    Q_OBJECT

  public:
    /// Options and sources outlive the dialog.
    CSystemOptionsDlg(const DialogHost& host, CSystemOptions& options, SystemOptionSources& sources);

  protected:
    /// Takes all values over into the options.
    void TryAccept() override;

  private:
    [[nodiscard]] QWidget* CreateAdaptation();
    [[nodiscard]] QWidget* CreatePriorities();
    [[nodiscard]] QWidget* CreateCooperation();
    [[nodiscard]] QPushButton* CreateButton(const QString& text, const char* objectName,
                                            void (CSystemOptionsDlg::*pressed)());
    void Show();

    void AddPriority();
    void RemovePriority();
    void RaisePriority() { MovePriority(-1); }
    void LowerPriority() { MovePriority(+1); }
    void MovePriority(int rows);
    /// The row that is selected; -1, and told, without one.
    [[nodiscard]] int AskForRow();
    [[nodiscard]] std::vector<Text> Priorities() const;
    void TurnLock();

    CSystemOptions& options;
    SystemOptionSources& sources;
    QComboBox* startProfile = new QComboBox;
    QCheckBox* adaptation = new QCheckBox(tr("&Adaptação ao Contexto:"));
    QCheckBox* leavingOnly = new QCheckBox(tr("Apenas Adaptar &Quando o Perfil Ativo Sai do Contexto:"));
    QComboBox* gpsPort = new QComboBox;
    QComboBox* bluetooth = new QComboBox;
    QListWidget* priorities = new QListWidget;
    QRadioButton* server = new QRadioButton(tr("&Servidor da Comunicação Cooperativa:"));
    QRadioButton* client = new QRadioButton(tr("&Cliente da Comunicação Cooperativa:"));
    QLineEdit* serverName = new QLineEdit;
    QCheckBox* clearSuggestions = new QCheckBox(tr("&Limpar Sugestões após a Selecção"));
    QCheckBox* changes = new QCheckBox(tr("Permitir Alterações às Configurações do Sistema:"));
};

} // namespace ondrilo
