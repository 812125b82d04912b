#pragma once

#include "targets/CKeyboard.h"
#include "targets/PortugueseLayout.h"
#include "tests/support/FakeTextSurface.h"
#include "text/CaseFolding.h"

#include <set>
#include <vector>

namespace ondrilo {

/// A Portuguese keyboard that records what goes out: "down 17", "up 17", "type a". With a surface, everything
/// also arrives there at once, as from a desktop whose focus is in the box; Caps Lock and held Shift count.
class FakeKeyOutput : public KeyOutput {
  public:
    explicit FakeKeyOutput(FakeTextSurface* surface = nullptr) : surface(surface) {}

    [[nodiscard]] std::optional<LayoutKey> KeyOf(char c) const override { return PortugueseKeyOf(c); }
    void TypeCharacter(char c) override {
        events.push_back(Text("type ") + c);
        if (!surface)
            return;
        bool written = true;
        for (const char stroke : TypedCharacters({&c, 1})) {
            const auto key = KeyOf(stroke);
            if (!key)
                return;
            written = surface->KeyDown(key->code) && written;
            surface->KeyUp(key->code);
        }
        if (written)
            surface->Character(Shifted(c));
    }
    void KeyDown(int code) override {
        events.push_back("down " + std::to_string(code));
        held.insert(code);
        if (code == vk::CapsLock)
            capsLock = !capsLock;
        if (surface && surface->KeyDown(code))
            Write(code);
    }
    void KeyUp(int code) override {
        events.push_back("up " + std::to_string(code));
        held.erase(code);
        if (surface)
            surface->KeyUp(code);
    }
    [[nodiscard]] bool IsCapsLockOn() const override { return capsLock; }

    FakeTextSurface* surface;
    std::vector<Text> events;
    std::set<int> held;
    bool capsLock = false;

  private:
    [[nodiscard]] char Shifted(char c) const {
        const char cased = capsLock ? CKeyboard::SwapCase({&c, 1}).front() : c;
        return held.contains(vk::Shift) ? MakeUpper(cased) : cased;
    }
    void Write(int code) {
        const bool isCommand = held.contains(vk::Control) || held.contains(vk::Alt);
        if (isCommand)
            return;
        if (code >= 'A' && code <= 'Z')
            surface->Character(Shifted(MakeLower(static_cast<char>(code))));
        else if (code == vk::Space || code == vk::Enter || code == vk::Backspace || code == vk::Tab ||
                 (code >= '0' && code <= '9'))
            surface->Character(static_cast<char>(code));
        else if (code >= vk::Num0 && code <= vk::Num0 + 9)
            surface->Character(static_cast<char>('0' + code - vk::Num0));
        else if (code == vk::Left || code == vk::Right)
            surface->MoveCursor(std::clamp(surface->cursor + (code == vk::Left ? -1 : 1), 0,
                                           static_cast<int>(surface->text.size())));
    }
};

} // namespace ondrilo
