#include "app/CommandController.h"

#include "keyboards/CCommands.h"
#include "keyboards/KeyOutputs.h"

namespace ondrilo {

CommandController::CommandController(const Environment& environment, CUserProfileSet& profiles,
                                     const Targets& targets, const COnScreenKeyboard& keyboard,
                                     PredictionKeys& keys, PredictionCycle& cycle, SpeechController& speech,
                                     KeyboardController& keyboards, LoggingController& logging,
                                     WindowPlacement& placement, CKeyboard& keyboardSimulator,
                                     EventWriter& events, SessionState& state,
                                     const SessionServices& services, ChangeProfile changeProfile)
    : frame(environment.frame), programs(environment.programs), profiles(profiles), targets(targets),
      keyboard(keyboard), keys(keys), cycle(cycle), speech(speech), keyboards(keyboards), logging(logging),
      placement(placement), keyboardSimulator(keyboardSimulator), events(events), state(state),
      services(services), changeProfile(std::move(changeProfile)) {
}

void CommandController::ExecuteCommand(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    // Copies: the command may close the keyboard.
    const auto data = keyboard.Key(key).data;
    const auto call = ParseCommand(data.output);
    const auto* command = CCommands::Find(call.name);
    if (!command || (command->arguments > 0 && call.argument.empty()))
        return;
    if (call.name == "Enviar-Mensagem-Editor_Externo" && !targets.Internal())
        return;
    events.Action(origin, command->event, key);
    if (call.name == "Limpar-Area-Trabalho")
        ClearEditor();
    else if (call.name == "Alterar-Perfil-Utilizador")
        changeProfile(call.argument);
    else if (call.name == "Apagar-Palavra")
        DeleteWord();
    else if (call.name == "Apagar-Frase")
        DeleteSentence();
    else if (call.name == "Mostrar-Predições-Seguintes"_w)
        ShowNextPredictions();
    else if (call.name == "Sintetizar-Fala-Palavra")
        SpeakWord(key, origin);
    else if (call.name == "Sintetizar-Fala-Frase")
        SpeakSentence(key, origin);
    else if (call.name == "Sintetizar-Fala-Area-Trabalho")
        SpeakAll(key, origin);
    else if (call.name == "Sair-Aplicação"_w)
        frame.Close();
    else if (call.name == "Sintetizar-Descrição-Tecla"_w)
        speech.SpeakText(data.description);
    else if (call.name == "Enviar-Mensagem-Editor_Externo")
        SendMessage();
    else if (call.name == "Trocar-Modo-Logging")
        SwitchLogging();
}

void CommandController::ClearEditor() {
    logging.KeepFinalText();
    if (targets.IsInternal())
        targets.Internal()->ClearAll();
    cycle.RunPrediction();
}

void CommandController::DeleteWord() {
    if (targets.Current())
        targets.Current()->DeleteCurrentWord();
    cycle.RunPrediction();
}

void CommandController::DeleteSentence() {
    if (targets.Current())
        targets.Current()->DeleteCurrentSentence();
    cycle.RunPrediction();
}

void CommandController::ShowNextPredictions() {
    if (events.IsOpen())
        services.metrics.Count(Metric::NextPredictions);
    keys.ShowNext();
}

void CommandController::SpeakWord(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    if (!targets.Current())
        return;
    const auto spoken = speech.SpeakWordOrImage();
    LogSpoken(key, origin, spoken.isImage ? "IMAGE_" : "WORD_", spoken.text);
}

void CommandController::SpeakSentence(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    LogSpoken(key, origin, "SENTENCE_", speech.SpeakCurrentSentence());
}

void CommandController::SpeakAll(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    LogSpoken(key, origin, "ALL_", speech.SpeakAll());
}

void CommandController::LogSpoken(COnScreenKeyIdentifier key, const ActionOrigin& origin, TextView what,
                                  TextView text) {
    if (events.IsOpen() && !text.empty())
        events.Action(origin, Text("COMMAND_EXECUTION_SYNTHESIZE_").append(what).append(text), key);
}

void CommandController::SendMessage() {
    keyboardSimulator.TypeText(targets.Internal()->GetTextWithLabels());
}

void CommandController::SwitchLogging() {
    auto& profile = profiles.Active();
    if (profile.properties.IsOn(option::REGISTAR_EVENTOS)) {
        logging.EndLog();
        profile.Set(option::REGISTAR_EVENTOS, 0);
    } else {
        profile.Set(option::REGISTAR_EVENTOS, 1);
        logging.StartLog();
    }
    keyboards.ShowLoggingState();
    placement.RefreshTitle();
}

void CommandController::ExecuteKeySequence(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    const auto sequence = keyboard.Key(key).data.output;
    if (events.IsOpen())
        events.Action(origin, "KEY_SEQUENCE_EXECUTION_" + sequence, key);
    if (targets.Current()) // nobody else tells of the keys
        state.pendingSimulatedKeys += CKeyboard::CountSequenceKeys(sequence);
    keyboardSimulator.PlaySequence(sequence);
}

void CommandController::ExecuteProgram(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    const auto program = keyboard.Key(key).data.output;
    if (events.IsOpen())
        events.Action(origin, "PROGRAM_EXECUTION_" + program, key);
    programs.Start(program);
}

} // namespace ondrilo
