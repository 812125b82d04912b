#include "targets/PortugueseLayout.h"

#include "text/CaseFolding.h"

#include <array>

namespace ondrilo {
namespace {

/// A key with its characters alone, with Shift and with AltGr; a blank is none.
struct Key {
    int code;
    TextView characters;
};

// Codes from 0xBA on are those of the keys whose signs differ from country to country.
constexpr Key kKeys[] = {
    {'0', "0=}"},    {'1', "1!"},   {'2', "2\"@"},  {'3', "3#£"_w}, {'4', "4$§"_w}, {'5', "5%"},
    {'6', "6&"},     {'7', "7/{"},  {'8', "8(["},   {'9', "9)]"},   {'E', "eE€"_w}, {0xBA, "´`"_w},
    {0xBB, "+*¨"_w}, {0xBC, ",;"},  {0xBD, "-_"},   {0xBE, ".:"},   {0xBF, "~^"},   {0xC0, "çÇ"_w},
    {0xDB, "'?"},    {0xDC, "\\|"}, {0xDD, "«»"_w}, {0xDE, "ºª"_w}, {0xE2, "<>"},
};

constexpr unsigned kShifts[] = {kNoShift, kShift, kControl | kAlt};

} // namespace

std::optional<LayoutKey> PortugueseKeyOf(char c) {
    if (c >= 'a' && c <= 'z')
        return LayoutKey{c - 'a' + 'A', kNoShift};
    if (c >= 'A' && c <= 'Z')
        return LayoutKey{c, kShift};
    if (c == ' ' || c == '\t' || c == '\r')
        return LayoutKey{c, kNoShift};
    if (c == '\n')
        return LayoutKey{vk::Enter, kNoShift};
    for (const auto& [code, characters] : kKeys)
        if (const auto level = characters.find(c); level != TextView::npos)
            return LayoutKey{code, kShifts[level]};
    return std::nullopt;
}

} // namespace ondrilo
