#include "app/LoggingController.h"

#include "app/Notice.h"

#include <array>
#include <cstdio>

namespace ondrilo {
namespace {

constexpr std::array<TextView, 7> kDays{"Domingo",      "Segunda-feira", "Terça-feira"_w, "Quarta-feira",
                                        "Quinta-feira", "Sexta-feira",   "Sábado"_w};

Text FormatMoment(const LocalTime& time) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), " %02d-%02d-%02d %02d:%02d:%02d.%03d", time.day, time.month,
                  time.year, time.hour, time.minute, time.second, time.millisecond);
    return Text(kDays.at(static_cast<std::size_t>(time.weekday - 1))) + text.data();
}

} // namespace

LoggingController::LoggingController(const Environment& environment, const CUserProfileSet& profiles,
                                     const Targets& targets, const ScanningController& scanning,
                                     WritingClock& writingClock, SessionState& state,
                                     const SessionServices& services)
    : boxes(environment.boxes), dialogs(environment.dialogs), windows(environment.windows),
      desktop(environment.desktop), clock(environment.clock), sounds(environment.sounds), profiles(profiles),
      targets(targets), scanning(scanning), writingClock(writingClock), state(state), services(services) {
}

void LoggingController::ResetMetrics() {
    services.metrics.Reset();
    writingClock.Reset();
    state.pendingSimulatedKeys = 0;
    formerActivations = scanning.Activations();
}

void LoggingController::StartLog() {
    ResetMetrics();
    const auto& profile = profiles.Active().properties;
    if (!profile.IsOn(option::REGISTAR_EVENTOS))
        return;
    state.context.Clear();
    state.finalTexts.clear();
    if (profile.IsOn(option::SOM_INICIAL_REGISTO_EVENTOS) && !startSoundPlayed)
        PlayStartSound();
    services.log.Start(profile.profileName);
}

void LoggingController::PlayStartSound() {
    const auto notice = ShowNotice(windows, desktop, FormatMoment(clock.Local()), 50);
    sounds.PlayToEnd(profiles.Folder().Find("InicioRegisto.wav"));
    startSoundPlayed = true;
}

void LoggingController::EndLog() {
    if (!services.log.IsOpen())
        return;
    services.log.End(GetMetrics(), FinalTexts());
    services.metrics.Reset();
    state.finalTexts.clear();
}

void LoggingController::KeepFinalText() {
    if (services.log.IsOpen() && targets.Internal())
        state.finalTexts.push_back(targets.Internal()->GetTextWithTags());
}

void LoggingController::Restart() {
    if (boxes.AskYesNo("Pretende reiniciar o registo de acções no sistema?"_w) != Answer::Yes)
        return;
    EndLog();
    StartLog();
}

void LoggingController::ShowMetrics() {
    dialogs.ShowMetrics(GetMetrics());
}

std::vector<Text> LoggingController::GetMetrics() const {
    return services.metrics.Lines(
        {.totalSeconds = writingClock.TotalSeconds(),
         .effectiveSeconds = writingClock.EffectiveSeconds(),
         .finalTexts = FinalTexts(),
         .hasEditor = targets.Internal() != nullptr,
         .switchActivations = services.log.IsOpen() ? scanning.Activations() - formerActivations : 0});
}

std::vector<Text> LoggingController::FinalTexts() const {
    auto texts = state.finalTexts;
    if (targets.Internal())
        texts.push_back(targets.Internal()->GetTextWithTags());
    return texts;
}

} // namespace ondrilo
