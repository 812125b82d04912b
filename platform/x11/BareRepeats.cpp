#include "platform/x11/BareRepeats.h"

// The header names a field with a word of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace ondrilo {

void AskForBareRepeats(xcb_connection_t* connection) {
    constexpr auto kFlag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, kFlag, kFlag, 0, 0, 0);
    xcb_discard_reply(connection, cookie.sequence);
}

} // namespace ondrilo
