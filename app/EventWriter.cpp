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

EventWriter::EventWriter(EventLog& log, const CUserProfileSet& profiles, const KeyOutput& keys)
    : log(log), profiles(profiles), keys(keys) {
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

void EventWriter::Action(const ActionOrigin& origin, TextView type,
                         std::optional<COnScreenKeyIdentifier> key) {
    if (IsOpen())
        log.Write({"", EventOf(origin), Text(type), key});
}

void EventWriter::ActionWithText(const ActionOrigin& origin, TextView prefix, TextView text,
                                 std::optional<COnScreenKeyIdentifier> key) {
    if (IsOpen())
        log.Write({"", EventOf(origin), Text(prefix) + Replace(text, " ", "_"), key});
}

void EventWriter::Event(TextView event, TextView type) {
    if (IsOpen())
        log.Write({"", Text(event), Replace(type, " ", "_"), {}});
}

void EventWriter::TypedKey(int code, bool simulated) {
    if (IsOpen())
        log.Write({"", KeyEvent(code), simulated ? "AUTO_KEY" : "KEY", {}});
}

void EventWriter::RawKey(int code) {
    if (IsOpen())
        log.Write({"", KeyEvent(code), "RAW_KEY_DOWN", {}});
}

void EventWriter::RawButton(int button) {
    if (!IsOpen())
        return;
    constexpr std::array<TextView, 3> names{"LEFT", "RIGHT", "MID"};
    const auto event = Text(names.at(static_cast<std::size_t>(button))) + "_MOUSE_BUTTON_DOWN";
    log.Write({"", event, "RAW_" + event, {}});
}

void EventWriter::Character(char c) {
    if (!IsOpen())
        return;
    for (const auto& named : kNamedCharacters)
        if (named.character == c) {
            log.Write({Text(named.output), Text(named.event), "CHAR", {}});
            return;
        }
    log.Write({Text(1, c), Text("CHAR_") + c, "CHAR", {}});
}

void EventWriter::UpdateContext() {
    if (IsOpen())
        log.UpdateContext();
}

} // namespace ondrilo
