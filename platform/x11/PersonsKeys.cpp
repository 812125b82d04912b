#include "platform/x11/PersonsKeys.h"

#include <xcb/xinput.h>

#include <functional>
#include <string_view>
#include <vector>

namespace ondrilo {
namespace {

void ForEachKeyboard(const X11Connection& connection,
                     const std::function<void(std::uint8_t device, bool typesForPrograms)>& visit) {
    const auto cookie = xcb_input_xi_query_device(connection.Get(), XCB_INPUT_DEVICE_ALL);
    const auto reply = Owned(xcb_input_xi_query_device_reply(connection.Get(), cookie, nullptr));
    if (!reply)
        return;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device)) {
        if (device.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD)
            continue;
        const std::string_view name(xcb_input_xi_device_info_name(device.data), device.data->name_len);
        visit(static_cast<std::uint8_t>(device.data->deviceid),
              name.find("XTEST keyboard") != std::string_view::npos);
    }
}

Keycodes KeycodesOf(const std::uint8_t* bits) {
    Keycodes keycodes;
    for (std::size_t keycode = 0; keycode < keycodes.size(); ++keycode)
        keycodes[keycode] = (bits[keycode / 8] >> (keycode % 8) & 1) != 0;
    return keycodes;
}

Keycodes DownOf(const xcb_input_query_device_state_reply_t& device) {
    for (auto state = xcb_input_query_device_state_classes_iterator(&device); state.rem > 0;
         xcb_input_input_state_next(&state))
        if (state.data->class_id == XCB_INPUT_INPUT_CLASS_KEY)
            return KeycodesOf(reinterpret_cast<const xcb_input_key_state_t*>(state.data)->keys);
    return {};
}

} // namespace

PersonsKeys::PersonsKeys(const X11Connection& connection) : connection(connection) {
    if (!connection.Has(xcb_input_id))
        return;
    const auto cookie = xcb_input_xi_query_version(connection.Get(), 2, 0);
    isAvailable = Owned(xcb_input_xi_query_version_reply(connection.Get(), cookie, nullptr)) != nullptr;
}

Keycodes PersonsKeys::Down() const {
    // All are asked before the first answer is waited for.
    std::vector<xcb_input_query_device_state_cookie_t> questions;
    if (isAvailable)
        ForEachKeyboard(connection, [&](std::uint8_t device, bool typesForPrograms) {
            if (!typesForPrograms)
                questions.push_back(xcb_input_query_device_state(connection.Get(), device));
        });
    Keycodes down;
    for (const auto question : questions)
        if (const auto reply = Owned(xcb_input_query_device_state_reply(connection.Get(), question, nullptr)))
            down |= DownOf(*reply);
    return down;
}

std::optional<std::uint8_t> PersonsKeys::TypingDevice() const {
    std::optional<std::uint8_t> found;
    if (isAvailable)
        ForEachKeyboard(connection, [&](std::uint8_t device, bool typesForPrograms) {
            if (typesForPrograms && !found)
                found = device;
        });
    return found;
}

} // namespace ondrilo
