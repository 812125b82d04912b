#pragma once

#include "platform/AccessibleText.h"
#include "platform/TargetHook.h"
#include "tests/support/FakeTextSurface.h"

#include <set>
#include <utility>

namespace ondrilo {

/// Another program with a text, and the hook and the accessible text through which it is seen.
class FakeOtherProgram : public TargetHook, public AccessibleText, private TextSurfaceListener {
  public:
    [[nodiscard]] bool InitializeHook(WindowId target, const Receiver& newReceiver) override {
        if (refuses)
            return false;
        watched = target;
        receiver = newReceiver;
        surface.SetListener(this);
        return true;
    }
    void TerminateHook() override {
        surface.SetListener(nullptr);
        watched = 0;
        receiver = {};
        specialKeys.clear();
    }
    void AddSpecialKey(int code) override { specialKeys.insert(code); }
    void DeleteSpecialKey(int code) override { specialKeys.erase(code); }
    void AddMouseButtons() override { mouseIsSwallowed = true; }
    void DeleteMouseButtons() override { mouseIsSwallowed = false; }

    void Follow(std::uint32_t process) override {
        followed = process;
        question = {};
        caretMoved = {};
    }
    void OnCaretMoved(const std::function<void(bool isElsewhere)>& moved) override { caretMoved = moved; }
    [[nodiscard]] Point CaretPosition() const override { return surface.caret; }
    [[nodiscard]] bool IsPassword() const override { return isPassword; }
    void ReadParagraph(const std::function<void(Paragraph)>& answer) override { question = answer; }

    void Press(int code, std::int32_t keyData = 1) {
        surface.KeyDown(code, keyData);
        surface.KeyUp(code);
    }
    void Write(TextView text) {
        for (const char c : text)
            surface.Character(c);
    }
    void Click(Message button = Message::UM_LEFT_DOWN) { OnMouseButton(button); }
    /// The program tells its text to whoever waits for it.
    void Answer(TextView paragraph, std::size_t cursor) {
        if (const auto told = std::exchange(question, {}))
            told({Text(paragraph), cursor});
    }

    FakeTextSurface surface;
    WindowId watched = 0;
    std::uint32_t followed = 0;
    std::set<int> specialKeys;
    std::function<void(Paragraph)> question;
    std::function<void(bool isElsewhere)> caretMoved;
    /// Called after each event, as the queue is handled before the next.
    std::function<void()> settle = [] {
    };
    bool refuses = false;
    bool mouseIsSwallowed = false;
    bool isPassword = false;

  private:
    void Report(Message message, std::int32_t first = 0, std::int32_t second = 0) {
        if (receiver)
            receiver({message, first, second});
        settle();
    }
    void OnKeyDown(int code, std::int32_t data) override { Report(Message::UM_KEY_DOWN, code, data); }
    void OnKeyUp(int code, std::int32_t data) override { Report(Message::UM_KEY_UP, code, data); }
    [[nodiscard]] bool IsBlocked(int code) const override { return specialKeys.contains(code); }
    void OnCharacter(char c, std::int32_t data) override {
        Report(Message::UM_CHAR, static_cast<unsigned char>(c), data);
    }
    void OnMouseButton(Message button) override { Report(button); }
    void OnPointerMoved(Point) override {}

    Receiver receiver;
};

} // namespace ondrilo
