#include "app/KeyboardController.h"

namespace ondrilo {
namespace {

constexpr TextView kExtension = ".tec";

} // namespace

KeyboardController::KeyboardController(const Environment& environment, CUserProfileSet& profiles,
                                       COnScreenKeyboard& keyboard, PredictionKeys& keys,
                                       Predictions& predictions, WindowPlacement& placement,
                                       KeySender& sender, SpeechController& speech,
                                       ScanningController& scanning, EventWriter& events,
                                       Countdowns& countdowns, const SessionServices& services)
    : queue(environment.queue), frame(environment.frame), windows(environment.windows),
      boxes(environment.boxes), profiles(profiles), keyboard(keyboard), keys(keys), predictions(predictions),
      placement(placement), sender(sender), speech(speech), scanning(scanning), events(events),
      countdowns(countdowns), services(services) {
}

void KeyboardController::LoadKeyboard(TextView name) {
    const auto& folder = profiles.Folder();
    const auto& profile = profiles.Active();
    try {
        keyboard.Open(FindKeyboard(folder, name), MakeKeyboardSettings(profile.properties, profile.access));
    } catch (const KeyboardLoadFailure& failure) {
        frame.SetStatusMessage(Text("O teclado ")
                                   .append(name)
                                   .append(" só foi lido até à linha "_w)
                                   .append(std::to_string(failure.LineNumber()) + "."));
    }
    keyboardWindow = windows.CreateKeyboardWindow(keyboard);
    placement.SetKeyboardWindow(keyboardWindow.get());
    scanning.Start();
    keys.BindPredictionKeys();
    predictions.pictogramKeys = CollectPictogramKeys(folder, name);
    placement.LayOut();
}

void KeyboardController::Reopen() {
    CloseKeyboard();
    LoadKeyboard(profiles.Active().properties.activeKeyboardName);
    Announce();
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
    scanning.Stop();
    keys.Unbind();
    if (keyboard.IsModified() && WantsToKeepChanges()) {
        const auto saved = keyboard.Save();
        if (!saved)
            frame.SetStatusMessage(saved.problem);
    }
    placement.SetKeyboardWindow(nullptr);
    keyboardWindow.reset();
    keyboard.Close();
    // What its keys and its scanning still had to say would be taken for the keys of the next one.
    queue.Clear(Message::UM_KEY_HOVER, Message::UM_KEY_DOUBLE_CLICK);
}

bool KeyboardController::WantsToKeepChanges() {
    // Neither another link nor a new context may take the keyboard away while the person decides about it.
    const MessageQueue::Hold hold(queue);
    countdowns.context.Stop();
    const auto answer = boxes.AskYesNo("O teclado corrente foi alterado. Pretende guardar as alterações?"_w);
    countdowns.context.Restart();
    return answer == Answer::Yes;
}

void KeyboardController::FollowKeyboardLink(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    auto name = keyboard.Key(key).data.output;
    name.resize(name.size() - kExtension.size());
    if (events.IsOpen()) {
        events.Action(origin, "ON_SCREEN_KEYBOARD_CALL_" + name, key);
        services.metrics.Count(Metric::KeyboardByKey);
    }
    CloseKeyboard();
    profiles.Active().properties.activeKeyboardName = name;
    LoadKeyboard(name);
    // A keyboard of the former one's size exposes nothing by itself, and its prediction keys would stay
    // empty.
    frame.Redraw();
    placement.RefreshTitle();
    Announce();
    frame.Redraw(); // so that the predictions go onto the new keys
}

} // namespace ondrilo
