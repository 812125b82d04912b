#include "app/EventWriter.h"

#include "text/CaseFolding.h"
#include "text/Splitter.h"

#include <array>

namespace ondrilo {
namespace {

struct NamedCharacter {
    char character;
    TextView output, event;
};
constexpr std::array<NamedCharacter, 5> kNamedCharacters{{{'\b', "\\b", "CHAR_RETROCESSO"},
                                                          {'\t', "\\t", "CHAR_TAB"},
                                                          {'\n', "\\n", "CHAR_ENTER"},
                                                          {'\r', "\\n", "CHAR_ENTER"},
                                                          {' ', " ", "CHAR_ESPAÇO"_w}}};

} // namespace

EventWriter::EventWriter(const FrameWindow& frame, const KeyOutput& keys, EventLog& log,
                         const CUserProfileSet& profiles, const Targets& targets,
                         const COnScreenKeyboard& keyboard, SessionState& state)
    : frame(frame), keys(keys), log(log), profiles(profiles), targets(targets), keyboard(keyboard),
      state(state) {
}

bool EventWriter::IsOpen() const {
    return log.IsOpen() && !targets.IsPassword();
}

void EventWriter::Write(TextView event, TextView type, const Element& element) {
    log.Write(
        {"", Text(event), Text(type), element.address, element.center, Page(), state.context.Current()});
}

Text EventWriter::KeyEvent(int code) const {
    return "KEY_DOWN_" + Replace(MakeUpper(keys.KeyName(code)), " ", "_");
}

Text EventWriter::EventOf(const ActionOrigin& origin) const {
    const TextView method = profiles.Active().properties.Get(option::METODO_VARRIMENTO);
    const bool automatic = method == "Regular" || method == "Inverso";
    switch (origin.kind) {
    case ActionOrigin::Kind::PhysicalKey:
        return KeyEvent(origin.keyCode);
    case ActionOrigin::Kind::Mouse:
        return "LEFT_MOUSE_DOWN_KEY";
    case ActionOrigin::Kind::ScanTimer:
        return automatic ? "AUTO_TIMER" : "SWITCH1_DOWN";
    case ActionOrigin::Kind::Switch:
        break;
    }
    if (method == "Regular")
        return "SWITCH1_DOWN";
    return method == "Inverso" ? "SWITCH1_UP" : "SWITCH2_DOWN";
}

EventWriter::Element EventWriter::ElementOf(COnScreenKeyIdentifier key) const {
    const auto place = keyboard.PlaceOf(key);
    const auto origin = frame.ViewOrigin();
    const int x = origin.x + keyboard.Position().x + place.x + place.width / 2;
    const int y = origin.y + keyboard.Position().y + place.y + place.height / 2;
    return {std::to_string(key.line) + "." + std::to_string(key.group) + "." + std::to_string(key.key),
            std::to_string(x) + "." + std::to_string(y)};
}

void EventWriter::Action(const ActionOrigin& origin, TextView type,
                         std::optional<COnScreenKeyIdentifier> key) {
    if (IsOpen())
        Write(EventOf(origin), type, key ? ElementOf(*key) : Element());
}

void EventWriter::LineSelected(int line) {
    if (IsOpen())
        Write(EventOf(ActionOrigin::OfSwitch()), "LINE_SELECTION", {std::to_string(line), ""});
}

void EventWriter::GroupSelected(int line, int group) {
    if (IsOpen())
        Write(EventOf(ActionOrigin::OfSwitch()), "GROUP_SELECTION",
              {std::to_string(line) + "." + std::to_string(group), ""});
}

void EventWriter::Event(TextView event, TextView type) {
    if (IsOpen())
        Write(event, type, {});
}

void EventWriter::TypedKey(int code, bool simulated) {
    if (IsOpen())
        Event(KeyEvent(code), simulated ? "AUTO_KEY" : "KEY");
}

void EventWriter::RawKey(int code) {
    if (IsOpen())
        Event(KeyEvent(code), "RAW_KEY_DOWN");
}

void EventWriter::RawButton(int button) {
    if (!IsOpen())
        return;
    constexpr std::array<TextView, 3> names{"LEFT", "RIGHT", "MID"};
    const auto event = Text(names.at(static_cast<std::size_t>(button))) + "_MOUSE_BUTTON_DOWN";
    Event(event, "RAW_" + event);
}

void EventWriter::Character(char c) {
    if (!IsOpen())
        return;
    Text output(1, c);
    Text event = "CHAR_" + output;
    for (const auto& named : kNamedCharacters)
        if (named.character == c) {
            output = named.output;
            event = named.event;
        }
    log.Write({output, event, "CHAR", "", "", Page(), state.context.Previous()});
}

void EventWriter::UpdateContext() {
    if (!log.IsOpen())
        return;
    const auto* target = targets.Current();
    if (!target || targets.IsPassword())
        return state.context.Clear();
    const auto sentence = target->GetWrittenSentence();
    state.context.Update(sentence.empty() ? target->GetTextWithLabels() : sentence);
}

const Text& EventWriter::Page() const {
    return profiles.Active().properties.activeKeyboardName;
}

} // namespace ondrilo
