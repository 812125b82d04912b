#include "platform/x11/KeySymbols.h"

#include "platform/Keyboard.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace ondrilo {
namespace {

TEST(KeySymbols, EveryNamedKeyHasASymbolThatLeadsBackToIt) {
    std::vector<int> codes{vk::Backspace, vk::Enter, vk::Space,  vk::Tab,      vk::CapsLock, vk::Left,
                           vk::Right,     vk::Up,    vk::Down,   vk::Alt,      vk::Control,  vk::Shift,
                           vk::Home,      vk::End,   vk::PageUp, vk::PageDown, vk::Insert,   vk::Delete};
    const auto addRange = [&codes](int first, int last) {
        for (int code = first; code <= last; ++code)
            codes.push_back(code);
    };
    addRange(vk::F1, vk::F1 + 11);
    addRange(vk::Num0, vk::Num0 + 9);
    addRange('0', '9');
    addRange('A', 'Z');
    for (const int code : codes) {
        const auto symbols = SymbolsOf(code);
        ASSERT_FALSE(symbols.empty()) << code;
        for (const Keysym symbol : symbols)
            EXPECT_EQ(VirtualKeyOf(symbol), code);
        EXPECT_NE(NameOfVirtualKey(code), "") << code;
    }
}

TEST(KeySymbols, TheNumericPadIsADigitOrACursorKeyAsNumLockHasIt) {
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_KP_5), vk::Num0 + 5);
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_KP_Begin), vk::Num0 + 5) << "a switch works whatever Num Lock says";
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_KP_7), vk::Num0 + 7);
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_KP_Home), vk::Home);
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_KP_Divide), vk::NumDivide);
    EXPECT_EQ(SymbolsOf(vk::Home).front(), Keysym{XKB_KEY_Home}) << "pressed on the cursor block";
    EXPECT_EQ(VirtualKeyOf(XKB_KEY_XF86AudioMute), std::nullopt);
    EXPECT_EQ(WithoutShift(XKB_KEY_KP_Right), Keysym{XKB_KEY_KP_6});
    EXPECT_EQ(WithoutShift(XKB_KEY_KP_7), Keysym{XKB_KEY_KP_Home});
    EXPECT_EQ(WithoutShift(XKB_KEY_Right), Keysym{XKB_KEY_Right});
}

} // namespace
} // namespace ondrilo
