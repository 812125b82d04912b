#pragma once

#include "app/SessionWindows.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/Journal.h"

namespace ondrilo {

/// Session windows without a screen. What is typed arrives in the editor's box for as long as it lives.
class FakeSessionWindows : public SessionWindows {
  public:
    FakeSessionWindows(Journal& journal, FakeKeyOutput& keys) : journal(journal), keys(keys) {}

    [[nodiscard]] std::unique_ptr<TextSurface> CreateEditorBox() override {
        return std::make_unique<EditorBox>(*this);
    }
    [[nodiscard]] std::unique_ptr<KeyboardWindow> CreateKeyboardWindow(COnScreenKeyboard&) override {
        return std::make_unique<Board>(*this);
    }
    [[nodiscard]] std::unique_ptr<TextWindow> CreatePreview(const TextWindowStyle& style) override {
        previewStyle = style;
        return std::make_unique<Window>(*this, "preview", preview);
    }
    [[nodiscard]] std::unique_ptr<TextWindow> CreateNotice(const TextWindowStyle&) override {
        return std::make_unique<Window>(*this, "notice", notice);
    }

    struct Shown {
        Text text;
        Point lowerLeft;
        bool visible = false;
    };
    std::vector<Text> texts; ///< of previews and notices, in their order
    Shown preview;
    Shown notice;
    TextWindowStyle previewStyle;
    Point keyboardPlace;
    FakeTextSurface* editor = nullptr; ///< null while there is none
    int alive = 0;                     ///< windows that exist

  private:
    /// Notes how a window comes and goes.
    struct Life {
        Life(FakeSessionWindows& owner, Text name) : owner(owner), name(std::move(name)) {
            ++owner.alive;
            owner.journal.Note("create " + this->name);
        }
        ~Life() {
            --owner.alive;
            owner.journal.Note("destroy " + name);
        }
        FakeSessionWindows& owner;
        Text name;
    };
    struct EditorBox : Life, FakeTextSurface {
        explicit EditorBox(FakeSessionWindows& owner) : Life(owner, "editor") {
            owner.editor = owner.keys.surface = this;
        }
        ~EditorBox() override { owner.editor = owner.keys.surface = nullptr; }
    };
    struct Board : Life, KeyboardWindow {
        explicit Board(FakeSessionWindows& owner) : Life(owner, "keyboard") {}
        void MoveTo(Point position) override { owner.keyboardPlace = position; }
    };
    /// As wide as 10 pixels a letter, 20 tall.
    struct Window : Life, TextWindow {
        Window(FakeSessionWindows& owner, Text name, Shown& shown)
            : Life(owner, std::move(name)), shown(shown) {
            shown = {};
        }
        ~Window() override { shown.visible = false; }
        void SetText(TextView text) override {
            shown.text = text;
            owner.texts.emplace_back(text);
        }
        [[nodiscard]] Size GetSize() const override { return {10 * static_cast<int>(shown.text.size()), 20}; }
        void MoveTo(Point lowerLeft) override { shown.lowerLeft = lowerLeft; }
        void Show() override { shown.visible = true; }
        void Hide() override { shown.visible = false; }
        [[nodiscard]] bool IsVisible() const override { return shown.visible; }
        Shown& shown;
    };

    Journal& journal;
    FakeKeyOutput& keys;
};

} // namespace ondrilo
