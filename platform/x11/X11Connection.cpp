#include "platform/x11/X11Connection.h"

namespace ondrilo {

bool X11Connection::Has(xcb_extension_t& extension) const {
    if (!IsOpen())
        return false;
    const auto* data = xcb_get_extension_data(connection, &extension);
    return data && data->present;
}

xcb_window_t X11Connection::Root() const {
    if (!IsOpen())
        return XCB_WINDOW_NONE;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber; ++i)
        xcb_screen_next(&screens);
    return screens.data->root;
}

xcb_atom_t X11Connection::Atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = Owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::uint32_t X11Connection::Property(xcb_window_t window, xcb_atom_t property) const {
    const auto cookie = xcb_get_property(connection, 0, window, property, XCB_ATOM_ANY, 0, 1);
    const auto reply = Owned(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return 0;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

void X11Connection::Synchronize() const {
    const auto cookie = xcb_get_input_focus(connection);
    const auto answered = Owned(xcb_get_input_focus_reply(connection, cookie, nullptr));
}

} // namespace ondrilo
