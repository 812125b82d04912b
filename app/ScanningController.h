#pragma once

#include "app/Environment.h"
#include "app/EventWriter.h"
#include "app/SpeechController.h"
#include "keyboards/CScanning.h"
#include "keyboards/KeyFlash.h"

namespace ondrilo {

/// The scanning of the session's keyboard: the clock that drives it, and what the person hears, sees and
/// finds in the event log of each step.
class ScanningController {
  public:
    ScanningController(const Environment& environment, const CUserProfileSet& profiles,
                       COnScreenKeyboard& keyboard, SpeechController& speech, EventWriter& events);

    /// The start of a session: no switch has been pressed yet.
    void Reset() { scanning.Reset(); }
    /// To be called for each new keyboard. Tells the person if no timer can be had.
    void Start();
    void Stop() { timer.reset(); }

    /// `number` is 1 or 2.
    void SwitchDown(int number) { scanning.SwitchDown(number); }
    void SwitchUp(int number) { scanning.SwitchUp(number); }
    /// Presses of both switches that counted since the start of the session.
    [[nodiscard]] int Activations() const {
        return scanning.Now().switch1Count + scanning.Now().switch2Count;
    }

    /// Scanning of a level started or went on.
    void Step(Message step);
    void LineSelected(COnScreenKeyIdentifier line);
    void GroupSelected(COnScreenKeyIdentifier group);
    void KeySelected(COnScreenKeyIdentifier key) { flash.Flash({key}); }

  private:
    void GiveCues();
    [[nodiscard]] bool IsOn(IntegerOption option) const { return profiles.Active().properties.IsOn(option); }

    TimerService& timers;
    MessageBoxes& boxes;
    SoundPlayer& sounds;
    const CUserProfileSet& profiles;
    const COnScreenKeyboard& keyboard;
    SpeechController& speech;
    EventWriter& events;
    CScanning scanning;
    KeyFlash flash;
    std::unique_ptr<Timer> timer;
};

} // namespace ondrilo
