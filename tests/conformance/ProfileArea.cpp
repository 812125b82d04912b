#include "tests/conformance/ProfileArea.h"

namespace ondrilo::conformance {

ProfileArea::ProfileArea(const std::filesystem::path& folder) {
    OnFile(folder);
    On("profile_defaults", [](const Arguments&) { return Values{CUserProfileProperties().Format()}; });
    On("profile_load_absent", [folder](const Arguments& a) {
        CUserProfileProperties absent;
        absent.Load(folder / ToUtf8(a.at(0)));
        return Values{absent.Format()};
    });
    On("profile_load", [this, folder](const Arguments& a) {
        profile = {};
        profile.Load(folder / ToUtf8(a.at(0)));
        return Values{};
    });
    On("profile_save", [this](const Arguments&) { return Problem(profile.Save()); });
    On("profile_value", [this](const Arguments& a) { return ValueOf(a.at(0)); });
    On("profile_active_keyboard", [this](const Arguments&) { return Values{profile.activeKeyboardName}; });
    On("profile_spans",
       [this](const Arguments& a) { return Values{Text(profile.GetTimeSpans(ToInteger(a.at(0))))}; });
}

Values ProfileArea::ValueOf(const Text& key) const {
    const ProfileOption* option = FindProfileOption(key);
    if (!option)
        return {};
    if (option->IsInteger())
        return {Number(profile.Get(static_cast<IntegerOption>(option->index)))};
    if (option->IsText())
        return {profile.Get(static_cast<TextOption>(option->index))};
    return {Real(profile.Get(static_cast<RealOption>(option->index)))};
}

} // namespace ondrilo::conformance
