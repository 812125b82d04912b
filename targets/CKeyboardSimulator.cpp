#include "targets/CKeyboardSimulator.h"

#include "targets/PortugueseLayout.h"
#include "text/CaseFolding.h"
#include "text/Counting.h"
#include "text/Splitter.h"

namespace ondrilo {
namespace {

constexpr TextView kAccented = "ÁÉÍÓÚÀÈÂÊÔÃÕáéíóúàèâêôãõ"_w;
constexpr TextView kAccents = "'''''``^^^~~'''''``^^^~~"; // this typist writes the acute as an apostrophe
constexpr TextView kBases = "AEIOUAEAEOAOaeiouaeaeoao";
static_assert(kAccented.size() == kAccents.size() && kAccented.size() == kBases.size());

bool IsCapital(char c) {
    const auto accented = kAccented.find(c);
    return IsUpper(accented == TextView::npos ? c : kBases[accented]);
}

/// A sign: a visible character that is no letter and no digit.
bool IsPunctuation(char c) {
    const bool visible = static_cast<unsigned char>(c) > ' ' && c != 0x7F;
    const bool digit = c >= '0' && c <= '9';
    return visible && !digit && !IsLetter(c) && MakeLower(c) == MakeUpper(c);
}

} // namespace

int CKeyboardSimulator::CountChar(bool& capsLock, char c, char next, std::vector<Text>& keys) {
    if (const auto accented = kAccented.find(c); accented != TextView::npos) {
        const int accent = CountChar(capsLock, kAccents[accented], next, keys);
        return accent + CountChar(capsLock, kBases[accented], next, keys);
    }

    const auto before = keys.size();
    const bool capital = IsCapital(c);
    const bool capsLockOff = capsLock && !capital && !IsWhiteSpace(c) && !IsPunctuation(c);
    const bool capsLockOn = !capsLock && capital && IsCapital(next);
    if (capsLockOff || capsLockOn) {
        capsLock = !capsLock;
        keys.emplace_back("CapsLock");
    }
    if (capital && !capsLock && !IsCapital(next))
        keys.emplace_back("Shift");

    const char small = MakeLower(c);
    if (const auto key = PortugueseKeyOf(small)) {
        if (key->shift & kShift)
            keys.emplace_back("Shift");
        keys.emplace_back(1, small);
    }
    return static_cast<int>(keys.size() - before);
}

int CKeyboardSimulator::CountText(bool& capsLock, TextView text, char next, std::vector<Text>& keys) {
    int count = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        count += CountChar(capsLock, text[i], i + 1 < text.size() ? text[i + 1] : next, keys);
    return count;
}

} // namespace ondrilo
