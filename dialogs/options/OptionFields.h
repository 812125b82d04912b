#pragma once

#include "dialogs/options/OptionsDraft.h"
#include "platform/Desktop.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include <functional>

namespace ondrilo {

/// A value that a radio button stands for, with the button's text.
struct OptionChoice {
    int value;
    QString text;
};

/// Makes the controls of options from the rows of their table. A control shows the value of the draft and
/// writes there when the person changes it, and only then: a value that it could not offer, from a file of
/// another hand or program, shows as it is and stays until somebody touches the control. Times that ticks
/// are counted up to are the exception: they are brought to their step at once. A control bears the
/// key as its object name.
class OptionFields {
  public:
    /// Both outlive the controls.
    OptionFields(OptionsDraft& draft, Desktop& desktop) : draft(draft), desktop(desktop) {}

    /// By the kind of the option: a check box with the text `detail`, a number with the unit `detail`, or a
    /// colour.
    [[nodiscard]] QWidget* Create(IntegerOption option, const QString& detail) const;
    [[nodiscard]] QLineEdit* Create(RealOption option) const;
    [[nodiscard]] QLineEdit* Create(TextOption option) const;
    /// A number; with a check box beside it if the absent value is none of its numbers.
    [[nodiscard]] QWidget* Create(AccessOption option) const;
    /// One of `choices`.
    [[nodiscard]] QComboBox* CreateChoice(TextOption option, const std::vector<Text>& choices) const;
    [[nodiscard]] QWidget* CreateRadios(IntegerOption option, const std::vector<OptionChoice>& choices) const;

  private:
    struct Range {
        int least, most, step;
    };

    [[nodiscard]] QWidget* CreateSwitch(IntegerOption option, const QString& text) const;
    [[nodiscard]] QWidget* CreateColor(IntegerOption option) const;
    [[nodiscard]] QWidget* CreateWithAbsence(AccessOption option, QSpinBox* number) const;
    [[nodiscard]] QSpinBox* CreateNumber(const Range& range, int value,
                                         const std::function<void(int)>& store) const;

    OptionsDraft& draft;
    Desktop& desktop;
};

} // namespace ondrilo
