#include "platform/x11/X11Windows.h"

#include "platform/x11/X11Connection.h"

#include <xcb/res.h>

#include <algorithm>
#include <map>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ondrilo {
namespace {

xcb_window_t WindowOf(WindowId window) {
    return static_cast<xcb_window_t>(window);
}

} // namespace

class X11Windows::Implementation {
  public:
    Implementation() {
        if (!IsAvailable())
            return;
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(events.Get(), events.Root(), XCB_CW_EVENT_MASK, &mask);
        events.Flush();
        hasResources = queries.Has(xcb_res_id);
        ourProcess = ProcessOf(xcb_generate_id(queries.Get()));
        if (ourProcess == 0) // a server that tells no processes: then the windows' own word is all there is
            ourProcess = static_cast<std::uint32_t>(getpid());
        last = Foreground();
        if (last != XCB_WINDOW_NONE)
            WatchForItsEnd(last);
    }

    [[nodiscard]] bool IsAvailable() const { return events.IsOpen() && queries.IsOpen(); }
    /// None if a window manager still names a window that is gone.
    [[nodiscard]] xcb_window_t Foreground() const {
        const auto window =
            IsAvailable() ? queries.Property(queries.Root(), activeWindow) : xcb_window_t{XCB_WINDOW_NONE};
        return window != XCB_WINDOW_NONE && Exists(window) ? window : xcb_window_t{XCB_WINDOW_NONE};
    }
    void Activate(xcb_window_t window);
    [[nodiscard]] std::string Text(xcb_window_t window, xcb_atom_t property, xcb_atom_t& type) const;
    [[nodiscard]] bool Exists(xcb_window_t window) const;
    [[nodiscard]] std::uint32_t ProcessOfWindow(xcb_window_t window) const;
    [[nodiscard]] Rectangle ClientArea(xcb_window_t window) const;
    [[nodiscard]] bool IsUnder(xcb_window_t window, Point point) const;
    void ProcessEvents();

    // Events have a connection to themselves: an answer awaited on it would move them to xcb's own queue, and
    // the descriptor would not tell of them.
    X11Connection events;
    X11Connection queries;
    xcb_atom_t activeWindow = queries.Atom("_NET_ACTIVE_WINDOW");
    xcb_atom_t windowName = queries.Atom("_NET_WM_NAME");
    xcb_atom_t windowProcess = queries.Atom("_NET_WM_PID");
    xcb_atom_t utf8 = queries.Atom("UTF8_STRING");
    std::uint32_t ourProcess = 0;
    bool hasResources = false;
    xcb_window_t last = XCB_WINDOW_NONE;

    std::shared_ptr<std::map<int, std::function<void()>>> observers =
        std::make_shared<std::map<int, std::function<void()>>>();
    int lastObserver = 0;

  private:
    [[nodiscard]] std::uint32_t ProcessOf(std::uint32_t resource) const;
    void WatchForItsEnd(xcb_window_t window);
};

