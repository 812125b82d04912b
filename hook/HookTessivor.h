#pragma once

#include <cstdint>

/// The library that watches another program's keys and mouse: whatever a program in another language may need
/// of it, too, so its functions are those of C. One program is watched at a time, and one thread calls them
/// all.
///
/// Keys are reported while a window of the watched program is active, mouse buttons and moves while the
/// pointer is over one of its windows. The messages and their numbers are those of platform/MessageQueue.h:
/// UM_KEY_DOWN and UM_KEY_UP with the virtual key and the key data (repeat count 1 in bits 0 to 15, scan code
/// in bits 16 to 23, in presses bit 25 with Shift and bit 26 with Control, bit 30 for a repeat or a release,
/// bit 31 for a release); UM_CHAR with the character in
/// Windows-1252 as the watched program composes it (Backspace, Tab, Enter and Control with a letter are
/// characters too); UM_LEFT_DOWN to UM_MIDDLE_UP; UM_POINTER_MOVED with eight bits of each coordinate.

#define HOOK_TESSIVOR __attribute__((visibility("default")))

extern "C" {

/// Called on the library's own thread.
using HookReceiver = void (*)(void* context, std::uint32_t message, std::int32_t first, std::int32_t second);

/// Begins to watch the program that the X window belongs to; false if the server has no means for that, and
/// then nothing stays behind. Of a window that is gone nothing is reported. A former watch ends.
HOOK_TESSIVOR bool InitializeHook(std::uint32_t window, HookReceiver receiver, void* context);
/// Ends the watch, gives every swallowed key and button free, and returns when no call will come any more.
HOOK_TESSIVOR void TerminateHook();

/// From now on the key does not reach the watched program, whoever pressed it; it is reported all the same.
/// With Alt or the logo key it belongs to the desktop: neither reported nor swallowed.
HOOK_TESSIVOR void AddSpecialKey(int virtualKey);
HOOK_TESSIVOR void DeleteSpecialKey(int virtualKey);
/// The same for the mouse buttons over the watched program's windows.
HOOK_TESSIVOR void AddMouseButtons();
HOOK_TESSIVOR void DeleteMouseButtons();

/// What the next press or release of a key code that comes from ourselves stands for.
enum HookMeaning : std::int32_t {
    kHookSilence = -1, ///< it is not reported: a modifier of the person's that we lift or put back
};
/// To be told just before the key is sent. `meaning` is the Windows-1252 character that the press writes,
/// which is reported as the key strokes that stand for it in the key tables, or kHookSilence. Other keys of
/// ours need no telling. An expectation that does not come true is forgotten after a second.
HOOK_TESSIVOR void ExpectKey(std::uint8_t keycode, bool isPress, std::int32_t meaning);
}
