#include "tests/conformance/KeysArea.h"

#include "targets/CKeyboardSimulator.h"
#include "text/Counting.h"

namespace ondrilo::conformance {
namespace {

template <class Test>
Values FlagsOf(const Text& text, Test test) {
    Values flags;
    for (const char c : text)
        flags.push_back(Flag(test(c)));
    return flags;
}

char FirstOf(const Text& text) {
    return text.empty() ? '\0' : text.front();
}

} // namespace

KeysArea::KeysArea(const std::filesystem::path&) {
    keyboard.Initialize();
    On("all_key_names", [this](const Arguments&) { return keyboard.keySet.GetAllKeyNames(); });
    On("free_key_names", [this](const Arguments&) { return keyboard.keySet.GetFreeKeyNames(); });
    On("key", [this](const Arguments& a) { return PropertiesOf(a.at(0)); });
    On("typed_characters", [](const Arguments& a) { return Values{TypedCharacters(a.at(0))}; });
    On("swap_case", [](const Arguments& a) { return Values{CKeyboard::SwapCase(a.at(0))}; });
    On("is_letter", [](const Arguments& a) { return FlagsOf(a.at(0), IsLetter); });
    On("is_upper", [](const Arguments& a) { return FlagsOf(a.at(0), IsUpper); });
    On("sequence_events", [this](const Arguments& a) { return EventsOf(a.at(0)); });
    AddCounts();
    AddSimulator();
}

void KeysArea::AddCounts() {
    On("count_sequence_keys",
       [](const Arguments& a) { return Values{Number(CKeyboard::CountSequenceKeys(a.at(0)))}; });
    On("count_keys", [this](const Arguments& a) { return Values{Number(keyboard.CountKeys(a.at(0)))}; });
    On("count_key_presses", [](const Arguments& a) { return Values{Number(CountKeyPresses(a.at(0)))}; });
    On("count_qwerty_keys", [](const Arguments& a) { return Values{Number(CountQwertyKeys(a.at(0)))}; });
    On("count_symbols", [](const Arguments& a) { return Values{Number(CountSymbols(a.at(0)))}; });
    On("drop_brackets", [](const Arguments& a) { return Values{DropBrackets(a.at(0))}; });
    On("text_counts", [](const Arguments& a) {
        const Text text = DropBrackets(a.at(0));
        return Values{Number(CountCharacters(text)), Number(CountWords(text)), Number(CountSentences(text))};
    });
}

void KeysArea::AddSimulator() {
    On("simulate_count", [](const Arguments& a) {
        bool capsLock = false;
        std::vector<Text> names;
        const int count = CKeyboardSimulator::CountText(capsLock, a.at(0), FirstOf(a.at(1)), names);
        return Values{Number(count), Flag(capsLock)};
    });
    On("simulate_names", [](const Arguments& a) {
        bool capsLock = false;
        std::vector<Text> names;
        CKeyboardSimulator::CountText(capsLock, a.at(0), FirstOf(a.at(1)), names);
        return names;
    });
}

Values KeysArea::PropertiesOf(const Text& name) const {
    const auto code = keyboard.keySet.GetCode(name);
    if (!code)
        return {};
    return {Number(*code), Flag(keyboard.keySet.IsReserved(*code)),
            Flag(keyboard.keySet.IsCombinableName(name))};
}

Values KeysArea::EventsOf(const Text& sequence) {
    keys.events.clear();
    keyboard.PlaySequence(sequence);
    Values values;
    for (const Text& event : keys.events) {
        const Tokens parts = Split(event, " ");
        values.push_back(parts.at(0));
        values.push_back(keyboard.keySet.GetName(ToInteger(parts.at(1))).value_or(parts.at(1)));
    }
    return values;
}

} // namespace ondrilo::conformance
