#include "dialogs/options/OptionFields.h"

#include "dialogs/options/ColorField.h"
#include "dialogs/options/WheelGuard.h"
#include "platform/qt/QtConversion.h"
#include "profiles/OptionLines.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QRegularExpressionValidator>

namespace ondrilo {
namespace {

/// Refuses what the file could not give back.
class LineValidator : public QValidator {
  public:
    LineValidator(TextView key, QObject* parent) : QValidator(parent), keySize(key.size()) {}
    State validate(QString& text, int&) const override {
        const auto written = BlanksToMarks(FromQString(text));
        const bool fits = keySize + 1 + written.size() < kOptionLineLimit;
        const bool isOneWord = written.find_first_of("\t\n\v\f\r") == Text::npos;
        return fits && isOneWord && ToQString(FromQString(text)) == text ? Acceptable : Invalid;
    }

  private:
    std::size_t keySize;
};

template <typename Control>
Control* Named(Control* control, TextView key) {
    control->setObjectName(ToQString(key));
    return control;
}

} // namespace

QWidget* OptionFields::Create(IntegerOption option, const QString& detail) const {
    const auto& row = RowOf(option);
    if (row.kind == OptionKind::Switch)
        return Named(CreateSwitch(option, detail), row.key);
    if (row.kind == OptionKind::Color)
        return Named(CreateColor(option), row.key);
    auto* number = CreateNumber({row.least, row.most, row.Step()}, draft.Properties().Get(option),
                                [&draft = draft, option](int value) { draft.Set(option, value); });
    number->setSuffix(detail);
    return Named(number, row.key);
}

QWidget* OptionFields::CreateSwitch(IntegerOption option, const QString& text) const {
    auto* box = new QCheckBox(text);
    box->setChecked(draft.Properties().IsOn(option));
    QObject::connect(box, &QCheckBox::toggled, &draft,
                     [&draft = draft, option](bool on) { draft.Set(option, on ? 1 : 0); });
    return box;
}

QWidget* OptionFields::CreateColor(IntegerOption option) const {
    auto* field = new ColorField(draft.Properties().Get(option), desktop);
    QObject::connect(field, &ColorField::Chosen, &draft,
                     [&draft = draft, option](Color color) { draft.Set(option, color); });
    return field;
}

QSpinBox* OptionFields::CreateNumber(const Range& range, int value,
                                     const std::function<void(int)>& store) const {
    const int shown = OnStep(value, range.step, range.least);
    if (shown != value)
        store(shown);
    auto* box = new QSpinBox;
    new WheelGuard(box);
    box->setRange(std::min(range.least, shown), std::max(range.most, shown));
    box->setSingleStep(range.step);
    // A number that is half typed would be brought to its step under the person's fingers.
    box->setKeyboardTracking(range.step == 1);
    box->setValue(shown);
    QObject::connect(box, &QSpinBox::valueChanged, &draft, [box, range, store](int changed) {
        const int onStep = OnStep(changed, range.step, range.least);
        if (onStep != changed)
            return box->setValue(onStep);
        store(changed);
    });
    return box;
}

QWidget* OptionFields::Create(AccessOption option) const {
    const auto& row = RowOf(option);
    const auto value = draft.Access().Get(option);
    auto* number =
        CreateNumber({row.least, row.most, row.step}, value.value_or(0),
                     [&draft = draft, option](int changed) { draft.Set(option, std::optional(changed)); });
    number->setSuffix(ToQString(row.unit));
    number->setSpecialValueText(ToQString(row.leastName));
    Named(number, row.key);
    return row.absentName.empty() ? number : CreateWithAbsence(option, number);
}

QWidget* OptionFields::CreateWithAbsence(AccessOption option, QSpinBox* number) const {
    const auto& row = RowOf(option);
    const bool isAbsent = !draft.Access().Get(option);
    auto* absence = new QCheckBox(ToQString(row.absentName));
    absence->setObjectName(ToQString(Text(row.key) + "_absent"));
    absence->setChecked(isAbsent);
    number->setDisabled(isAbsent);
    QObject::connect(absence, &QCheckBox::toggled, number, [&draft = draft, option, number](bool absent) {
        number->setDisabled(absent);
        draft.Set(option, absent ? std::nullopt : std::optional(number->value()));
    });
    auto* field = new QWidget;
    auto* both = new QHBoxLayout(field);
    both->setContentsMargins({});
    both->addWidget(number);
    both->addWidget(absence);
    both->addStretch();
    return field;
}

QLineEdit* OptionFields::Create(RealOption option) const {
    auto* line = new QLineEdit(QString::number(draft.Properties().Get(option), 'f', 6));
    line->setValidator(
        new QRegularExpressionValidator(QRegularExpression("-?\\d{0,3}([.,]\\d{0,6})?"), line));
    QObject::connect(line, &QLineEdit::textEdited, &draft, [&draft = draft, option](QString text) {
        draft.Set(option, text.replace(',', '.').toDouble());
    });
    return Named(line, RowOf(option).key);
}

QLineEdit* OptionFields::Create(TextOption option) const {
    auto* line = new QLineEdit(ToQString(draft.Properties().Get(option)));
    line->setValidator(new LineValidator(RowOf(option).key, line));
    QObject::connect(line, &QLineEdit::textChanged, &draft,
                     [&draft = draft, option](const QString& text) { draft.Set(option, FromQString(text)); });
    return Named(line, RowOf(option).key);
}

QComboBox* OptionFields::CreateChoice(TextOption option, const std::vector<Text>& choices) const {
    auto* box = new QComboBox;
    new WheelGuard(box);
    for (const auto& choice : choices)
        box->addItem(ToQString(choice), ToQString(choice));
    const auto value = ToQString(draft.Properties().Get(option));
    if (box->findData(value) < 0)
        box->addItem(value.isEmpty() ? value : QObject::tr("%1 (não disponível)").arg(value), value);
    box->setCurrentIndex(box->findData(value));
    QObject::connect(box, &QComboBox::currentIndexChanged, &draft, [&draft = draft, option, box] {
        draft.Set(option, FromQString(box->currentData().toString()));
    });
    return Named(box, RowOf(option).key);
}

QWidget* OptionFields::CreateRadios(IntegerOption option, const std::vector<OptionChoice>& choices) const {
    auto* field = new QWidget;
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins({});
    auto* group = new QButtonGroup(field);
    for (const auto& [value, text] : choices) {
        auto* button = new QRadioButton(text);
        button->setObjectName(QString("%1_%2").arg(ToQString(RowOf(option).key)).arg(value));
        button->setChecked(draft.Properties().Get(option) == value);
        group->addButton(button, value);
        row->addWidget(button);
    }
    row->addStretch();
    QObject::connect(group, &QButtonGroup::idToggled, &draft,
                     [&draft = draft, option](int value, bool checked) {
                         if (checked)
                             draft.Set(option, value);
                     });
    return Named(field, RowOf(option).key);
}

} // namespace ondrilo
