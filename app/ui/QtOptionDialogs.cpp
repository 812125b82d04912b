#include "app/ui/QtOptionDialogs.h"

#include "dialogs/CSystemOptionsDlg.h"
#include "dialogs/options/CUserProfileOptionsPSheet.h"

namespace ondrilo {

bool QtOptionDialogs::EditProfileOptions(const PersonalOptions& options,
                                         const ProfileOptionSources& sources) {
    return CUserProfileOptionsPSheet(options, sources, host).Run();
}

bool QtOptionDialogs::EditSystemOptions(CSystemOptions& options, SystemOptionSources& sources) {
    return CSystemOptionsDlg(host, options, sources).Run();
}

} // namespace ondrilo
