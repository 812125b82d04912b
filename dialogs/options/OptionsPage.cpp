#include "dialogs/options/OptionsPage.h"

#include "dialogs/ScrolledContent.h"

#include <QLabel>

namespace ondrilo {

OptionsPage::OptionsPage(const OptionsPageContext& context, const char* objectName, const QString& title)
    : context(context), fields(context.draft, context.host.desktop), title(title) {
    setObjectName(objectName);
    auto* heading = new QLabel(title);
    auto headingFont = heading->font();
    headingFont.setBold(true);
    heading->setFont(headingFont);
    auto* scrolled = new QWidget;
    content = new QVBoxLayout(scrolled);
    content->addStretch();
    rows->setContentsMargins({});
    rows->addWidget(heading);
    rows->addWidget(new ScrolledContent(scrolled), 1);
}

OptionGroup& OptionsPage::AddGroup(const QString& groupTitle) {
    auto* group = new OptionGroup(groupTitle, fields);
    AddWidget(group);
    return *group;
}

void OptionsPage::AddWidget(QWidget* widget) {
    content->insertWidget(content->count() - 1, widget);
}

void OptionsPage::AddFixed(QWidget* widget) {
    rows->insertWidget(rows->count() - 1, widget);
}

} // namespace ondrilo
