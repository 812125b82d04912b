#include "dialogs/CWordPredictionSimulatorDlg.h"

#include "dialogs/FileChooser.h"
#include "platform/qt/QtConversion.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QScrollBar>

namespace ondrilo {
namespace {

constexpr qint64 kPaintPeriod = 40; // milliseconds
/// A run spends at most this part of its time on being watched.
constexpr qint64 kWatchedPart = 5;
/// Room for a number in the millions, so that the window need not be laid out anew while it cannot be.
constexpr int kValueDigits = 12;

} // namespace

CWordPredictionSimulatorDlg::CWordPredictionSimulatorDlg(const DialogHost& host, Simulator& simulator)
    : BaseDialog(host, DialogNumber::WordSimulator, "wordSimulatorDialog",
                 tr("Simulador de Predição de Palavras")),
      simulator(simulator) {
    auto* choiceRows = new QVBoxLayout(choices);
    choiceRows->setContentsMargins({});
    choiceRows->addWidget(CreateSource());
    choiceRows->addWidget(CreateTypes());
    choiceRows->addWidget(saveResults);
    saveResults->setObjectName("saveResults");

    auto* results = new QHBoxLayout;
    results->addWidget(CreateIndicators());
    results->addWidget(CreateWrittenText(), 1);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->addWidget(choices);
    rows->addLayout(results, 1);
    rows->addWidget(progressBar);
    SetContent(content);
    FillButtons();

    progressBar->setObjectName("progress");
    progressBar->setAccessibleName(tr("Progresso da simulação"));
    progressBar->setValue(0);
}

QWidget* CWordPredictionSimulatorDlg::CreateSource() {
    auto* box = new QGroupBox(tr("Origem do Texto"));
    fileButton->setObjectName("fileButton");
    clipboardButton->setObjectName("clipboardButton");
    sourceName->setObjectName("sourceName");
    sourceName->setTextFormat(Qt::PlainText);
    sourceName->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(fileButton);
    buttons->addWidget(clipboardButton);
    buttons->addStretch();
    auto* rows = new QVBoxLayout(box);
    rows->addLayout(buttons);
    rows->addWidget(sourceName);
    connect(fileButton, &QPushButton::clicked, this, &CWordPredictionSimulatorDlg::TakeFile);
    connect(clipboardButton, &QPushButton::clicked, this, &CWordPredictionSimulatorDlg::TakeClipboard);
    return box;
}

QWidget* CWordPredictionSimulatorDlg::CreateTypes() {
    auto* box = new QGroupBox(tr("Tipo de Simulação"));
    auto* rows = new QVBoxLayout(box);
    const QString names[] = {
        tr("Escrita do Texto Utilizando os Valores Actuais dos Factores de Predição:"),
        tr("Escrita Repetida do Texto com a Introdução Automática dos Factores de Predição:"),
        tr("Escrita Repetida do Texto com a Introdução Gradual de Cada Factor de Predição:"),
    };
    for (const auto& name : names) {
        const int type = static_cast<int>(types->buttons().size());
        auto* button = new QRadioButton(name);
        button->setObjectName(QString("type_%1").arg(type));
        button->setChecked(type == 0);
        types->addButton(button, type);
        rows->addWidget(button);
    }
    return box;
}

QWidget* CWordPredictionSimulatorDlg::CreateIndicators() {
    auto* box = new QGroupBox(tr("Resultados"));
    auto* rows = new QFormLayout(box);
    for (const auto label : simulator.IndicatorLabels()) {
        auto* value = new QLabel;
        value->setObjectName(QString("indicator_%1").arg(values.size()));
        value->setAccessibleDescription(ToQString(label));
        value->setAlignment(Qt::AlignRight);
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QString(kValueDigits, '0')));
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        values.push_back(value);
        rows->addRow(ToQString(label), value);
    }
    return box;
}

QWidget* CWordPredictionSimulatorDlg::CreateWrittenText() {
    auto* box = new QGroupBox(tr("Texto Escrito com Predição"));
    writtenText->setObjectName("writtenText");
    writtenText->setAccessibleName(box->title());
    writtenText->setReadOnly(true);
    writtenText->setTabChangesFocus(true);
    writtenText->setMinimumWidth(writtenText->fontMetrics().horizontalAdvance(QString(40, 'n')));
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(writtenText);
    return box;
}

void CWordPredictionSimulatorDlg::FillButtons() {
    startButton->setObjectName("startButton");
    startButton->setEnabled(false);
    startButton->setDefault(true);
    closeButton->setObjectName("closeButton");
    closeButton->setAutoDefault(false);
    Buttons().clear();
    Buttons().addButton(startButton, QDialogButtonBox::ActionRole);
    Buttons().addButton(closeButton, QDialogButtonBox::RejectRole);
    connect(startButton, &QPushButton::clicked, this, &CWordPredictionSimulatorDlg::Simulate);
}

void CWordPredictionSimulatorDlg::TakeFile() {
    if (const auto path = AskForTextFile(host.desktop))
        UseSource(*path, QString::fromStdString(path->filename().string()));
}

void CWordPredictionSimulatorDlg::TakeClipboard() {
    if (const auto path = simulator.TextOfClipboard())
        UseSource(*path, "Clipboard");
}

void CWordPredictionSimulatorDlg::UseSource(const std::filesystem::path& path, const QString& name) {
    source = path;
    sourceName->setText(name);
    startButton->setEnabled(true);
}

void CWordPredictionSimulatorDlg::Simulate() {
    choices->setEnabled(false);
    startButton->setEnabled(false);
    closeButton->setEnabled(false);
    simulator.Run({source, types->checkedId(), saveResults->isChecked()}, *this);
    ShowProgress();
    // What the person pressed meanwhile meets buttons that do not answer.
    QCoreApplication::processEvents();
    choices->setEnabled(true);
    startButton->setEnabled(true);
    closeButton->setEnabled(true);
    startButton->setFocus();
}

void CWordPredictionSimulatorDlg::RunStarts(int words) {
    newWords = 0;
    newText.clear();
    writtenText->clear();
    progressBar->setRange(0, std::max(1, words));
    progressBar->setValue(0);
    showingTook = 0;
    sinceShown.start();
    PaintWindows();
}

/// Shown in portions: to lay the growing text out for each word would take longer than the simulation.
void CWordPredictionSimulatorDlg::WordWritten(TextView word, const std::vector<Indicator>& indicators) {
    ++newWords;
    newText += ToQString(word) + " ";
    newIndicators = indicators;
    if (sinceShown.elapsed() >= std::max(kPaintPeriod, kWatchedPart * showingTook))
        ShowProgress();
}

void CWordPredictionSimulatorDlg::ShowProgress() {
    QElapsedTimer showing;
    showing.start();
    progressBar->setValue(progressBar->value() + std::exchange(newWords, 0));
    for (std::size_t i = 0; i < newIndicators.size() && i < values.size(); ++i)
        values[i]->setText(ToQString(newIndicators[i].value));
    auto end = writtenText->textCursor();
    end.movePosition(QTextCursor::End);
    end.insertText(std::exchange(newText, {}));
    auto* scrollBar = writtenText->verticalScrollBar();
    scrollBar->setValue(scrollBar->maximum());
    PaintWindows();
    showingTook = showing.elapsed();
    sinceShown.restart();
}

/// Painting alone: no event is handled, so that nothing can touch what the simulation works on.
void CWordPredictionSimulatorDlg::PaintWindows() {
    for (auto* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            window->repaint();
}

} // namespace ondrilo