void X11Windows::Implementation::Activate(xcb_window_t window) {
    if (!IsAvailable() || window == XCB_WINDOW_NONE)
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = activeWindow;
    constexpr std::uint32_t kFromPager = 2; // as the person's own wish, which no focus guard refuses
    message.data.data32[0] = kFromPager;
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(queries.Get(), 0, queries.Root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    queries.Flush();
}

std::string X11Windows::Implementation::Text(xcb_window_t window, xcb_atom_t property,
                                             xcb_atom_t& type) const {
    constexpr std::uint32_t kLongestInWords = 4096;
    const auto cookie =
        xcb_get_property(queries.Get(), 0, window, property, XCB_ATOM_ANY, 0, kLongestInWords);
    const auto reply = Owned(xcb_get_property_reply(queries.Get(), cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    type = reply->type;
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool X11Windows::Implementation::Exists(xcb_window_t window) const {
    const auto cookie = xcb_get_window_attributes(queries.Get(), window);
    return Owned(xcb_get_window_attributes_reply(queries.Get(), cookie, nullptr)) != nullptr;
}

std::uint32_t X11Windows::Implementation::ProcessOfWindow(xcb_window_t window) const {
    if (!IsAvailable() || window == XCB_WINDOW_NONE || !Exists(window))
        return 0;
    const auto process = ProcessOf(window);
    return process != 0 ? process : queries.Property(window, windowProcess);
}

/// The process that made a resource, as the server itself knows it; a window's own word may be missing
/// (xterm) or come from another machine.
std::uint32_t X11Windows::Implementation::ProcessOf(std::uint32_t resource) const {
    if (!hasResources)
        return 0;
    const xcb_res_client_id_spec_t question{resource, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(queries.Get(), 1, &question);
    const auto reply = Owned(xcb_res_query_client_ids_reply(queries.Get(), cookie, nullptr));
    if (!reply)
        return 0;
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids))
        if ((ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) &&
            xcb_res_client_id_value_value_length(ids.data) > 0)
            return *xcb_res_client_id_value_value(ids.data);
    return 0;
}

Rectangle X11Windows::Implementation::ClientArea(xcb_window_t window) const {
    if (!IsAvailable() || window == XCB_WINDOW_NONE)
        return {};
    const auto sizeCookie = xcb_get_geometry(queries.Get(), window);
    const auto cornerCookie = xcb_translate_coordinates(queries.Get(), window, queries.Root(), 0, 0);
    const auto size = Owned(xcb_get_geometry_reply(queries.Get(), sizeCookie, nullptr));
    const auto corner = Owned(xcb_translate_coordinates_reply(queries.Get(), cornerCookie, nullptr));
    if (!size || !corner)
        return {};
    return {corner->dst_x, corner->dst_y, size->width, size->height};
}

bool X11Windows::Implementation::IsUnder(xcb_window_t window, Point point) const {
    if (!IsAvailable() || window == XCB_WINDOW_NONE)
        return false;
    const auto x = static_cast<std::int16_t>(point.x);
    const auto y = static_cast<std::int16_t>(point.y);
    // From the screen down, window by window, to the one that shows.
    for (auto shown = queries.Root(); shown != XCB_WINDOW_NONE;) {
        const auto cookie = xcb_translate_coordinates(queries.Get(), queries.Root(), shown, x, y);
        const auto reply = Owned(xcb_translate_coordinates_reply(queries.Get(), cookie, nullptr));
        shown = reply ? reply->child : xcb_window_t{XCB_WINDOW_NONE};
        if (shown == window)
            return true;
    }
    return false;
}

void X11Windows::Implementation::WatchForItsEnd(xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(events.Get(), window, XCB_CW_EVENT_MASK, &mask);
    events.Flush();
}

void X11Windows::Implementation::ProcessEvents() {
    bool moved = false;
    bool ended = false;
    while (const auto event = Owned(xcb_poll_for_event(events.Get()))) {
        const auto type = event->response_type & 0x7F;
        const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
        const auto* end = reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get());
        moved |= type == XCB_PROPERTY_NOTIFY && change->atom == activeWindow;
        // At the end of a window a window manager may tell nothing at all.
        ended |= type == XCB_DESTROY_NOTIFY && end->window == last;
    }
    if (!moved && !ended)
        return;
    const auto now = Foreground();
    // A window that has ended may have left its number to the next one.
    if (std::exchange(last, now) == now && !ended)
        return;
    if (now != XCB_WINDOW_NONE)
        WatchForItsEnd(now);
    const auto called = *observers;
    for (const auto& [number, changed] : called)
        if (observers->contains(number))
            changed();
}

X11Windows::X11Windows() : implementation(std::make_unique<Implementation>()) {
}

X11Windows::~X11Windows() = default;

WindowId X11Windows::ForegroundWindow() const {
    return implementation->Foreground();
}

void X11Windows::Activate(WindowId window) {
    implementation->Activate(WindowOf(window));
}

Text X11Windows::TitleOf(WindowId window, std::size_t limit) const {
    if (!implementation->IsAvailable() || window == 0)
        return {};
    xcb_atom_t type = XCB_ATOM_NONE;
    auto title = implementation->Text(WindowOf(window), implementation->windowName, type);
    if (title.empty())
        title = implementation->Text(WindowOf(window), XCB_ATOM_WM_NAME, type);
    // The older property is Latin-1, which is Windows-1252 but for control characters.
    auto text = type == implementation->utf8 ? FromUtf8(title) : title;
    text.resize(std::min(text.size(), limit));
    return text;
}

bool X11Windows::IsOurs(WindowId window) const {
    const auto process = implementation->ProcessOfWindow(WindowOf(window));
    return process != 0 && process == implementation->ourProcess;
}

std::uint32_t X11Windows::ProcessOf(WindowId window) const {
    return implementation->ProcessOfWindow(WindowOf(window));
}

Rectangle X11Windows::ClientArea(WindowId window) const {
    return implementation->ClientArea(WindowOf(window));
}

bool X11Windows::IsUnder(WindowId window, Point point) const {
    return implementation->IsUnder(WindowOf(window), point);
}

RegistrationHandle X11Windows::OnFocusChange(std::function<void()> changed) {
    using Observers = std::map<int, std::function<void()>>;
    struct Observer : Registration {
        Observer(std::weak_ptr<Observers> observers, int number)
            : observers(std::move(observers)), number(number) {}
        ~Observer() override {
            if (const auto living = observers.lock())
                living->erase(number);
        }
        std::weak_ptr<Observers> observers;
        int number;
    };
    const int number = ++implementation->lastObserver;
    implementation->observers->emplace(number, std::move(changed));
    return std::make_unique<Observer>(implementation->observers, number);
}

int X11Windows::Descriptor() const {
    return implementation->IsAvailable() ? xcb_get_file_descriptor(implementation->events.Get()) : -1;
}

void X11Windows::ProcessEvents() {
    implementation->ProcessEvents();
}

} // namespace ondrilo
