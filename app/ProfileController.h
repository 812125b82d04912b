#pragma once

#include "app/SessionController.h"

namespace ondrilo {

/// What the menu does with profiles: new, open, remove, their options and their event logs.
class ProfileController : private ProfileOptionSources {
  public:
    ProfileController(const Environment& environment, CUserProfileSet& profiles, SessionController& session,
                      LoggingController& logging, PredictionCycle& cycle, EventWriter& events);

    void CreateProfile();
    void OpenProfile();
    void RemoveProfile() { profiles.RemoveProfile(); }
    void EditOptions();
    void CopyOptions();
    void CopyLogs() { profiles.CopyLogs(); }
    void RemoveLogs();

  private:
    [[nodiscard]] std::vector<Text> KeyNames() const override { return StandardKeys().GetFreeKeyNames(); }
    [[nodiscard]] std::vector<Text> KeyboardNames() const override;
    [[nodiscard]] SpeechEngine& Speech() const override { return speechEngine; }
    [[nodiscard]] const DataFolder& Folder() const override { return profiles.Folder(); }

    Dialogs& dialogs;
    OptionDialogs& optionDialogs;
    SpeechEngine& speechEngine;
    CUserProfileSet& profiles;
    SessionController& session;
    LoggingController& logging;
    PredictionCycle& cycle;
    EventWriter& events;
};

} // namespace ondrilo
