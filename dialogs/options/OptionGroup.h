#pragma once

#include "dialogs/options/OptionFields.h"

#include <QFormLayout>
#include <QGroupBox>

namespace ondrilo {

/// A box of options that belong together, a row each: label and control.
class OptionGroup : public QGroupBox {
  public:
    OptionGroup(const QString& title, const OptionFields& fields);

    /// `detail` stands beside a check box ("Sim" by default), or is the unit behind a number; `label` takes
    /// the place of the table's.
    void Add(IntegerOption option, const QString& detail = {}, const QString& label = {});
    void Add(RealOption option);
    /// The label stands above: the text has the whole width.
    QLineEdit* Add(TextOption option);
    void Add(AccessOption option);
    void AddChoice(TextOption option, const std::vector<Text>& choices);
    void AddRadios(IntegerOption option, const QString& label, const std::vector<OptionChoice>& choices);
    void AddRow(const QString& label, QWidget* field);
    void AddWide(QWidget* widget) { form->addRow(widget); }
    /// A sentence under the rows so far.
    void AddNote(const QString& text);

  private:
    const OptionFields& fields;
    QFormLayout* form = new QFormLayout(this);
};

/// Gives a control the name that assistive programs tell: the label without its colon.
void NameField(QWidget& field, const QString& label);

} // namespace ondrilo
