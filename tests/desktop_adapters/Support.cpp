#include "Support.h"

#include "platform/x11/PersonsKeys.h"
#include "platform/x11/X11Connection.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ondrilo {

ChildProcess::ChildProcess(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const auto& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        process = -1;
}

void ChildProcess::Kill(int signal) {
    if (process <= 0)
        return;
    kill(process, signal);
    waitpid(process, nullptr, 0);
    process = -1;
}

std::vector<std::string> Ourselves(const std::vector<std::string>& arguments) {
    std::vector<std::string> command{"/proc/self/exe"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

namespace {

bool HasFocus(const X11Connection& connection, xcb_window_t window) {
    const auto focus =
        Owned(xcb_get_input_focus_reply(connection.Get(), xcb_get_input_focus(connection.Get()), nullptr));
    for (xcb_window_t at = focus ? focus->focus : 0; at > XCB_INPUT_FOCUS_POINTER_ROOT;) {
        if (at == window)
            return true;
        const auto tree =
            Owned(xcb_query_tree_reply(connection.Get(), xcb_query_tree(connection.Get(), at), nullptr));
        at = tree ? tree->parent : 0;
    }
    return false;
}

std::vector<xcb_window_t> TopLevelWindows(const X11Connection& connection) {
    const auto cookie = xcb_get_property(connection.Get(), 0, connection.Root(),
                                         connection.Atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, 1024);
    const auto reply = Owned(xcb_get_property_reply(connection.Get(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* windows = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {windows, windows + xcb_get_property_value_length(reply.get()) / 4};
}

} // namespace

bool GiveFocus(Desktop& desktop, WindowId window) {
    const X11Connection connection;
    int rounds = 0;
    return Eventually([&] {
        if (rounds++ % 100 == 0)
            desktop.Activate(window);
        return desktop.ForegroundWindow() == window &&
               HasFocus(connection, static_cast<xcb_window_t>(window));
    });
}

WindowId WaitForWindow(const Desktop& desktop, TextView title) {
    const X11Connection connection;
    WindowId found = 0;
    static_cast<void>(Eventually([&] {
        for (const auto window : TopLevelWindows(connection))
            if (desktop.TitleOf(window) == title)
                found = window;
        return found != 0;
    }));
    return found;
}

void Type(KeyOutput& keys, TextView text) {
    for (const char c : text)
        keys.TypeCharacter(c);
}

void Tap(KeyOutput& keys, std::initializer_list<int> codes) {
    for (const int code : codes) {
        keys.KeyDown(code);
        keys.KeyUp(code);
    }
}

void Click(Desktop& desktop, Point point) {
    desktop.MovePointer(point);
    if (std::system("xdotool click 1") != 0)
        std::abort();
}

Point Middle(const Rectangle& area) {
    return {area.x + area.width / 2, area.y + area.height / 2};
}

void SetLayout(const std::string& layout) {
    const auto command = "setxkbmap -layout " + layout;
    if (std::system(command.c_str()) != 0)
        std::abort();
}

ServerKeyboard::ServerKeyboard() : connection(std::make_unique<X11Connection>()) {
    const PersonsKeys ready(*connection); // has agreed on the version of the input extension
    const auto cookie = xcb_input_xi_query_device(connection->Get(), XCB_INPUT_DEVICE_ALL);
    const auto reply = Owned(xcb_input_xi_query_device_reply(connection->Get(), cookie, nullptr));
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device)) {
        const std::string name(xcb_input_xi_device_info_name(device.data), device.data->name_len);
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD &&
            name.find("XTEST") == std::string::npos)
            personsDevice = static_cast<std::uint8_t>(device.data->deviceid);
    }
}

ServerKeyboard::~ServerKeyboard() = default;

std::vector<int> ServerKeyboard::Down() const {
    const auto reply =
        Owned(xcb_query_keymap_reply(connection->Get(), xcb_query_keymap(connection->Get()), nullptr));
    std::vector<int> down;
    for (int keycode = 0; keycode < 256; ++keycode)
        if (reply->keys[keycode / 8] >> (keycode % 8) & 1)
            down.push_back(keycode);
    return down;
}

std::vector<std::uint32_t> ServerKeyboard::Symbols() const {
    constexpr std::uint8_t kFirst = 8;
    constexpr std::uint8_t kCount = 248;
    const auto cookie = xcb_get_keyboard_mapping(connection->Get(), kFirst, kCount);
    const auto reply = Owned(xcb_get_keyboard_mapping_reply(connection->Get(), cookie, nullptr));
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    return {symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(reply.get())};
}

void ServerKeyboard::Send(int event, int keycode) const {
    const auto first = xcb_get_extension_data(connection->Get(), &xcb_input_id)->first_event;
    xcb_test_fake_input(connection->Get(), static_cast<std::uint8_t>(first + event),
                        static_cast<std::uint8_t>(keycode), XCB_CURRENT_TIME, XCB_NONE, 0, 0, personsDevice);
    connection->Synchronize();
}

void ServerKeyboard::PersonPresses(int keycode) const {
    Send(XCB_INPUT_DEVICE_KEY_PRESS, keycode);
}

void ServerKeyboard::PersonReleases(int keycode) const {
    Send(XCB_INPUT_DEVICE_KEY_RELEASE, keycode);
}

} // namespace ondrilo
