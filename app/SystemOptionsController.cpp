#include "app/SystemOptionsController.h"

namespace ondrilo {

SystemOptionsController::SystemOptionsController(const Environment& environment, CUserProfileSet& profiles,
                                                 CSystemOptions& options, WindowPlacement& placement,
                                                 EventWriter& events, const SessionServices& services)
    : boxes(environment.boxes), dialogs(environment.dialogs), optionDialogs(environment.optionDialogs),
      frame(environment.frame), profiles(profiles), options(options), placement(placement), events(events),
      services(services) {
}

void SystemOptionsController::EditOptions() {
    if (!options.IsOn(system_option::ALTERACOES_SISTEMA) && !options.UnlockChanges(dialogs, boxes))
        return;
    const auto before = options;
    events.Event("MENU_OPTION_SELECTION", "SYSTEM_OPTIONS_DIALOG_OPENED");
    (void)optionDialogs.EditSystemOptions(options, *this);
    events.Event("MENU_OPTION_SELECTION", "SYSTEM_OPTIONS_DIALOG_CLOSED");
    // Now and not at the program's end: a crash must not open a lock that was closed.
    if (const auto saved = options.Save(); !saved)
        frame.SetStatusMessage(saved.problem);
    RestartSources(before);
    placement.RefreshTitle();
}

void SystemOptionsController::RestartSources(const CSystemOptions& before) {
    const auto changed = [&](TextSystemOption option) {
        return before.Get(option) != options.Get(option);
    };
    if (changed(system_option::MODO_PROCURA_ETIQUETAS_BLUETOOTH)) {
        services.bluetooth.Stop();
        services.bluetooth.StartMechanism(options.Get(system_option::MODO_PROCURA_ETIQUETAS_BLUETOOTH));
    }
    if (changed(system_option::PORTA_GPS)) {
        services.gps.Stop();
        services.gps.Start(options.Get(system_option::PORTA_GPS));
    }
}

} // namespace ondrilo
