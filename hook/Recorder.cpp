#include "hook/Recorder.h"

#include <xcb/record.h>
#include <xcb/xcbext.h>
#include <xcb/xinput.h>

// The header names a field with a word of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace ondrilo {
namespace {

constexpr std::size_t kEventSize = 32;

/// What the server gets while it holds the keyboard back is recorded before anything was filled in.
bool WasHeldBack(const xcb_key_press_event_t& event) {
    return event.state == 0 && event.root_x == 0 && event.root_y == 0;
}

InputEvent EventOf(const xcb_key_press_event_t& event) {
    return {
        event.response_type, event.detail, event.state, !WasHeldBack(event), {event.root_x, event.root_y}};
}

} // namespace

Recorder::Recorder() {
    if (!control.Has(xcb_record_id) || !control.Has(xcb_input_id) || !data.Has(xcb_xkb_id))
        return;
    ListenForBells();
    isRecording = ListenForMapChanges() && Enable();
}

/// On the connection of the record itself: on another one the notice of a change could be read after the key.
bool Recorder::ListenForMapChanges() {
    const auto cookie = xcb_xkb_use_extension(data.Get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    if (!Owned(xcb_xkb_use_extension_reply(data.Get(), cookie, nullptr)))
        return false;
    keyboardEvent = xcb_get_extension_data(data.Get(), &xcb_xkb_id)->first_event;
    constexpr std::uint16_t kEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t kAllParts = 0xFF;
    xcb_xkb_select_events(data.Get(), XCB_XKB_ID_USE_CORE_KBD, kEvents, 0, kEvents, kAllParts, kAllParts,
                          nullptr);
    return true;
}

/// The server sends what it has recorded only when it next sends something else to anybody, which for the
/// release of a key can be seconds later. So each key and button rings here too, and each ring is answered
/// with a question.
void Recorder::ListenForBells() {
    const auto cookie = xcb_input_xi_query_version(control.Get(), 2, 2);
    xcb_discard_reply(control.Get(), cookie.sequence);
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE |
                             XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                             XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    } selection;
    xcb_input_xi_select_events(control.Get(), control.Root(), 1, &selection.head);
}

bool Recorder::Enable() {
    const auto context = xcb_generate_id(control.Get());
    const xcb_record_client_spec_t everybody = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_range_t range{};
    range.device_events = {XCB_KEY_PRESS, XCB_MOTION_NOTIFY};
    const auto created =
        xcb_record_create_context_checked(control.Get(), context, 0, 1, 1, &everybody, &range);
    if (Owned(xcb_request_check(control.Get(), created)))
        return false;
    const auto cookie = xcb_record_enable_context(data.Get(), context);
    recording = cookie.sequence;
    return Owned(xcb_record_enable_context_reply(data.Get(), cookie, nullptr)) != nullptr;
}

void Recorder::AnswerBells() {
    bool hasRung = false;
    while (Owned(xcb_poll_for_event(control.Get())))
        hasRung = true;
    if (!hasRung)
        return;
    xcb_discard_reply(control.Get(), xcb_get_input_focus(control.Get()).sequence);
    control.Flush();
}

bool Recorder::TakeMapChange() {
    bool hasChanged = false;
    while (const auto event = Owned(xcb_poll_for_queued_event(data.Get())))
        hasChanged |= (event->response_type & 0x7F) == keyboardEvent ||
                      (event->response_type & 0x7F) == XCB_MAPPING_NOTIFY;
    return hasChanged;
}

void Recorder::Read(const std::function<void()>& mapChanged,
                    const std::function<void(const InputEvent&)>& happened) {
    AnswerBells();
    void* answer = nullptr;
    while (xcb_poll_for_reply(data.Get(), recording, &answer, nullptr) != 0 && answer) {
        const auto recorded = Owned(static_cast<xcb_record_enable_context_reply_t*>(answer));
        if (TakeMapChange())
            mapChanged();
        const auto* bytes = xcb_record_enable_context_data(recorded.get());
        const auto length = static_cast<std::size_t>(xcb_record_enable_context_data_length(recorded.get()));
        for (std::size_t at = 0; at + kEventSize <= length; at += kEventSize)
            happened(EventOf(*reinterpret_cast<const xcb_key_press_event_t*>(bytes + at)));
    }
    if (TakeMapChange())
        mapChanged();
}

} // namespace ondrilo
