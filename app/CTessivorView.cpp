#include "app/CTessivorView.h"

#include "app/Notice.h"

namespace ondrilo {
namespace {

/// Time that the sources of the context get for their first readings.
constexpr Milliseconds kFirstReadings{20'000};

bool IsOnScreenKey(Message message) {
    return message == Message::UM_KEY_PRESS || message == Message::UM_SCAN_KEY_SELECTED;
}

} // namespace

CTessivorView::CTessivorView(const Environment& environment, const SessionServices& services)
    : environment(environment), services(services),
      userProfiles(environment.dataFolder, environment.boxes, environment.dialogs,
                   [this](TextView text) { this->environment.frame.SetStatusMessage(text); }),
      keyboardSimulator(environment.keys), writingClock(environment.clock),
      events(environment.frame, environment.keys, services.log, userProfiles, targets, keyboard, state),
      specialKeys(userProfiles, keyboardSimulator.keySet, targets),
      predictionKeys(keyboard, predictions, specialKeys, userProfiles),
      cycle(userProfiles, targets, predictions, predictionKeys, services),
      placement(environment, userProfiles, systemOptions, keyboard, targets, services),
      chrome(environment.frame, userProfiles), caretFollower(environment, userProfiles, keyboard, targets),
      preview(environment.windows, environment.desktop, targets), learning(userProfiles, targets),
      speech(userProfiles, targets, learning, services), sender(keyboardSimulator, keyboard, state),
      scanning(environment, userProfiles, keyboard, speech, events),
      keyboards(environment, userProfiles, keyboard, predictionKeys, predictions, placement, sender, speech,
                scanning, events, countdowns, services),
      logging(environment, userProfiles, targets, scanning, writingClock, state, services),
      targetController(environment, userProfiles, targets, specialKeys, preview, cycle, sender,
                       keyboardSimulator, countdowns, events),
      completion(userProfiles, targets, predictionKeys, keyboard, cycle, learning, keyboardSimulator, state,
                 services),
      selections(userProfiles, systemOptions, targets, keyboard, predictionKeys, completion, sender, speech,
                 preview, keyboardSimulator, events, state, services),
      abbreviations(userProfiles, targets, cycle, speech, preview, keyboardSimulator, events, state,
                    services),
      session(environment, userProfiles, keyboards, scanning, logging, placement, targetController, preview,
              predictionKeys, predictions, sender, keyboardSimulator, commands, state, services),
      clock(environment, userProfiles, systemOptions, targetController, cycle, countdowns, writingClock,
            placement, caretFollower, services, [this](TextView name) { session.ChangeProfile(name); }),
      commandController(environment, userProfiles, targets, keyboard, predictionKeys, cycle, speech,
                        keyboards, logging, placement, keyboardSimulator, events, state, services,
                        [this](TextView name) { session.ChangeProfile(name); }),
      keySelection(keyboard, predictionKeys, keyboardSimulator.keySet, specialKeys, keyboards,
                   commandController, selections, abbreviations),
      router(userProfiles, targets, keyboard, predictionKeys, specialKeys, keySelection, selections,
             abbreviations, speech, learning, preview, sender, scanning, placement, chrome, countdowns,
             writingClock, events, state, services),
      profileController(environment, userProfiles, session, logging, cycle, events),
      vocabulary(environment, userProfiles, predictions, cycle), bulkLearning(environment, userProfiles),
      systemOptionsController(environment, userProfiles, systemOptions, placement, events, services),
      simulators(environment, userProfiles, cycle),
      menuController(environment, systemOptions, keyboard, profileController, vocabulary, logging,
                     bulkLearning, systemOptionsController, simulators, chrome, countdowns, services) {
    session.SetClock(clock);
    environment.frame.SetListener(this);
}

CTessivorView::~CTessivorView() {
    environment.frame.SetListener(nullptr);
}

void CTessivorView::OnInitialUpdate() {
    const auto notice = ShowNotice(environment.windows, environment.desktop, kStartingNotice);
    services.userRecord.Open();
    systemOptions.Load(environment.dataFolder.Path("configsis"));
    userProfiles.Load();
    profilesReady = true;
    services.gps.Start(systemOptions.Get(system_option::PORTA_GPS));
    services.bluetooth.Start();
    userProfiles.Open(StartProfile());
    session.StartSession();
    // Once in its life the window takes the focus, so that the editor is the first target.
    if (targets.Internal() && environment.frame.State() != WindowState::Minimized)
        environment.frame.Activate();
}

Text CTessivorView::StartProfile() {
    if (systemOptions.IsOn(system_option::ADAPTACAO_CONTEXTO)) {
        environment.clock.Sleep(kFirstReadings);
        return services.context.GetStartProfile();
    }
    const auto& name = systemOptions.Get(system_option::PERFIL_UTILIZADOR_ARRANQUE);
    return name.empty() ? Text(kGenericProfile) : name;
}

void CTessivorView::Handle(const MessageEvent& event) {
    if (!session.IsRunning())
        return;
    // Scanning goes on behind a dialog, but nothing there may change what the dialog is about.
    if (menuController.IsRunning() && IsOnScreenKey(event.message))
        return;
    router.Handle(event);
}

void CTessivorView::OnActivateView() {
    if (session.IsRunning())
        chrome.OnActivate();
}

void CTessivorView::OnDraw() {
    if (!profilesReady || userProfiles.ActiveIndex() < 0)
        return;
    placement.RefreshTitle();
    if (keyboard.IsOpen() && !services.cooperation.IsUp())
        predictionKeys.Show();
    if (session.IsRunning())
        targetController.OnExposed();
}

void CTessivorView::OnKeyDown(int code, std::int32_t keyData) {
    if (session.IsRunning())
        router.OnKeyDown(code, keyData);
}

void CTessivorView::OnKeyUp(int code, std::int32_t) {
    if (session.IsRunning())
        router.OnKeyUp(code);
}

void CTessivorView::OnMenuCommand(int command) {
    // While the profile changes, a question may be open: no second change may begin inside the first.
    if (session.IsRunning())
        menuController.Execute(command);
}

void CTessivorView::OnDestroy() {
    services.userRecord.Close();
    services.bluetooth.Stop();
    services.gps.Stop();
    session.StopSession();
    profilesReady = false;
    userProfiles.Release();
    userProfiles.Close();
    if (const auto saved = systemOptions.Save(); !saved)
        environment.frame.SetStatusMessage(saved.problem);
}

} // namespace ondrilo
