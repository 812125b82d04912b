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
                                     WritingClock& writingClock, SessionState& state,
                                     const SessionServices& services)
    : windows(environment.windows), desktop(environment.desktop), clock(environment.clock),
      sounds(environment.sounds), profiles(profiles), writingClock(writingClock), state(state),
      services(services) {
}

void LoggingController::ResetMetrics() {
    services.metrics.Reset();
    writingClock.Reset();
    state.pendingSimulatedKeys = 0;
}

void LoggingController::StartLog() {
    ResetMetrics();
    const auto& profile = profiles.Active().properties;
    if (!profile.IsOn(option::REGISTAR_EVENTOS))
        return;
    if (profile.IsOn(option::SOM_INICIAL_REGISTO_EVENTOS) && !startSoundPlayed)
        PlayStartSound();
    services.log.Start();
}

void LoggingController::PlayStartSound() {
    const auto notice = ShowNotice(windows, desktop, FormatMoment(clock.Local()), 50);
    sounds.PlayToEnd(profiles.Folder().Find("InicioRegisto.wav"));
    startSoundPlayed = true;
}

void LoggingController::EndLog() {
    if (services.log.IsOpen())
        services.log.End();
}

} // namespace ondrilo
