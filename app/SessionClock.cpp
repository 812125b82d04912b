#include "app/SessionClock.h"

#include "app/AgentPlace.h"

namespace ondrilo {
namespace {

// Milliseconds.
constexpr int kFocusSettles = 500;
constexpr int kAgentPeriod = 1000;
constexpr int kRepositionPeriod = 1000;
constexpr int kContextPeriod = 5000;
constexpr int kCooperativePeriod = 500;
constexpr Milliseconds kAgentMove{1000};

} // namespace

SessionClock::SessionClock(const Environment& environment, CUserProfileSet& profiles,
                           const CSystemOptions& systemOptions, TargetController& targetController,
                           PredictionCycle& cycle, Countdowns& countdowns, WritingClock& writingClock,
                           WindowPlacement& placement, CaretFollower& caretFollower,
                           const SessionServices& services, ChangeProfile changeProfile)
    : timers(environment.timers), boxes(environment.boxes), desktop(environment.desktop),
      frame(environment.frame), profiles(profiles), systemOptions(systemOptions),
      targetController(targetController), cycle(cycle), countdowns(countdowns), writingClock(writingClock),
      placement(placement), caretFollower(caretFollower), services(services),
      changeProfile(std::move(changeProfile)) {
}

void SessionClock::StartTimers() {
    countdowns.Start();
    timer = timers.Start(Milliseconds(kTick), [this] { OnTimer(); });
    if (!timer)
        boxes.Show("Nao existe um timer disponivel. O sistema não irá funcionar correctamente."_w);
}

void SessionClock::StopTimers() {
    timer.reset();
}

void SessionClock::RestartSilence() {
    if (!countdowns.idle.IsStopped())
        countdowns.idle.Restart();
}

void SessionClock::OnTimer() {
    if (countdowns.target.Tick(kFocusSettles)) {
        countdowns.target.Stop();
        targetController.AttachForeground();
    }
    if (countdowns.agent.Tick(kAgentPeriod) && Options().IsOn(option::AGENTE_ACTIVO))
        MoveAgent();
    if (countdowns.reposition.Tick(kRepositionPeriod) && !desktop.IsOurs(desktop.ForegroundWindow())) {
        caretFollower.Move();
        countdowns.reposition.Restart();
    }
    if (countdowns.prediction.Tick(Options().Get(option::TEMPO_DE_PREDICAO))) {
        countdowns.prediction.Stop();
        cycle.RunPrediction();
    }
    if (systemOptions.IsOn(system_option::ADAPTACAO_CONTEXTO) && countdowns.context.Tick(kContextPeriod) &&
        countdowns.idle.IsStopped())
        AdaptToContext();
    if (services.cooperation.IsUp() && countdowns.cooperative.Tick(kCooperativePeriod))
        ReadHints();
    const std::int64_t silence = Options().Get(option::TEMPO_INACTIVIDADE_COMUNICACAO);
    if (countdowns.idle.Tick(silence * 1000))
        PauseWriting();
}

void SessionClock::MoveAgent() {
    services.agent.Move(AgentPlace(frame), kAgentMove);
    countdowns.agent.Restart();
}

void SessionClock::AdaptToContext() {
    countdowns.context.Stop();
    if (const auto profile = services.context.DecideProfile()) {
        Count(Metric::ContextAdaptation);
        changeProfile(*profile);
    }
    placement.RefreshTitle();
    countdowns.context.Restart();
}

void SessionClock::ReadHints() {
    countdowns.cooperative.Stop();
    if (services.cooperation.Role() == CooperativeRole::Client && services.cooperation.HasData()) {
        Count(Metric::CooperativeDelivery);
        services.cooperation.ShowHints();
    }
    countdowns.cooperative.Restart();
}

void SessionClock::Count(Metric metric) {
    if (services.log.IsOpen())
        services.metrics.Count(metric);
}

void SessionClock::PauseWriting() {
    countdowns.idle.Stop();
    // The person rests: only now may the disk take its time.
    profiles.FlushLearned();
    writingClock.Pause(Options().Get(option::TEMPO_INACTIVIDADE_COMUNICACAO));
}

} // namespace ondrilo
