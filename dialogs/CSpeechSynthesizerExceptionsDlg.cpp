#include "dialogs/CSpeechSynthesizerExceptionsDlg.h"

#include "dialogs/Controls.h"
#include "dialogs/SelectedRow.h"
#include "platform/qt/QtConversion.h"
#include "text/CaseFolding.h"
#include "text/Splitter.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QShortcut>

#include <algorithm>

namespace ondrilo {
namespace {

/// Smallest size of the list, in characters and lines.
constexpr int kListWidth = 45;
constexpr int kListHeight = 10;
/// So that both texts and what stands between them are read back as one line.
constexpr int kTextLimit = static_cast<int>(SpeechExceptions::kLineLimit - 1) / 2;

/// The file could not give back a text with its separator.
void Limit(QLineEdit& field) {
    static const QRegularExpression withoutSeparator(QString("[^%1]*").arg(SpeechExceptions::kSeparator));
    field.setValidator(new QRegularExpressionValidator(withoutSeparator, &field));
    field.setMaxLength(kTextLimit);
}

QString RowText(TextView text, TextView replacement) {
    return ToQString(Text(text).append(1, SpeechExceptions::kSeparator).append(replacement));
}

} // namespace

CSpeechSynthesizerExceptionsDlg::CSpeechSynthesizerExceptionsDlg(const DialogHost& host, SpeechEngine& engine,
                                                                 const DataFolder& folder, TextView voice,
                                                                 const SpeechManner& manner)
    : BaseDialog(host, DialogNumber::SpeechExceptions, "speechExceptionsDialog",
                 tr("Excepções do Sintetizador de Fala")),
      synthesizer(engine, folder) {
    synthesizer.SelectVoice(voice, manner);
    for (const auto& [text, replacement] : synthesizer.GetExceptions()) {
        listed.push_back({text, replacement});
        rows->addItem(RowText(text, replacement));
    }
    SetContent(CreateContent());
    connect(rows, &QListWidget::itemSelectionChanged, this, &CSpeechSynthesizerExceptionsDlg::ShowSelected);
    connect(textField, &QLineEdit::editingFinished, this, &CSpeechSynthesizerExceptionsDlg::EndText);
    connect(replacementField, &QLineEdit::editingFinished, this,
            &CSpeechSynthesizerExceptionsDlg::EndReplacement);
    rows->setFocus();
}

QWidget* CSpeechSynthesizerExceptionsDlg::CreateContent() {
    rows->setObjectName("exceptions");
    rows->setAccessibleName(windowTitle());
    rows->setMinimumSize(rows->fontMetrics().horizontalAdvance(QString(kListWidth, 'n')),
                         rows->fontMetrics().lineSpacing() * kListHeight);
    textField->setObjectName("textField");
    textField->setReadOnly(true);
    replacementField->setObjectName("replacementField");
    auto* newButton = CreateButton(tr("&Nova"), "newButton");
    auto* removeButton = CreateButton(tr("Apa&gar"), "removeButton");
    auto* hearButton = CreateButton(tr("&Ouvir"), "hearButton");
    for (auto* field : {textField, replacementField})
        Limit(*field);

    // Made in the order in which Tab goes through.
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->addWidget(rows, 0, 0, 3, 2);
    grid->addWidget(newButton, 0, 2);
    grid->addWidget(removeButton, 1, 2);
    grid->setRowStretch(2, 1);
    grid->addWidget(CreateLabel(tr("&Texto:"), textField), 3, 0);
    grid->addWidget(textField, 3, 1);
    grid->addWidget(CreateLabel(tr("&Substituir por:"), replacementField), 4, 0);
    grid->addWidget(replacementField, 4, 1);
    grid->addWidget(hearButton, 4, 2);

    connect(newButton, &QPushButton::clicked, this, &CSpeechSynthesizerExceptionsDlg::StartNew);
    connect(removeButton, &QPushButton::clicked, this, &CSpeechSynthesizerExceptionsDlg::RemoveSelected);
    connect(hearButton, &QPushButton::clicked, this, &CSpeechSynthesizerExceptionsDlg::Hear);
    const auto* deleteKey = new QShortcut(QKeySequence::Delete, rows, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &CSpeechSynthesizerExceptionsDlg::RemoveSelected);
    return content;
}

void CSpeechSynthesizerExceptionsDlg::StartNew() {
    // A mnemonic takes no focus away from what is being written.
    EndReplacement();
    rows->clearSelection();
    ShowSelected();
    textField->setReadOnly(false);
    textField->setFocus();
}

void CSpeechSynthesizerExceptionsDlg::EndText() {
    if (textField->isReadOnly())
        return;
    textField->setReadOnly(true);
    const Text typed = FromQString(textField->text());
    const Text text = MakeLower(Trim(typed));
    textField->setText(ToQString(text));
    if (text.empty())
        return host.boxes.Show("Texto vazio!");
    if (const int row = RowOf(text); row >= 0) {
        Select(row);
        return host.boxes.Show("Já existe essa excepção!"_w);
    }
    listed.push_back({text, {}});
    rows->addItem(RowText(text, {}));
    Select(rows->count() - 1);
    Tell(synthesizer.SetException(text, {}));
}

void CSpeechSynthesizerExceptionsDlg::EndReplacement() {
    if (shownRow < 0)
        return;
    auto& [text, replacement] = listed[static_cast<std::size_t>(shownRow)];
    const Text typed = FromQString(replacementField->text());
    if (typed == replacement)
        return;
    replacement = typed;
    rows->item(shownRow)->setText(RowText(text, replacement));
    Tell(synthesizer.SetException(text, replacement));
}

void CSpeechSynthesizerExceptionsDlg::RemoveSelected() {
    EndReplacement();
    if (listed.empty())
        return host.boxes.Show("Lista de excepções vazia!"_w);
    const int row = SelectedRow(*rows);
    if (row < 0)
        return host.boxes.Show("Seleccione primeiro uma excepção de síntese de fala."_w);
    if (host.boxes.AskYesNo("Quer mesmo apagar esta excepção?"_w) != Answer::Yes)
        return;
    const auto removed = listed.begin() + row;
    const auto saved = synthesizer.RemoveException(removed->text);
    listed.erase(removed);
    shownRow = -1;
    {
        // Rows and entries do not match while one of them is going.
        const QSignalBlocker quiet(rows);
        delete rows->takeItem(row);
    }
    Select(std::max(0, row - 1));
    Tell(saved);
}

void CSpeechSynthesizerExceptionsDlg::Hear() {
    synthesizer.Speak(FromQString(replacementField->text()));
}

void CSpeechSynthesizerExceptionsDlg::ShowSelected() {
    EndReplacement();
    shownRow = SelectedRow(*rows);
    const auto shown = shownRow < 0 ? Exception{} : listed[static_cast<std::size_t>(shownRow)];
    textField->setReadOnly(true);
    textField->setText(ToQString(shown.text));
    replacementField->setText(ToQString(shown.replacement));
}

void CSpeechSynthesizerExceptionsDlg::Select(int row) {
    rows->setCurrentRow(row);
    ShowSelected();
}

int CSpeechSynthesizerExceptionsDlg::RowOf(TextView text) const {
    const auto found = std::ranges::find(listed, text, &Exception::text);
    return found == listed.end() ? -1 : static_cast<int>(found - listed.begin());
}

void CSpeechSynthesizerExceptionsDlg::Tell(const SaveResult& saved) {
    if (!saved)
        host.boxes.Show(saved.problem);
}

void CSpeechSynthesizerExceptionsDlg::done(int result) {
    // What is only a text yet would not outlast the dialog.
    textField->setReadOnly(true);
    EndReplacement();
    BaseDialog::done(result);
}

void CSpeechSynthesizerExceptionsDlg::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && textField->hasFocus())
        replacementField->setFocus();
    else if (enter && replacementField->hasFocus())
        rows->setFocus();
    else
        BaseDialog::keyPressEvent(event);
}

} // namespace ondrilo
