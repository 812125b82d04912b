#pragma once

#include "dialogs/BaseDialog.h"
#include "dialogs/options/OptionGroup.h"

namespace ondrilo {

/// What the pages work with; all of it outlives them.
struct OptionsPageContext {
    OptionsDraft& draft;
    const ProfileOptionSources& sources;
    const DialogHost& host;
};

/// The base of the pages: a heading over groups of options, which scroll where they do not fit.
class OptionsPage : public QWidget {
    Q_OBJECT

  public:
    [[nodiscard]] const QString& Title() const { return title; }

  protected:
    OptionsPage(const OptionsPageContext& context, const char* objectName, const QString& title);

    [[nodiscard]] OptionGroup& AddGroup(const QString& groupTitle);
    void AddWidget(QWidget* widget);
    /// Between the heading and what scrolls.
    void AddFixed(QWidget* widget);

    OptionsPageContext context;
    OptionFields fields;

  private:
    QString title;
    QVBoxLayout* rows = new QVBoxLayout(this);
    QVBoxLayout* content = nullptr;
};

} // namespace ondrilo
