#include "dialogs/options/CUserProfileOptionsPSheet.h"

#include "dialogs/options/CAccessPPage.h"
#include "dialogs/options/CAgentPPage.h"
#include "dialogs/options/CColorsPPage.h"
#include "dialogs/options/CDictionaryPPage.h"
#include "dialogs/options/CEventLogPPage.h"
#include "dialogs/options/CLocationAwarePPage.h"
#include "dialogs/options/COnScreenKeyboardPPage.h"
#include "dialogs/options/CPredictionPPage.h"
#include "dialogs/options/CScanningPPage.h"
#include "dialogs/options/CSpeechSynthesizerPPage.h"
#include "dialogs/options/CTimeAwarePPage.h"
#include "dialogs/options/CWindowPPage.h"

#include <QHBoxLayout>

namespace ondrilo {
namespace {

constexpr int kAreaCharacters = 24; // that the list of areas is wide; longer names are broken

} // namespace

CUserProfileOptionsPSheet::CUserProfileOptionsPSheet(const PersonalOptions& options,
                                                     const ProfileOptionSources& sources,
                                                     const DialogHost& host)
    : BaseDialog(host, DialogNumber::ProfileOptions, "profileOptionsDialog",
                 tr("Opções do Perfil de Utilizador")),
      options(options), draft(options) {
    areas->setObjectName("areas");
    areas->setAccessibleName(tr("Áreas de opções"));
    areas->setWordWrap(true);
    areas->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    areas->setSpacing(2);
    areas->setFixedWidth(static_cast<int>(QFontMetricsF(areas->font()).averageCharWidth() * kAreaCharacters) +
                         4 * areas->frameWidth());
    AddPages(sources);
    connect(areas, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);
    areas->setCurrentRow(0);

    auto* content = new QWidget;
    auto* row = new QHBoxLayout(content);
    row->addWidget(areas);
    row->addWidget(pages, 1);
    SetContent(content);
}

void CUserProfileOptionsPSheet::AddPages(const ProfileOptionSources& sources) {
    const OptionsPageContext context{draft, sources, host};
    AddPage(new CWindowPPage(context));
    AddPage(new COnScreenKeyboardPPage(context));
    AddPage(new CColorsPPage(context));
    AddPage(new CPredictionPPage(context));
    AddPage(new CDictionaryPPage(context));
    AddPage(new CSpeechSynthesizerPPage(context));
    AddPage(new CScanningPPage(context));
    AddPage(new CAccessPPage(context));
    AddPage(new CTimeAwarePPage(context));
    AddPage(new CLocationAwarePPage(context));
    AddPage(new CAgentPPage(context));
    AddPage(new CEventLogPPage(context));
}

void CUserProfileOptionsPSheet::AddPage(OptionsPage* page) {
    areas->addItem(page->Title());
    pages->addWidget(page);
}

void CUserProfileOptionsPSheet::TryAccept() {
    // A number that is still being typed counts: a mnemonic takes no focus away from it.
    if (auto* number = qobject_cast<QAbstractSpinBox*>(focusWidget()))
        number->interpretText();
    draft.StoreTo(options);
    accept();
}

} // namespace ondrilo
