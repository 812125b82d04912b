#include "app/ui/QtOptionDialogs.h"

namespace ondrilo {

bool QtOptionDialogs::EditProfileOptions(const PersonalOptions&, const ProfileOptionSources&) {
    return false;
}

bool QtOptionDialogs::EditSystemOptions(CSystemOptions&, SystemOptionSources&) {
    return false;
}

} // namespace ondrilo
