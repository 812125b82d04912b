#include "app/AbbreviationController.h"

namespace ondrilo {

AbbreviationController::AbbreviationController(const CUserProfileSet& profiles, const Targets& targets,
                                               PredictionCycle& cycle, SpeechController& speech,
                                               PreviewController& preview, CKeyboard& keyboardSimulator,
                                               EventWriter& events, SessionState& state,
                                               const SessionServices& services)
    : profiles(profiles), targets(targets), cycle(cycle), speech(speech), preview(preview),
      keyboardSimulator(keyboardSimulator), events(events), state(state), services(services) {
}

Text AbbreviationController::GetExpansion() const {
    if (!targets.Current())
        return {};
    const auto word = targets.Current()->GetCurrentWordLeft();
    return word.empty() ? Text() : profiles.Active().dictionary.abbreviations.Find(word).value_or("");
}

void AbbreviationController::Press(const ActionOrigin& origin, std::optional<COnScreenKeyIdentifier> key) {
    const Source source{origin, key};
    const auto expansion = GetExpansion();
    if (expansion.empty()) {
        Log(source, "ABBREVIATION_NOT_FOUND", "");
        return;
    }
    bool used = false;
    if (expansion != state.stages.lastSpoken && Options().IsOn(option::OUVIR_ANTES_COMPLETAR)) {
        Log(source, "SYNTHESIZE_ABBREVIATION_EXPANSION_BEFORE_EXPANSION", expansion);
        speech.SpeakText(expansion);
        state.stages.lastSpoken = expansion;
        used = true;
    }
    if (expansion != state.stages.lastShown && Options().IsOn(option::VER_ANTES_COMPLETAR)) {
        Log(source, "SHOW_ABBREVIATION_EXPANSION_BEFORE_EXPANSION", expansion);
        preview.ShowPreview(targets.Current()->AdaptWordCase(expansion));
        state.stages.lastShown = expansion;
        return;
    }
    if (used)
        return;
    Log(source, "ABBREVIATION_SELECTION", expansion);
    if (Options().IsOn(option::OUVIR_DEPOIS_COMPLETAR)) {
        Log(source, "SYNTHESIZE_ABBREVIATION_EXPANSION_AFTER_EXPANSION", expansion);
        speech.SpeakText(expansion);
    }
    ExpandAbbreviation();
    state.ForgetSelection();
}

void AbbreviationController::ExpandAbbreviation() {
    const auto expansion = GetExpansion();
    if (!expansion.empty()) {
        if (Options().IsOn(option::AGENTE_ACTIVO)) {
            services.agent.Play("DoMagic2");
            services.agent.Play("RestPose");
        }
        state.pendingSimulatedKeys = keyboardSimulator.CountKeys(expansion) + 1;
        if (events.IsOpen())
            services.metrics.Count(Metric::Abbreviation);
        targets.Current()->DeleteCurrentWordLeft();
        keyboardSimulator.TypeText(expansion + " ");
    }
    cycle.RunPrediction();
}

void AbbreviationController::Log(const Source& source, TextView type, TextView expansion) {
    if (!events.IsOpen())
        return;
    auto text = Text(type);
    if (targets.Current())
        text += "_" + targets.Current()->GetCurrentWordLeft();
    if (!expansion.empty())
        text.append("_").append(expansion);
    events.Action(source.origin, text, source.key);
}

} // namespace ondrilo
