#include "hook/HookTessivor.h"

bool InitializeHook(std::uint32_t, HookReceiver, void*) {
    return false;
}

void TerminateHook() {
}

void AddSpecialKey(int) {
}

void DeleteSpecialKey(int) {
}

void AddMouseButtons() {
}

void DeleteMouseButtons() {
}

void ExpectKey(std::uint8_t, bool, std::int32_t) {
}
