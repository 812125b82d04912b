#include "platform/x11/KeyboardWatch.h"

#include <xkbcommon/xkbcommon-x11.h>

// The header names a field with a word of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace ondrilo {

KeyboardWatch::KeyboardWatch(const X11Connection& connection)
    : connection(connection), context(xkb_context_new(XKB_CONTEXT_NO_FLAGS), xkb_context_unref),
      typingDevice(PersonsKeys(connection).TypingDevice()) {
    if (!context || !connection.IsOpen() ||
        !xkb_x11_setup_xkb_extension(connection.Get(), XKB_X11_MIN_MAJOR_XKB_VERSION,
                                     XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                     nullptr, nullptr, &keyboardEvent, nullptr))
        return;
    isAvailable = true;
    Listen();
    static_cast<void>(Look()); // for the layout
}

void KeyboardWatch::Listen() const {
    constexpr std::uint16_t kMapEvents =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t kAllParts = 0xFF;
    const std::uint16_t mapped = typingDevice ? *typingDevice : std::uint16_t{XCB_XKB_ID_USE_CORE_KBD};
    xcb_xkb_select_events(connection.Get(), mapped, kMapEvents, 0, kMapEvents, kAllParts, kAllParts, nullptr);
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(connection.Get(), XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0,
                              0, 0, 0, &details);
}

KeyboardState KeyboardWatch::Look() {
    const auto cookie = xcb_xkb_get_state(connection.Get(), XCB_XKB_ID_USE_CORE_KBD);
    const auto state = Owned(xcb_xkb_get_state_reply(connection.Get(), cookie, nullptr));
    if (!state)
        return {};
    while (const auto event = Owned(xcb_poll_for_queued_event(connection.Get())))
        Notice(*event); // older than the answer
    layout = state->group;
    return {state->baseMods, state->lockedMods};
}

unsigned KeyboardWatch::Layout() {
    while (const auto event = Owned(xcb_poll_for_event(connection.Get())))
        Notice(*event);
    return layout;
}

std::shared_ptr<xkb_keymap> KeyboardWatch::NewKeymap(const std::function<bool(Keycode)>& isOurs) {
    for (unsigned keycode = 0; keycode < changed.size(); ++keycode)
        isWholeMapNew |= changed[keycode] && !isOurs(static_cast<Keycode>(keycode));
    changed.reset();
    if (!isWholeMapNew)
        return nullptr;
    auto keymap = ReadKeymap();
    isWholeMapNew = !keymap; // it fails where the map changes while it is read
    return keymap;
}

void KeyboardWatch::Notice(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7F) != keyboardEvent)
        return;
    const auto& map = reinterpret_cast<const xcb_xkb_map_notify_event_t&>(event);
    if (map.xkbType == XCB_XKB_STATE_NOTIFY) {
        layout = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event).group;
        return;
    }
    // The server's keyboard takes over the map of whichever device typed last; with those events we would
    // read the map anew whenever the person and we alternate. All kinds of events name their device alike.
    if (typingDevice && map.deviceID != *typingDevice)
        return;
    constexpr unsigned kSymbols = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_KEY_ACTIONS;
    if (map.xkbType != XCB_XKB_MAP_NOTIFY || (map.changed & ~kSymbols) != 0) {
        isWholeMapNew = true;
        return;
    }
    for (unsigned i = 0; i < map.nKeySyms; ++i)
        changed.set(map.firstKeySym + i);
}

std::shared_ptr<xkb_keymap> KeyboardWatch::ReadKeymap() const {
    // What we type arrives with the map of the device through which programs type. Where the person's own
    // keyboard has another one, theirs is not what the programs will see.
    const auto device = typingDevice ? *typingDevice : xkb_x11_get_core_keyboard_device_id(connection.Get());
    auto* read =
        xkb_x11_keymap_new_from_device(context.get(), connection.Get(), device, XKB_KEYMAP_COMPILE_NO_FLAGS);
    return read ? std::shared_ptr<xkb_keymap>(read, xkb_keymap_unref) : nullptr;
}

} // namespace ondrilo
