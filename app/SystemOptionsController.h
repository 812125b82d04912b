#pragma once

#include "app/Environment.h"
#include "app/EventWriter.h"
#include "app/SessionServices.h"
#include "app/WindowPlacement.h"

namespace ondrilo {

/// "Opções Gerais": the options of the installation, behind their password when changes are locked.
class SystemOptionsController : private SystemOptionSources {
  public:
    SystemOptionsController(const Environment& environment, CUserProfileSet& profiles,
                            CSystemOptions& options, WindowPlacement& placement, EventWriter& events,
                            const SessionServices& services);

    void EditOptions();

  private:
    void RestartSources(const CSystemOptions& before);

    [[nodiscard]] std::vector<Text> ProfileNames() const override { return profiles.GetProfileNames(); }
    [[nodiscard]] std::vector<Text> GpsPorts() const override { return services.gps.Ports(); }
    [[nodiscard]] std::vector<Text> BluetoothMechanisms() const override {
        return services.bluetooth.Mechanisms();
    }
    [[nodiscard]] Text ChooseProfile() override { return profiles.ChooseProfile(); }
    [[nodiscard]] bool PassesLock() override { return CSystemOptions::PassesLock(dialogs, boxes); }

    MessageBoxes& boxes;
    Dialogs& dialogs;
    OptionDialogs& optionDialogs;
    FrameWindow& frame;
    CUserProfileSet& profiles;
    CSystemOptions& options;
    WindowPlacement& placement;
    EventWriter& events;
    SessionServices services;
};

} // namespace ondrilo
