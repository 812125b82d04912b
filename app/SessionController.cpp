#include "app/SessionController.h"

#include "app/AgentPlace.h"
#include "app/Notice.h"

#include <utility>

namespace ondrilo {
namespace {

class WaitCursor {
  public:
    explicit WaitCursor(FrameWindow& frame) : frame(frame) { frame.SetBusy(true); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { frame.SetBusy(false); }

  private:
    FrameWindow& frame;
};

constexpr int kPreviewMargin = 5;

} // namespace

SessionController::SessionController(const Environment& environment, CUserProfileSet& profiles,
                                     KeyboardController& keyboards, ScanningController& scanning,
                                     LoggingController& logging, WindowPlacement& placement,
                                     TargetController& targetController, PreviewController& preview,
                                     PredictionKeys& keys, Predictions& predictions, KeySender& sender,
                                     CKeyboard& keyboardSimulator, CCommands& commands, SessionState& state,
                                     const SessionServices& services)
    : queue(environment.queue), frame(environment.frame), windows(environment.windows),
      desktop(environment.desktop), profiles(profiles), keyboards(keyboards), scanning(scanning),
      logging(logging), placement(placement), targetController(targetController), preview(preview),
      keys(keys), predictions(predictions), sender(sender), keyboardSimulator(keyboardSimulator),
      commands(commands), state(state), services(services) {
}

void SessionController::StartSession() {
    const WaitCursor wait(frame);
    running = true;
    logging.ResetMetrics();
    scanning.Reset();
    logging.StartLog();
    SelectVoices();
    keyboards.LoadKeyboard(Options().activeKeyboardName);
    keyboards.Announce();
    placement.SetUpWindow();
    StartAgent();
    predictions.ClearResults();
    keys.lists.RestartPaging();
    keys.text.ClearHotKeys();
    services.context.Reset();
    targetController.CreateInternalEditor();
    targetController.StartFollowing();
    placement.LayOut();
    CreatePreview();
    state.ForgetSelection();
    state.lastKeyCode = -1;
    keyboardSimulator.Initialize();
    commands.SetProfileNames([this] { return profiles.GetProfileNames(); });
    clock->StartTimers();
    frame.Redraw();
}

void SessionController::SelectVoices() {
    const auto& name = Options().Get(option::NOME_SINTETIZADOR_FALA);
    const auto& access = profiles.Active().access;
    ReleaseVoices();
    if (name == kNoVoice)
        return;
    services.cueSpeech.SelectVoice(access.CueVoice().empty() ? name : access.CueVoice(), access.CueManner());
    services.speech.SelectVoice(name, access.Manner());
}

void SessionController::ReleaseVoices() {
    services.speech.Release();
    services.cueSpeech.Release();
}

void SessionController::StartAgent() {
    if (!Options().IsOn(option::AGENTE_ACTIVO))
        return;
    hasAgent = services.agent.Start(Options().Get(option::NOME_AGENTE), AgentPlace(frame));
    if (!hasAgent)
        profiles.Active().Set(option::AGENTE_ACTIVO, 0);
}

void SessionController::StopAgent() {
    if (std::exchange(hasAgent, false))
        services.agent.Stop();
}

void SessionController::CreatePreview() {
    // The colours stand crosswise on purpose: the preview looks like a lit key.
    preview.Create(
        {{Options().Get(option::TIPO_LETRA), Options().Get(option::TAMANHO_LETRAS_PALAVRAS_PREDITAS)},
         Options().Get(option::COR_LETRAS),
         Options().Get(option::COR_FUNDO),
         kPreviewMargin});
}

void SessionController::StopSession() {
    if (!running)
        return;
    running = false;
    const MessageQueue::Hold hold(queue);
    logging.EndLog();
    if (services.cooperation.IsUp())
        services.cooperation.End();
    commands.SetProfileNames({});
    sender.ReleaseShift();
    keyboardSimulator.keySet.Clear();
    clock->StopTimers();
    preview.Destroy();
    targetController.StopFollowing();
    StopAgent();
    keyboards.CloseKeyboard();
    placement.ClearBackground();
    ReleaseVoices();
    frame.Redraw();
    queue.Clear();
}

void SessionController::ChangeProfile(TextView name, bool withNotice) {
    // A copy: the name may belong to the session that ends.
    const Text profile(name);
    StopSession();
    const auto notice = withNotice ? ShowNotice(windows, desktop, kLoadingProfileNotice) : nullptr;
    profiles.Open(profile);
    StartWithOwnKeyboard();
}

void SessionController::CreateProfile(TextView name) {
    StopSession();
    profiles.CreateProfile(name);
    StartWithOwnKeyboard();
}

void SessionController::StartWithOwnKeyboard() {
    auto& properties = profiles.Active().properties;
    properties.activeKeyboardName = properties.Get(option::NOME_TECLADO);
    StartSession();
}

void SessionController::ApplyOptions(const CUserProfileProperties& before) {
    const auto changed = [&](auto... options) {
        return ((before.Get(options) != Options().Get(options)) || ...);
    };
    const WaitCursor wait(frame);
    if (changed(option::REGISTAR_EVENTOS))
        Options().IsOn(option::REGISTAR_EVENTOS) ? logging.StartLog() : logging.EndLog();
    SelectVoices();
    if (changed(option::AGENTE_ACTIVO, option::NOME_AGENTE)) {
        StopAgent();
        StartAgent();
    }
    if (changed(option::TEMPO_INACTIVIDADE_COMUNICACAO))
        clock->RestartSilence();
    placement.ShowBackground();
    if (!Options().IsOn(option::PROCESSADOR_TEXTO_INTERNO))
        logging.KeepFinalText();
    targetController.ApplyOptions();
    if (changed(option::NOME_TECLADO))
        profiles.Active().properties.activeKeyboardName = Options().Get(option::NOME_TECLADO);
    keyboards.Reopen();
    CreatePreview();
    placement.RefreshTitle();
    frame.Redraw();
}

} // namespace ondrilo
