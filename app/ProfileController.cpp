#include "app/ProfileController.h"

namespace ondrilo {

ProfileController::ProfileController(const Environment& environment, CUserProfileSet& profiles,
                                     SessionController& session, LoggingController& logging,
                                     PredictionCycle& cycle, EventWriter& events)
    : dialogs(environment.dialogs), optionDialogs(environment.optionDialogs),
      speechEngine(environment.speechEngine), profiles(profiles), session(session), logging(logging),
      cycle(cycle), events(events) {
}

void ProfileController::CreateProfile() {
    const auto name =
        dialogs.AskProfileName([this](TextView typed) { return profiles.ObjectionToName(typed); });
    if (name)
        session.CreateProfile(*name);
}

void ProfileController::OpenProfile() {
    const auto name = profiles.ChooseProfile();
    if (name.empty())
        return;
    if (events.IsOpen())
        events.Event("MENU_OPTION_SELECTION", "USER_PROFILE_LOAD_" + name);
    session.ChangeProfile(name, true);
}

void ProfileController::EditOptions() {
    auto& profile = profiles.Active();
    const auto before = profile.properties;
    events.Event("MENU_OPTION_SELECTION", "USER_PROFILE_OPTIONS_DIALOG_OPENED");
    const bool accepted = profile.EditOptions(optionDialogs, *this);
    events.Event("MENU_OPTION_SELECTION", "USER_PROFILE_OPTIONS_DIALOG_CLOSED");
    if (!accepted) {
        // Exceptions of a voice were written all the same, and a voice may be heard on trial.
        session.SelectVoices();
        return;
    }
    // Now and not when the profile is left: the configurator's work must survive a crash.
    profiles.SaveActive();
    session.ApplyOptions(before);
    cycle.RunPrediction();
}

void ProfileController::CopyOptions() {
    if (!profiles.CopyFromProfile())
        return;
    profiles.SaveActive();
    session.ChangeProfile(profiles.Active().properties.profileName, true);
}

void ProfileController::RemoveLogs() {
    const auto name = profiles.ChooseProfile();
    if (name.empty())
        return;
    logging.EndLog();
    profiles.RemoveLogs(name);
    auto& properties = profiles.Active().properties;
    const auto keyboard = properties.activeKeyboardName;
    profiles.Open(properties.profileName);
    properties.activeKeyboardName = keyboard;
    logging.StartLog();
    cycle.RunPrediction();
}

std::vector<Text> ProfileController::KeyboardNames() const {
    constexpr TextView extension = ".tec";
    auto names = profiles.Folder().Files(extension);
    for (auto& name : names)
        name.resize(name.size() - extension.size());
    return names;
}

} // namespace ondrilo
