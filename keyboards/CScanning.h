#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/MessageQueue.h"

namespace ondrilo {

/// Selection of keys by one or two switches: lights the lines of a keyboard one by one, then the groups of
/// the chosen line, then the keys of the chosen group. A state machine without window and clock: the owner
/// calls Tick every 100 ms and tells what the switches do. Lights keys by `highlighted`, and posts what
/// happened as UM_SCAN_ messages. Lines and groups without keys are passed over. A keyboard that is opened
/// or closed ends the scanning of the one before.
class CScanning : private KeyboardObserver {
  public:
    /// Both outlive the scanning. Method, times and cycles are those of the keyboard's settings.
    CScanning(COnScreenKeyboard& keyboard, MessageQueue& queue);

    /// `number` is 1 or 2. A press counts once the latency has run out, and only if it has not ended by then.
    void SwitchDown(int number);
    void SwitchUp(int number);
    /// Does nothing while the keyboard is being edited.
    void Tick();

    enum class Level { Idle, Lines, Groups, Keys };
    [[nodiscard]] Level CurrentLevel() const;
    [[nodiscard]] bool IsOn() const { return CurrentLevel() != Level::Idle; }
    /// Name or description of what is lit, for those who scan by ear; may be empty.
    [[nodiscard]] Text CueText() const;

    /// -1 stands for unset and for off; times in ms since the event, in steps of 100.
    struct State {
        int scanLine = -1, scanGroup = -1, scanKey = -1;
        int cycles = 0;
        int tickCounter = -1;
        int downCounter = -1, upCounter = -1;
        int downSwitch = 0, upSwitch = 0;
        /// Presses that counted, over all keyboards of the session.
        int switch1Count = 0, switch2Count = 0;
    };
    [[nodiscard]] const State& Now() const { return state; }
    /// The state at the start of a session.
    void Reset();

  private:
    using Action = void (CScanning::*)();

    void KeyChanged(COnScreenKeyIdentifier) override {}
    void KeysReplaced() override;
    void LayoutChanged() override {}

    void ConfirmedDown();
    void FirstSwitchDown();
    void ConfirmedUp();
    void Start();
    void Select();
    void SelectLine();
    void SelectGroup();
    void SelectKey();
    void Advance();
    void Stop();

    template <typename Items>
    void Enter(const Items& items, int& position, Message started, Action selectOnlyOne);
    template <typename Items>
    void AdvanceAmong(const Items& items, int& position);
    void SetLit(bool lit);

    [[nodiscard]] const ScanningSettings& Settings() const { return keyboard.Settings().scanning; }
    [[nodiscard]] const COnScreenKeyLine& Line() const;
    [[nodiscard]] const COnScreenKeyGroup& Group() const;
    [[nodiscard]] COnScreenKeyIdentifier KeyPosition() const;
    [[nodiscard]] KeyIdentifiers CurrentKeys() const;
    [[nodiscard]] Text LineCue() const;

    COnScreenKeyboard& keyboard;
    MessageQueue& queue;
    State state;
    RegistrationHandle observation;
};

} // namespace ondrilo
