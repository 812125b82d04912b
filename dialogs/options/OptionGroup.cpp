#include "dialogs/options/OptionGroup.h"

#include "platform/qt/QtConversion.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLabel>

namespace ondrilo {
namespace {

template <typename Option>
QString LabelOf(Option option) {
    return ToQString(RowOf(option).label);
}

} // namespace

OptionGroup::OptionGroup(const QString& title, const OptionFields& fields)
    : QGroupBox(title), fields(fields) {
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void OptionGroup::Add(IntegerOption option, const QString& detail, const QString& label) {
    const bool isSwitch = RowOf(option).kind == OptionKind::Switch;
    AddRow(label.isEmpty() ? LabelOf(option) : label,
           fields.Create(option, isSwitch && detail.isEmpty() ? QObject::tr("Sim") : detail));
}

void OptionGroup::Add(RealOption option) {
    auto* line = fields.Create(option);
    line->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    AddRow(LabelOf(option), line);
}

QLineEdit* OptionGroup::Add(TextOption option) {
    auto* line = fields.Create(option);
    auto* label = new QLabel(LabelOf(option));
    label->setWordWrap(true);
    label->setBuddy(line);
    NameField(*line, label->text());
    form->addRow(label);
    form->addRow(line);
    return line;
}

void OptionGroup::Add(AccessOption option) {
    AddRow(LabelOf(option), fields.Create(option));
}

void OptionGroup::AddChoice(TextOption option, const std::vector<Text>& choices) {
    AddRow(LabelOf(option), fields.CreateChoice(option, choices));
}

void OptionGroup::AddRadios(IntegerOption option, const QString& label,
                            const std::vector<OptionChoice>& choices) {
    AddRow(label, fields.CreateRadios(option, choices));
}

void OptionGroup::AddRow(const QString& label, QWidget* field) {
    NameField(*field, label);
    form->addRow(label, field);
}

void OptionGroup::AddNote(const QString& text) {
    auto* note = new QLabel(text);
    note->setWordWrap(true);
    form->addRow(note);
}

void NameField(QWidget& field, const QString& label) {
    auto name = label.trimmed();
    if (name.endsWith(':'))
        name.chop(1);
    field.setAccessibleName(name.trimmed());
    for (auto* number : field.findChildren<QAbstractSpinBox*>())
        if (number->accessibleName().isEmpty())
            number->setAccessibleName(field.accessibleName());
    for (auto* button : field.findChildren<QAbstractButton*>())
        button->setAccessibleName(QString("%1: %2").arg(field.accessibleName(), button->text().remove('&')));
}

} // namespace ondrilo
