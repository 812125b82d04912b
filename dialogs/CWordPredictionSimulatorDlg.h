#pragma once

#include "dialogs/BaseDialog.h"
#include "platform/SimulatorDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

#include <vector>

namespace ondrilo {

/// "Simulador de Predição de Palavras": chooses a text and a kind of simulation, and shows how it goes.
/// While a simulation runs nothing is answered; the windows are kept painted.
class CWordPredictionSimulatorDlg : public BaseDialog, private SimulatorProgress {
    Q_OBJECT

  public:
    CWordPredictionSimulatorDlg(const DialogHost& host, Simulator& simulator);

  private:
    [[nodiscard]] QWidget* CreateSource();
    [[nodiscard]] QWidget* CreateTypes();
    [[nodiscard]] QWidget* CreateIndicators();
    [[nodiscard]] QWidget* CreateWrittenText();
    void FillButtons();

    void TakeFile();
    void TakeClipboard();
    void UseSource(const std::filesystem::path& path, const QString& name);
    void Simulate();

    void RunStarts(int words) override;
    void WordWritten(TextView word, const std::vector<Indicator>& indicators) override;
    void ShowProgress();
    void PaintWindows();

    Simulator& simulator;
    std::filesystem::path source;

    QWidget* choices = new QWidget;
    QPushButton* fileButton = new QPushButton(tr("A partir de &ficheiro..."));
    QPushButton* clipboardButton = new QPushButton(tr("A partir do &clipboard"));
    QLabel* sourceName = new QLabel;
    QButtonGroup* types = new QButtonGroup(this);
    QCheckBox* saveResults = new QCheckBox(tr("&Guardar Resultados num Ficheiro:"));
    QPushButton* startButton = new QPushButton(tr("&Iniciar Simulação"));
    QPushButton* closeButton = new QPushButton(tr("Fechar"));
    QProgressBar* progressBar = new QProgressBar;
    std::vector<QLabel*> values;
    QPlainTextEdit* writtenText = new QPlainTextEdit;

    /// What was written since the window last showed it.
    int newWords = 0;
    QString newText;
    std::vector<Indicator> newIndicators;
    QElapsedTimer sinceShown;
    qint64 showingTook = 0; // milliseconds
};

} // namespace ondrilo
