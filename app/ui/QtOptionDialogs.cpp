#include "app/ui/QtOptionDialogs.h"

#include "dialogs/CSystemOptionsDlg.h"

namespace ondrilo {

bool QtOptionDialogs::EditProfileOptions(const PersonalOptions&, const ProfileOptionSources&) {
    return false;
}

bool QtOptionDialogs::EditSystemOptions(CSystemOptions& options, SystemOptionSources& sources) {
    return CSystemOptionsDlg(host, options, sources).Run();
}

} // namespace ondrilo
