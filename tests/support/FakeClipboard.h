#pragma once

#include "platform/Clipboard.h"

namespace ondrilo {

struct FakeClipboard : Clipboard {
    [[nodiscard]] Text GetText() const override { return text; }
    Text text;
};

} // namespace ondrilo
