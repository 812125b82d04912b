#include "dialogs/EntryListDlg.h"

#include "dialogs/Controls.h"
#include "dialogs/SelectedRow.h"
#include "platform/qt/QtConversion.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QShortcut>

namespace ondrilo {
namespace {

constexpr int kLeastNumber = 1;
constexpr int kGreatestNumber = 1'000'000;
/// Smallest size of the list, in characters and lines.
constexpr int kListWidth = 55;
constexpr int kListHeight = 12;

DialogNumber NumberOf(EntryListKind kind) {
    switch (kind) {
    case EntryListKind::Words:
        return DialogNumber::Words;
    case EntryListKind::Sentences:
        return DialogNumber::Sentences;
    default:
        return DialogNumber::Abbreviations;
    }
}

const char* ObjectNameOf(EntryListKind kind) {
    switch (kind) {
    case EntryListKind::Words:
        return "wordsDialog";
    case EntryListKind::Sentences:
        return "sentencesDialog";
    default:
        return "abbreviationsDialog";
    }
}

QString RowText(const ListedEntry& entry) {
    return ToQString(entry.name + " : " + entry.value);
}

} // namespace

EntryListDlg::EntryListDlg(const DialogHost& host, EntryList& entries)
    : BaseDialog(host, NumberOf(entries.Kind()), ObjectNameOf(entries.Kind()),
                 ToQString(entries.Texts().title)),
      entries(entries), listed(entries.Entries()), valueBox(CreateValueBox()) {
    SetContent(CreateContent());
    FillRows();
    connect(rows, &QListWidget::itemSelectionChanged, this, &EntryListDlg::ShowSelected);
    ShowSelected();
    nameField->setFocus();
}

QWidget* EntryListDlg::CreateContent() {
    const auto& texts = entries.Texts();
    nameField->setObjectName("nameField");
    nameField->setMaxLength(static_cast<int>(entries.NameLimit()));
    findField->setObjectName("findField");
    rows->setObjectName("entries");
    rows->setAccessibleName(windowTitle());
    valueBox->setObjectName("valueBox");
    auto* addButton = CreateButton(tr("&Adicionar"), "addButton");
    auto* removeButton = CreateButton(tr("Apa&gar"), "removeButton");

    // Made in the order in which Tab goes through.
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->addWidget(CreateLabel(ToQString(texts.nameLabel), nameField), 0, 0);
    grid->addWidget(nameField, 0, 1);
    grid->addWidget(addButton, 0, 2);
    grid->addWidget(CreateLabel(tr("Pr&ocurar na lista:"), findField), 1, 0);
    grid->addWidget(findField, 1, 1, 1, 2);
    grid->addWidget(rows, 2, 0, 1, 3);
    grid->addWidget(CreateLabel(ToQString(texts.valueLabel), valueBox), 3, 0);
    grid->addWidget(valueBox, 3, 1);
    grid->addWidget(removeButton, 3, 2);

    connect(addButton, &QPushButton::clicked, this, &EntryListDlg::Add);
    connect(removeButton, &QPushButton::clicked, this, &EntryListDlg::RemoveSelected);
    connect(findField, &QLineEdit::textChanged, this, &EntryListDlg::Find);
    const auto* deleteKey = new QShortcut(QKeySequence::Delete, rows, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &EntryListDlg::RemoveSelected);
    return content;
}

QWidget* EntryListDlg::CreateValueBox() {
    if (!entries.HasNumbers()) {
        textBox = new QLineEdit;
        connect(textBox, &QLineEdit::textEdited, this,
                [this](const QString& text) { ChangeSelected(FromQString(text)); });
        return textBox;
    }
    numberBox = new QSpinBox;
    numberBox->setRange(kLeastNumber, kGreatestNumber);
    connect(numberBox, &QSpinBox::valueChanged, this,
            [this](int number) { ChangeSelected(std::to_string(number)); });
    return numberBox;
}

void EntryListDlg::FillRows() {
    const auto metrics = rows->fontMetrics();
    rows->setMinimumSize(metrics.horizontalAdvance(QString(kListWidth, 'n')),
                         metrics.lineSpacing() * kListHeight);
    QStringList texts;
    for (const auto& entry : listed)
        texts.append(RowText(entry));
    rows->addItems(texts);
}

void EntryListDlg::Add() {
    const auto& texts = entries.Texts();
    const Text name = entries.Normalized(FromQString(nameField->text()));
    if (name.empty())
        return Refuse(texts.emptyName, *nameField);
    if (!texts.nameWithBlank.empty() && name.find_first_of(" \t\n\r") != Text::npos)
        return Refuse(texts.nameWithBlank, *nameField);
    if (const int row = RowOf(name); row >= 0) {
        Select(row);
        return Refuse(texts.nameExists, *nameField);
    }
    listed.push_back({name, entries.Add(name)});
    rows->addItem(RowText(listed.back()));
    Select(rows->count() - 1);
    nameField->clear();
    // The next word, or the expansion of this abbreviation.
    (textBox != nullptr ? textBox : nameField)->setFocus();
}

void EntryListDlg::ChangeSelected(TextView value) {
    const int row = SelectedRow(*rows);
    if (row < 0)
        return;
    auto& entry = listed[static_cast<std::size_t>(row)];
    entry.value = value;
    entries.Change(entry.name, value);
    rows->item(row)->setText(RowText(entry));
}

void EntryListDlg::RemoveSelected() {
    const auto& texts = entries.Texts();
    if (listed.empty())
        return host.boxes.Show(texts.emptyList);
    const int row = SelectedRow(*rows);
    if (row < 0)
        return host.boxes.Show(texts.nothingSelected);
    if (host.boxes.AskYesNo(texts.confirmRemoval) != Answer::Yes)
        return;
    entries.Remove(At(row).name);
    delete rows->takeItem(row);
    listed.erase(listed.begin() + row);
    Select(std::max(0, row - 1));
}

void EntryListDlg::ShowSelected() {
    const int row = SelectedRow(*rows);
    valueBox->setEnabled(row >= 0);
    const Text value = row < 0 ? Text() : At(row).value;
    if (textBox != nullptr) {
        textBox->setMaxLength(static_cast<int>(entries.ValueLimit(row < 0 ? TextView() : At(row).name)));
        textBox->setText(ToQString(value));
        textBox->setCursorPosition(0);
        return;
    }
    // To be shown changes nothing, not even a number that the box cannot hold.
    const QSignalBlocker quiet(numberBox);
    numberBox->setValue(ToQString(value).toInt());
}

void EntryListDlg::Find(const QString& text) {
    if (text.isEmpty())
        return;
    for (const auto how : {Qt::MatchStartsWith, Qt::MatchContains})
        if (const auto found = rows->findItems(text, how); !found.isEmpty())
            return Select(rows->row(found.front()));
}

void EntryListDlg::Select(int row) {
    rows->setCurrentRow(row);
    ShowSelected();
}

int EntryListDlg::RowOf(TextView name) const {
    const Text key = entries.Key(name);
    const auto found = std::ranges::find_if(
        listed, [&](const ListedEntry& entry) { return entries.Key(entry.name) == key; });
    return found == listed.end() ? -1 : static_cast<int>(found - listed.begin());
}

void EntryListDlg::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && nameField->hasFocus())
        Add();
    else if (enter && findField->hasFocus())
        rows->setFocus();
    else if (enter && valueBox->hasFocus())
        nameField->setFocus();
    else
        BaseDialog::keyPressEvent(event);
}

} // namespace ondrilo
