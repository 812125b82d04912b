#pragma once

#include "dialogs/options/OptionsPage.h"

#include <QListWidget>
#include <QStackedWidget>

namespace ondrilo {

/// "Opções do Perfil de Utilizador": the areas at the left, the options of the chosen one beside them. On OK
/// the options take what was chosen on all pages; until then they stay as they are.
class CUserProfileOptionsPSheet : public BaseDialog {
    Q_OBJECT

  public:
    CUserProfileOptionsPSheet(const PersonalOptions& options, const ProfileOptionSources& sources,
                              const DialogHost& host);

  protected:
    void TryAccept() override;

  private:
    void AddPages(const ProfileOptionSources& sources);
    void AddPage(OptionsPage* page);

    PersonalOptions options;
    OptionsDraft draft;
    QListWidget* areas = new QListWidget;
    QStackedWidget* pages = new QStackedWidget;
};

} // namespace ondrilo
