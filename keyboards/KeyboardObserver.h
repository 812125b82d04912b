#pragma once

#include "platform/COnScreenKeyIdentifier.h"

namespace ondrilo {

/// Told after a keyboard changed, on the user-interface thread. Must not change the keyboard in return.
class KeyboardObserver {
  public:
    virtual ~KeyboardObserver() = default;
    /// What the key shows, or how, is different: content, colours, lighting, marks.
    virtual void KeyChanged(COnScreenKeyIdentifier key) = 0;
    /// Keys came or went: another keyboard, or none. All addresses mean something else now.
    virtual void KeysReplaced() = 0;
    /// Keys have other places and sizes.
    virtual void LayoutChanged() = 0;
};

} // namespace ondrilo
