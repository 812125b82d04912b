#include "keyboards/CScanning.h"

#include <algorithm>
#include <limits>

namespace ondrilo {
namespace {

constexpr int kTick = 100; // ms

bool IsEmpty(const COnScreenKey&) {
    return false;
}

bool IsEmpty(const COnScreenKeyGroup& group) {
    return group.keys.empty();
}

bool IsEmpty(const COnScreenKeyLine& line) {
    return std::all_of(line.groups.begin(), line.groups.end(),
                       [](const COnScreenKeyGroup& group) { return IsEmpty(group); });
}

/// The next item in a circle that is not empty, which may be the same again; -1 if all are empty.
template <typename Items>
int NextAfter(const Items& items, int position) {
    const int count = static_cast<int>(items.size());
    for (int step = 1; step <= count; ++step) {
        const int next = (position + step) % count;
        if (!IsEmpty(items[static_cast<std::size_t>(next)]))
            return next;
    }
    return -1;
}

template <typename Items>
int FirstOf(const Items& items) {
    return NextAfter(items, -1);
}

const Text& CueOf(const COnScreenKeyGroup& group) {
    return group.keys.size() == 1 ? group.keys.front().data.description : group.name;
}

/// Counts the ticks of a counter that is on; true when its time has come. A time that is no multiple of the
/// tick never comes.
bool IsDue(int& counter, int time) {
    if (counter == -1)
        return false;
    if (counter == time)
        return true;
    if (counter <= std::numeric_limits<int>::max() - kTick)
        counter += kTick;
    return false;
}

} // namespace

CScanning::CScanning(COnScreenKeyboard& keyboard, MessageQueue& queue)
    : keyboard(keyboard), queue(queue), observation(keyboard.Observe(*this)) {
}

void CScanning::Reset() {
    Stop();
    state = {};
}

void CScanning::KeysReplaced() {
    State fresh;
    fresh.switch1Count = state.switch1Count;
    fresh.switch2Count = state.switch2Count;
    state = fresh;
}

void CScanning::SwitchDown(int number) {
    state.upCounter = -1;
    state.downSwitch = number;
    state.downCounter = 0;
}

void CScanning::SwitchUp(int number) {
    state.downCounter = -1;
    state.upSwitch = number;
    state.upCounter = 0;
}

void CScanning::Tick() {
    if (keyboard.IsEditing())
        return;
    if (IsDue(state.downCounter, Settings().switchLatency)) {
        state.downCounter = -1;
        ConfirmedDown();
    }
    if (IsDue(state.upCounter, Settings().switchLatency)) {
        state.upCounter = -1;
        ConfirmedUp();
    }
    if (IsDue(state.tickCounter, Settings().speed)) {
        Advance();
        state.tickCounter = IsOn() ? 0 : -1;
    }
}

void CScanning::ConfirmedDown() {
    if (state.downSwitch == 1) {
        FirstSwitchDown();
        ++state.switch1Count;
        return;
    }
    if (Settings().method == ScanningMethod::PassoAPasso)
        Select();
    ++state.switch2Count;
}

void CScanning::FirstSwitchDown() {
    const auto method = Settings().method;
    switch (method) {
    case ScanningMethod::Nenhum:
        return;
    case ScanningMethod::Regular:
        IsOn() ? Select() : Start();
        break;
    case ScanningMethod::PassoAPasso:
        IsOn() ? Advance() : Start();
        break;
    case ScanningMethod::Inverso:
        if (!IsOn())
            Start();
        break;
    }
    state.tickCounter = IsOn() || method != ScanningMethod::Regular ? 0 : -1;
}

void CScanning::ConfirmedUp() {
    const auto method = Settings().method;
    if (state.upSwitch != 1)
        return;
    if (method == ScanningMethod::PassoAPasso || method == ScanningMethod::Inverso)
        state.tickCounter = -1;
    if (method == ScanningMethod::Inverso)
        Select();
}

void CScanning::Start() {
    Enter(keyboard.Lines(), state.scanLine, Message::UM_SCAN_LINES, &CScanning::SelectLine);
}

void CScanning::Select() {
    switch (CurrentLevel()) {
    case Level::Idle:
        break;
    case Level::Lines:
        SelectLine();
        break;
    case Level::Groups:
        SelectGroup();
        break;
    case Level::Keys:
        SelectKey();
        break;
    }
    state.cycles = 0;
}

void CScanning::SelectLine() {
    SetLit(false);
    queue.Post(Message::UM_SCAN_LINE_SELECTED, COnScreenKeyIdentifier{state.scanLine, 0, 0}.Packed());
    Enter(Line().groups, state.scanGroup, Message::UM_SCAN_GROUPS, &CScanning::SelectGroup);
}

void CScanning::SelectGroup() {
    SetLit(false);
    queue.Post(Message::UM_SCAN_GROUP_SELECTED,
               COnScreenKeyIdentifier{state.scanLine, state.scanGroup, 0}.Packed());
    Enter(Group().keys, state.scanKey, Message::UM_SCAN_KEYS, &CScanning::SelectKey);
}

void CScanning::SelectKey() {
    if (keyboard.Key(KeyPosition()).IsActive())
        queue.Post(Message::UM_SCAN_KEY_SELECTED, KeyPosition().Packed());
    Stop();
}

void CScanning::Advance() {
    switch (CurrentLevel()) {
    case Level::Idle:
        return;
    case Level::Lines:
        return AdvanceAmong(keyboard.Lines(), state.scanLine);
    case Level::Groups:
        return AdvanceAmong(Line().groups, state.scanGroup);
    case Level::Keys:
        return AdvanceAmong(Group().keys, state.scanKey);
    }
}

void CScanning::Stop() {
    SetLit(false);
    state.tickCounter = -1;
    state.scanLine = state.scanGroup = state.scanKey = -1;
    state.cycles = 0;
}

/// Goes down to a level. Its only item is chosen at once, without being lit.
template <typename Items>
void CScanning::Enter(const Items& items, int& position, Message started, Action selectOnlyOne) {
    const int first = FirstOf(items);
    if (first == -1)
        return Stop();
    position = first;
    if (NextAfter(items, first) == first)
        return (this->*selectOnlyOne)();
    SetLit(true);
    queue.Post(started);
}

/// Coming back to the first item closes a cycle.
template <typename Items>
void CScanning::AdvanceAmong(const Items& items, int& position) {
    SetLit(false);
    position = NextAfter(items, position);
    if (position == FirstOf(items) && ++state.cycles >= Settings().maxCycles)
        return Stop();
    SetLit(true);
    queue.Post(Message::UM_SCAN_ADVANCE);
}

void CScanning::SetLit(bool lit) {
    keyboard.SetHighlighted(CurrentKeys(), lit);
}

CScanning::Level CScanning::CurrentLevel() const {
    if (state.scanLine == -1)
        return Level::Idle;
    if (state.scanGroup == -1)
        return Level::Lines;
    return state.scanKey == -1 ? Level::Groups : Level::Keys;
}

const COnScreenKeyLine& CScanning::Line() const {
    return keyboard.Lines()[static_cast<std::size_t>(state.scanLine)];
}

const COnScreenKeyGroup& CScanning::Group() const {
    return Line().groups[static_cast<std::size_t>(state.scanGroup)];
}

COnScreenKeyIdentifier CScanning::KeyPosition() const {
    return {state.scanLine, state.scanGroup, state.scanKey};
}

/// All keys at the current position: those of a line or group, or one key.
KeyIdentifiers CScanning::CurrentKeys() const {
    KeyIdentifiers keys = keyboard.AllKeys();
    std::erase_if(keys, [this](const COnScreenKeyIdentifier& key) {
        return key.line != state.scanLine || (state.scanGroup != -1 && key.group != state.scanGroup) ||
               (state.scanKey != -1 && key.key != state.scanKey);
    });
    return keys;
}

Text CScanning::CueText() const {
    switch (CurrentLevel()) {
    case Level::Lines:
        return LineCue();
    case Level::Groups:
        return CueOf(Group());
    case Level::Keys:
        return keyboard.Key(KeyPosition()).data.description;
    case Level::Idle:
        break;
    }
    return {};
}

/// A line of one group is called like the group; one of several groups has a name of its own, but is silent
/// when the first of them has a single key.
Text CScanning::LineCue() const {
    const auto& groups = Line().groups;
    const int first = FirstOf(groups);
    const auto& firstGroup = groups[static_cast<std::size_t>(first)];
    if (NextAfter(groups, first) == first)
        return CueOf(firstGroup);
    return firstGroup.keys.size() > 1 ? Line().name : Text{};
}

} // namespace ondrilo
