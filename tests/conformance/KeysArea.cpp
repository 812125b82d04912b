#include "logging/CMetrics.h"
#include "targets/CKeyboard.h"
#include "targets/CKeyboardSimulator.h"
#include "tests/conformance/Area.h"
#include "tests/support/FakeKeyOutput.h"
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

/// Key names, sequences and the counts of keys.
class KeysArea : public Area {
  public:
    explicit KeysArea(const std::filesystem::path&) {
        keyboard.Initialize();
        On("all_key_names", [this](const auto&) { return keyboard.keySet.GetAllKeyNames(); });
        On("free_key_names", [this](const auto&) { return keyboard.keySet.GetFreeKeyNames(); });
        On("key", [this](const auto& a) { return PropertiesOf(a.at(0)); });
        On("typed_characters", [](const auto& a) { return TypedCharacters(a.at(0)); });
        On("swap_case", [](const auto& a) { return CKeyboard::SwapCase(a.at(0)); });
        On("is_letter", [](const auto& a) { return FlagsOf(a.at(0), IsLetter); });
        On("is_upper", [](const auto& a) { return FlagsOf(a.at(0), IsUpper); });
        On("sequence_events", [this](const auto& a) { return EventsOf(a.at(0)); });
        AddCounts();
    }

  private:
    void AddCounts() {
        On("count_sequence_keys", [](const auto& a) { return CKeyboard::CountSequenceKeys(a.at(0)); });
        On("count_keys", [this](const auto& a) { return keyboard.CountKeys(a.at(0)); });
        On("count_key_presses", [](const auto& a) { return CountKeyPresses(a.at(0)); });
        On("count_qwerty_keys", [](const auto& a) { return CountQwertyKeys(a.at(0)); });
        On("count_symbols", [](const auto& a) { return CountSymbols(a.at(0)); });
        On("drop_brackets", [](const auto& a) { return DropBrackets(a.at(0)); });
        On("text_counts", [](const auto& a) {
            const Text text = DropBrackets(a.at(0));
            return NumbersOf(CountCharacters(text), CountWords(text), CountSentences(text));
        });
        On("saving", [](const auto& a) { return Saving(a.Integer(0), a.Integer(1)); });
        On("simulate_count", [](const auto& a) {
            Values names;
            bool capsLock = false;
            const int count = Simulate(a, capsLock, names);
            return NumbersOf(count, capsLock);
        });
        On("simulate_names", [](const auto& a) {
            Values names;
            bool capsLock = false;
            Simulate(a, capsLock, names);
            return names;
        });
    }
    static int Simulate(const Arguments& a, bool& capsLock, Values& names) {
        return CKeyboardSimulator::CountText(capsLock, a.at(0), a.at(1).c_str()[0], names);
    }
    [[nodiscard]] Values PropertiesOf(const Text& name) const {
        const auto code = keyboard.keySet.GetCode(name);
        if (!code)
            return {};
        return NumbersOf(*code, keyboard.keySet.IsReserved(*code), keyboard.keySet.IsCombinableName(name));
    }
    [[nodiscard]] Values EventsOf(const Text& sequence) {
        keys.events.clear();
        keyboard.PlaySequence(sequence);
        Values values;
        for (const Text& event : keys.events) {
            const Tokens parts = Split(event, " ");
            Append(values,
                   {parts.at(0), keyboard.keySet.GetName(ToNumber(parts.at(1))).value_or(parts.at(1))});
        }
        return values;
    }

    FakeKeyOutput keys;
    CKeyboard keyboard{keys};
};

} // namespace

const AreaMaker kKeysArea = Make<KeysArea>;

} // namespace ondrilo::conformance
