#include "app/KeyboardController.h"

namespace ondrilo {
namespace {

constexpr TextView kExtension = ".tec";

} // namespace

KeyboardController::KeyboardController(const Environment& environment, CUserProfileSet& profiles,
                                       COnScreenKeyboard& keyboard, PredictionKeys& keys,
                                       Predictions& predictions, WindowPlacement& placement,
                                       KeySender& sender, SpeechController& speech, EventWriter& events,
                                       const SessionServices& services)
    : frame(environment.frame), windows(environment.windows), boxes(environment.boxes), profiles(profiles),
      keyboard(keyboard), keys(keys), predictions(predictions), placement(placement), sender(sender),
      speech(speech), events(events), services(services) {
}

void KeyboardController::LoadKeyboard(TextView name) {
    const auto& folder = profiles.Folder();
    try {
        keyboard.Open(FindKeyboard(folder, name), MakeKeyboardSettings(profiles.Active().properties));
    } catch (const KeyboardLoadFailure& failure) {
        frame.SetStatusMessage(Text("O teclado ")
                                   .append(name)
                                   .append(" só foi lido até à linha "_w)
                                   .append(std::to_string(failure.LineNumber()) + "."));
    }
    keyboardWindow = windows.CreateKeyboardWindow(keyboard);
    placement.SetKeyboardWindow(keyboardWindow.get());
    keys.BindPredictionKeys();
    predictions.pictogramKeys = CollectPictogramKeys(folder, name);
    placement.LayOut();
}

void KeyboardController::Announce() {
    sender.ShowModifiers();
    ShowLoggingState();
    speech.SpeakText(keyboard.Description());
}

void KeyboardController::ShowLoggingState() {
    keyboard.LightByOutput("[Trocar-Modo-Logging]",
                           profiles.Active().properties.IsOn(option::REGISTAR_EVENTOS));
}

void KeyboardController::CloseKeyboard() {
    keys.Unbind();
    if (keyboard.IsModified() &&
        boxes.AskYesNo("O teclado corrente foi alterado. Pretende guardar as alterações?"_w) == Answer::Yes) {
        const auto saved = keyboard.Save();
        if (!saved)
            frame.SetStatusMessage(saved.problem);
    }
    placement.SetKeyboardWindow(nullptr);
    keyboardWindow.reset();
    keyboard.Close();
}

void KeyboardController::FollowKeyboardLink(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    auto name = keyboard.Key(key).data.output;
    name.resize(name.size() - kExtension.size());
    events.ActionWithText(origin, "ON_SCREEN_KEYBOARD_CALL_", name, key);
    if (services.log.IsOpen())
        services.metrics.Count(Metric::KeyboardByKey);
    CloseKeyboard();
    profiles.Active().properties.activeKeyboardName = name;
    LoadKeyboard(name);
    placement.RefreshTitle();
    Announce();
}

} // namespace ondrilo
