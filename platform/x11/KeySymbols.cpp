#include "platform/x11/KeySymbols.h"

#include "platform/Keyboard.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <iterator>

namespace ondrilo {
namespace {

struct Row {
    int code;
    Keysym symbol;
    TextView name; ///< empty where the layout decides what the key writes
};

// Of several symbols with one code, the first is the key that we press for it.
constexpr Row kTable[] = {
    {vk::Backspace, XKB_KEY_BackSpace, "Backspace"},
    {vk::Tab, XKB_KEY_Tab, "Tab"},
    {vk::Tab, XKB_KEY_ISO_Left_Tab, "Tab"},
    {12, XKB_KEY_Clear, "Clear"},
    {vk::Enter, XKB_KEY_Return, "Enter"},
    {vk::Enter, XKB_KEY_KP_Enter, "Enter"},
    {vk::Shift, XKB_KEY_Shift_L, "Shift"},
    {vk::Shift, XKB_KEY_Shift_R, "Shift"},
    {vk::Control, XKB_KEY_Control_L, "Ctrl"},
    {vk::Control, XKB_KEY_Control_R, "Ctrl"},
    {vk::Alt, XKB_KEY_Alt_L, "Alt"},
    {vk::Alt, XKB_KEY_Alt_R, "Alt"},
    {vk::Alt, XKB_KEY_Meta_L, "Alt"},
    {vk::Alt, XKB_KEY_Meta_R, "Alt"},
    {vk::Alt, XKB_KEY_ISO_Level3_Shift, "Alt"},
    {19, XKB_KEY_Pause, "Pause"},
    {vk::CapsLock, XKB_KEY_Caps_Lock, "Caps Lock"},
    {27, XKB_KEY_Escape, "Esc"},
    {vk::Space, XKB_KEY_space, "Space"},
    {vk::PageUp, XKB_KEY_Prior, "Page Up"},
    {vk::PageUp, XKB_KEY_KP_Prior, "Page Up"},
    {vk::PageDown, XKB_KEY_Next, "Page Down"},
    {vk::PageDown, XKB_KEY_KP_Next, "Page Down"},
    {vk::End, XKB_KEY_End, "End"},
    {vk::End, XKB_KEY_KP_End, "End"},
    {vk::Home, XKB_KEY_Home, "Home"},
    {vk::Home, XKB_KEY_KP_Home, "Home"},
    {vk::Left, XKB_KEY_Left, "Left"},
    {vk::Left, XKB_KEY_KP_Left, "Left"},
    {vk::Up, XKB_KEY_Up, "Up"},
    {vk::Up, XKB_KEY_KP_Up, "Up"},
    {vk::Right, XKB_KEY_Right, "Right"},
    {vk::Right, XKB_KEY_KP_Right, "Right"},
    {vk::Down, XKB_KEY_Down, "Down"},
    {vk::Down, XKB_KEY_KP_Down, "Down"},
    {44, XKB_KEY_Print, "Print Screen"},
    {44, XKB_KEY_Sys_Req, "Print Screen"},
    {vk::Insert, XKB_KEY_Insert, "Insert"},
    {vk::Insert, XKB_KEY_KP_Insert, "Insert"},
    {vk::Delete, XKB_KEY_Delete, "Delete"},
    {vk::Delete, XKB_KEY_KP_Delete, "Delete"},
    {91, XKB_KEY_Super_L, "Left Windows"},
    {92, XKB_KEY_Super_R, "Right Windows"},
    {93, XKB_KEY_Menu, "Application"},
    {vk::Num0 + 0, XKB_KEY_KP_0, "Num 0"},
    {vk::Num0 + 1, XKB_KEY_KP_1, "Num 1"},
    {vk::Num0 + 2, XKB_KEY_KP_2, "Num 2"},
    {vk::Num0 + 3, XKB_KEY_KP_3, "Num 3"},
    {vk::Num0 + 4, XKB_KEY_KP_4, "Num 4"},
    {vk::Num0 + 5, XKB_KEY_KP_5, "Num 5"},
    // Without Num Lock it does nothing else, and it is the usual switch.
    {vk::Num0 + 5, XKB_KEY_KP_Begin, "Num 5"},
    {vk::Num0 + 6, XKB_KEY_KP_6, "Num 6"},
    {vk::Num0 + 7, XKB_KEY_KP_7, "Num 7"},
    {vk::Num0 + 8, XKB_KEY_KP_8, "Num 8"},
    {vk::Num0 + 9, XKB_KEY_KP_9, "Num 9"},
    {106, XKB_KEY_KP_Multiply, "Num *"},
    {107, XKB_KEY_KP_Add, "Num +"},
    {109, XKB_KEY_KP_Subtract, "Num -"},
    {110, XKB_KEY_KP_Decimal, "Num Del"},
    {110, XKB_KEY_KP_Separator, "Num Del"},
    {vk::NumDivide, XKB_KEY_KP_Divide, "Num /"},
    {vk::NumLock, XKB_KEY_Num_Lock, "Num Lock"},
    {145, XKB_KEY_Scroll_Lock, "Scroll Lock"},
    // The signs and dead keys beside the letters; on a layout with other symbols the codes go round.
    {186, XKB_KEY_dead_acute, ""},
    {186, XKB_KEY_acute, ""},
    {186, XKB_KEY_semicolon, ""},
    {187, XKB_KEY_plus, ""},
    {187, XKB_KEY_equal, ""},
    {188, XKB_KEY_comma, ""},
    {189, XKB_KEY_minus, ""},
    {190, XKB_KEY_period, ""},
    {191, XKB_KEY_dead_tilde, ""},
    {191, XKB_KEY_asciitilde, ""},
    {191, XKB_KEY_slash, ""},
    {192, XKB_KEY_ccedilla, ""},
    {192, XKB_KEY_grave, ""},
    {192, XKB_KEY_dead_grave, ""},
    {219, XKB_KEY_apostrophe, ""},
    {219, XKB_KEY_bracketleft, ""},
    {220, XKB_KEY_backslash, ""},
    {221, XKB_KEY_guillemotleft, ""},
    {221, XKB_KEY_bracketright, ""},
    {222, XKB_KEY_masculine, ""},
    {222, XKB_KEY_dead_circumflex, ""},
    {226, XKB_KEY_less, ""},
};

constexpr int kLastFunctionKey = vk::F1 + 23;

struct PadKey {
    Keysym cursor, digit;
};

constexpr PadKey kPad[] = {
    {XKB_KEY_KP_Insert, XKB_KEY_KP_0},       {XKB_KEY_KP_End, XKB_KEY_KP_1},
    {XKB_KEY_KP_Down, XKB_KEY_KP_2},         {XKB_KEY_KP_Next, XKB_KEY_KP_3},
    {XKB_KEY_KP_Left, XKB_KEY_KP_4},         {XKB_KEY_KP_Begin, XKB_KEY_KP_5},
    {XKB_KEY_KP_Right, XKB_KEY_KP_6},        {XKB_KEY_KP_Home, XKB_KEY_KP_7},
    {XKB_KEY_KP_Up, XKB_KEY_KP_8},           {XKB_KEY_KP_Prior, XKB_KEY_KP_9},
    {XKB_KEY_KP_Delete, XKB_KEY_KP_Decimal},
};

bool IsWithin(Keysym symbol, Keysym first, Keysym last) {
    return symbol >= first && symbol <= last;
}

} // namespace

std::optional<int> VirtualKeyOf(Keysym symbol) {
    if (IsWithin(symbol, XKB_KEY_a, XKB_KEY_z))
        return static_cast<int>(symbol - XKB_KEY_a) + 'A';
    if (IsWithin(symbol, XKB_KEY_A, XKB_KEY_Z) || IsWithin(symbol, XKB_KEY_0, XKB_KEY_9))
        return static_cast<int>(symbol);
    if (IsWithin(symbol, XKB_KEY_F1, XKB_KEY_F24))
        return static_cast<int>(symbol - XKB_KEY_F1) + vk::F1;
    const auto* row = std::ranges::find(kTable, symbol, &Row::symbol);
    if (row == std::end(kTable))
        return std::nullopt;
    return row->code;
}

Keysym WithoutShift(Keysym symbol) {
    for (const auto& [cursor, digit] : kPad) {
        if (symbol == cursor)
            return digit;
        if (symbol == digit)
            return cursor;
    }
    return symbol;
}

std::vector<Keysym> SymbolsOf(int code) {
    if (code >= 'A' && code <= 'Z')
        return {static_cast<Keysym>(code - 'A') + XKB_KEY_a};
    if (code >= '0' && code <= '9')
        return {static_cast<Keysym>(code)};
    if (code >= vk::F1 && code <= kLastFunctionKey)
        return {static_cast<Keysym>(code - vk::F1) + XKB_KEY_F1};
    std::vector<Keysym> symbols;
    for (const auto& row : kTable)
        if (row.code == code)
            symbols.push_back(row.symbol);
    return symbols;
}

Text NameOfVirtualKey(int code) {
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'))
        return {static_cast<char>(code)};
    if (code >= vk::F1 && code <= kLastFunctionKey)
        return "F" + std::to_string(code - vk::F1 + 1);
    const auto* row = std::ranges::find(kTable, code, &Row::code);
    return row == std::end(kTable) ? Text{} : Text(row->name);
}

const std::vector<int>& LayoutDependentKeys() {
    static const std::vector<int> codes = [] {
        std::vector<int> found;
        for (const auto& row : kTable)
            if (row.name.empty() && (found.empty() || found.back() != row.code))
                found.push_back(row.code);
        return found;
    }();
    return codes;
}

std::optional<char> AccentOfDeadKey(Keysym symbol) {
    switch (symbol) {
    case XKB_KEY_dead_grave:
        return '`';
    case XKB_KEY_dead_acute:
        return "´"_w.front();
    case XKB_KEY_dead_circumflex:
        return '^';
    case XKB_KEY_dead_tilde:
        return '~';
    default:
        return std::nullopt;
    }
}

bool IsHeldModifier(Keysym symbol) {
    constexpr Keysym kModifiers[] = {XKB_KEY_Shift_L,
                                     XKB_KEY_Shift_R,
                                     XKB_KEY_Control_L,
                                     XKB_KEY_Control_R,
                                     XKB_KEY_Alt_L,
                                     XKB_KEY_Alt_R,
                                     XKB_KEY_Meta_L,
                                     XKB_KEY_Meta_R,
                                     XKB_KEY_Super_L,
                                     XKB_KEY_Super_R,
                                     XKB_KEY_Hyper_L,
                                     XKB_KEY_Hyper_R,
                                     XKB_KEY_ISO_Level3_Shift,
                                     XKB_KEY_ISO_Level5_Shift,
                                     XKB_KEY_Mode_switch};
    return std::ranges::find(kModifiers, symbol) != std::end(kModifiers);
}

} // namespace ondrilo
