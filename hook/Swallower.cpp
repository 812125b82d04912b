#include "hook/Swallower.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace ondrilo {
namespace {

constexpr std::uint8_t kButtons[] = {XCB_BUTTON_INDEX_1, XCB_BUTTON_INDEX_2, XCB_BUTTON_INDEX_3};

} // namespace

void Swallower::SwallowKeys(std::set<KeyChord> chords) {
    std::vector<KeyChord> leaving;
    std::ranges::set_difference(keys, chords, std::back_inserter(leaving));
    for (const auto& [keycode, modifiers] : leaving)
        xcb_ungrab_key(connection.Get(), keycode, connection.Root(), static_cast<std::uint16_t>(modifiers));
    std::vector<KeyChord> coming;
    std::ranges::set_difference(chords, keys, std::back_inserter(coming));
    // The keyboard is held back meanwhile, so that a key that is typed between the press and our giving it
    // back waits instead of getting lost.
    for (const auto& [keycode, modifiers] : coming)
        xcb_grab_key(connection.Get(), 0, connection.Root(), static_cast<std::uint16_t>(modifiers), keycode,
                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    keys = std::move(chords);
    connection.Flush();
}

void Swallower::GiveKeyboardBack() {
    xcb_ungrab_keyboard(connection.Get(), XCB_CURRENT_TIME);
    connection.Synchronize();
}

void Swallower::SwallowButtons(bool swallow) {
    if (swallow == swallowsButtons)
        return;
    swallowsButtons = swallow;
    constexpr std::uint16_t kEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    for (const auto button : kButtons)
        if (swallow)
            xcb_grab_button(connection.Get(), 0, connection.Root(), kEvents, XCB_GRAB_MODE_SYNC,
                            XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, button, XCB_MOD_MASK_ANY);
        else
            xcb_ungrab_button(connection.Get(), button, connection.Root(), XCB_MOD_MASK_ANY);
    connection.Flush();
}

void Swallower::ProcessEvents(const std::function<bool(Point)>& isMeant) {
    while (const auto event = Owned(xcb_poll_for_event(connection.Get()))) {
        const auto type = event->response_type & 0x7F;
        if (type == XCB_KEY_PRESS)
            GiveKeyboardBack();
        if (type != XCB_BUTTON_PRESS)
            continue;
        const auto& press = reinterpret_cast<const xcb_button_press_event_t&>(*event);
        const bool swallow = isMeant({press.root_x, press.root_y});
        xcb_allow_events(connection.Get(), swallow ? XCB_ALLOW_ASYNC_POINTER : XCB_ALLOW_REPLAY_POINTER,
                         press.time);
        connection.Flush();
    }
}

} // namespace ondrilo
