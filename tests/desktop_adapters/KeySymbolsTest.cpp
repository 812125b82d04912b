#include "platform/x11/KeySymbols.h"

#include "platform/Keyboard.h"
#include "targets/CKeySet.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace ondrilo {
namespace {

TEST(KeySymbols, EveryNamedKeyHasASymbolThatLeadsBackToIt) {
    const auto names = StandardKeys();
    for (const auto& name : names.GetAllKeyNames()) {
        const int code = *names.GetCode(name);
        const auto symbols = SymbolsOf(code);
        ASSERT_FALSE(symbols.empty()) << name;
        for (const Keysym symbol : symbols)
            EXPECT_EQ(VirtualKeyOf(symbol), code);
        EXPECT_NE(NameOfVirtualKey(code), "") << name;
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
