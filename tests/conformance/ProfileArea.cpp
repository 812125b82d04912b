#include "profiles/CSystemOptions.h"
#include "profiles/CUserProfileProperties.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {
namespace {

/// The options of a profile and their file.
class ProfileArea : public Area {
  public:
    explicit ProfileArea(const std::filesystem::path& folder) {
        OnFile(folder);
        On("profile_defaults", [](const auto&) { return CUserProfileProperties().Format(); });
        On("profile_load_absent", [folder](const auto& a) {
            CUserProfileProperties absent;
            absent.Load(a.In(folder));
            return absent.Format();
        });
        On("profile_load", [this, folder](const auto& a) {
            profile = {};
            profile.Load(a.In(folder));
        });
        On("profile_save", [this](const auto&) { return profile.Save(); });
        On("profile_value", [this](const auto& a) { return ValueOf(a.at(0)); });
        On("profile_active_keyboard", [this](const auto&) { return profile.activeKeyboardName; });
        On("profile_spans", [this](const auto& a) { return Text(profile.GetTimeSpans(a.Integer(0))); });
    }

  private:
    [[nodiscard]] Values ValueOf(const Text& key) const {
        const ProfileOption* option = FindProfileOption(key);
        if (!option)
            return {};
        if (option->IsInteger())
            return {Number(profile.Get(static_cast<IntegerOption>(option->index)))};
        if (option->IsText())
            return {profile.Get(static_cast<TextOption>(option->index))};
        return {Real(profile.Get(static_cast<RealOption>(option->index)))};
    }

    CUserProfileProperties profile;
};

/// The options of the installation and their file.
class OptionsArea : public Area {
  public:
    explicit OptionsArea(const std::filesystem::path& folder) {
        OnFile(folder);
        On("options_defaults", [](const auto&) { return CSystemOptions().Format(); });
        On("options_load", [this, folder](const auto&) {
            options = {};
            options.Load(folder / "configsis");
        });
        On("options_value", [this](const auto& a) { return ValueOf(a.at(0)); });
        On("options_set", [this](const auto& a) { Set(a.at(0), a.at(1)); });
        On("options_set_priorities", [this](const auto& a) { options.SetPriorities(a); });
        On("options_save", [this](const auto&) { return options.Save(); });
    }

  private:
    static const SystemOption* Find(const Text& key) {
        const auto* option = std::find_if(std::begin(kSystemOptions), std::end(kSystemOptions),
                                          [&key](const SystemOption& known) { return known.key == key; });
        return option == std::end(kSystemOptions) ? nullptr : option;
    }
    [[nodiscard]] Values ValueOf(const Text& key) {
        const SystemOption* option = Find(key);
        if (!option)
            return {};
        if (option->kind == SystemOptionKind::Integer)
            return {Number(options.Get(static_cast<IntegerSystemOption>(option->index)))};
        if (option->kind == SystemOptionKind::List)
            return options.GetPriorities();
        return {options.Get(static_cast<TextSystemOption>(option->index))};
    }
    void Set(const Text& key, const Text& value) {
        const SystemOption* option = Find(key);
        if (!option)
            return;
        if (option->kind == SystemOptionKind::Integer)
            options.Set(static_cast<IntegerSystemOption>(option->index), ToNumber(value));
        else
            options.Set(static_cast<TextSystemOption>(option->index), value);
    }

    CSystemOptions options;
};

} // namespace

const AreaMaker kProfileArea = Make<ProfileArea>;
const AreaMaker kOptionsArea = Make<OptionsArea>;

} // namespace ondrilo::conformance
