#include "app/ScanningController.h"

#include "app/Countdown.h"

namespace ondrilo {
namespace {

/// What is being scanned, as the event log names it.
TextView NameOf(CScanning::Level level) {
    switch (level) {
    case CScanning::Level::Lines:
        return "LINES";
    case CScanning::Level::Groups:
        return "GROUPS";
    case CScanning::Level::Keys:
        return "KEYS";
    case CScanning::Level::Idle:
        break;
    }
    return {};
}

template <typename Accept>
KeyIdentifiers Those(KeyIdentifiers keys, Accept accept) {
    std::erase_if(keys, [&accept](const auto& key) { return !accept(key); });
    return keys;
}

} // namespace

ScanningController::ScanningController(const Environment& environment, const CUserProfileSet& profiles,
                                       COnScreenKeyboard& keyboard, SpeechController& speech,
                                       EventWriter& events)
    : timers(environment.timers), boxes(environment.boxes), sounds(environment.sounds), profiles(profiles),
      keyboard(keyboard), speech(speech), events(events), scanning(keyboard, environment.queue),
      flash(keyboard, environment.timers) {
}

void ScanningController::Start() {
    timer = timers.Start(Milliseconds(kTick), [this] { scanning.Tick(); });
    if (!timer)
        boxes.Show("Nao existe nenhum timer disponivel. O sistema não irá funcionar correctamente."_w);
}

void ScanningController::Step(Message step) {
    if (step == Message::UM_SCAN_LINES)
        events.Event("SWITCH1_DOWN", "START_SCANNING_LINES");
    else if (step == Message::UM_SCAN_GROUPS)
        events.Event("SWITCH1_DOWN", "START_SCANNING_GROUPS");
    else if (step == Message::UM_SCAN_KEYS)
        events.Event("SWITCH1_DOWN", "START_SCANNING_KEYS");
    else if (events.IsOpen())
        events.Action({ActionOrigin::Kind::ScanTimer, 0},
                      Text("SCANNING_ADVANCE_").append(NameOf(scanning.CurrentLevel())));
    GiveCues();
}

void ScanningController::GiveCues() {
    if (IsOn(option::PISTA_SONORA_BEEP_VARRIMENTO))
        sounds.Beep();
    if (IsOn(option::PISTA_SINTETIZADA_VARRIMENTO))
        speech.SpeakCue(scanning.CueText());
}

void ScanningController::LineSelected(COnScreenKeyIdentifier line) {
    events.LineSelected(line.line);
    flash.Flash(Those(keyboard.AllKeys(), [line](auto key) { return key.line == line.line; }));
}

void ScanningController::GroupSelected(COnScreenKeyIdentifier group) {
    events.GroupSelected(group.line, group.group);
    flash.Flash(Those(keyboard.AllKeys(),
                      [group](auto key) { return key.line == group.line && key.group == group.group; }));
}

} // namespace ondrilo
