#include "hook/HookTessivor.h"

#include "hook/Hook.h"

#include <memory>

namespace {

std::unique_ptr<ondrilo::Hook> hook;

} // namespace

bool InitializeHook(std::uint32_t window, HookReceiver receiver, void* context) {
    TerminateHook();
    hook = std::make_unique<ondrilo::Hook>(window, receiver, context);
    if (!hook->IsWatching())
        hook.reset();
    return hook != nullptr;
}

void TerminateHook() {
    hook.reset();
}

void AddSpecialKey(int virtualKey) {
    if (hook)
        hook->AddSpecialKey(virtualKey);
}

void DeleteSpecialKey(int virtualKey) {
    if (hook)
        hook->DeleteSpecialKey(virtualKey);
}

void AddMouseButtons() {
    if (hook)
        hook->SwallowButtons(true);
}

void DeleteMouseButtons() {
    if (hook)
        hook->SwallowButtons(false);
}

void ExpectKey(std::uint8_t keycode, bool isPress, std::int32_t meaning) {
    if (hook)
        hook->expectations.Add(keycode, isPress, meaning);
}
