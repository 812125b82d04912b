#pragma once

#include "app/FrameWindow.h"
#include "tests/support/Journal.h"

namespace ondrilo {

/// A main window without a screen: 8 pixels of frame around the view, and 40 of title and menu above it.
class FakeFrameWindow : public FrameWindow {
  public:
    explicit FakeFrameWindow(Journal& journal) : journal(journal) {}

    void SetListener(FrameWindowListener* newListener) override { listener = newListener; }
    [[nodiscard]] WindowId Id() const override { return 1; }
    void SetTitle(TextView newTitle) override { title = newTitle; }
    void SetTopMost(bool newTopMost) override { topMost = newTopMost; }
    void SetAcceptsFocus(bool accepts) override { acceptsFocus = accepts; }
    void Activate() override { journal.Note("activate"); }
    void SetBusy(bool busy) override { journal.Note(busy ? "busy" : "not busy"); }
    void Show(WindowState newState) override {
        state = newState;
        journal.Note("show window");
    }
    [[nodiscard]] WindowState State() const override { return state; }
    [[nodiscard]] Rectangle Frame() const override {
        return {position.x, position.y, client.width + 16, client.height + 48};
    }
    void MoveTo(Point newPosition) override {
        position = newPosition;
        ++moves;
    }
    [[nodiscard]] Point ViewOrigin() const override { return {position.x + 8, position.y + 40}; }
    [[nodiscard]] Size ClientSize() const override { return client; }
    void FitClient(Size size) override { client = size; }
    void ShowCaption(bool visible) override { captionVisible = visible; }
    void ShowMenu(bool visible) override { menuVisible = visible; }
    void ShowStatusBar(bool visible) override { statusBarVisible = visible; }
    void EnableMenu(bool enabled) override { menuEnabled = enabled; }
    void SetBackground(const std::optional<WindowBackground>& newBackground) override {
        background = newBackground;
        journal.Note(newBackground ? "background" : "no background");
    }
    void HoldUpdates(bool hold) override { holds += hold ? 1 : -1; }
    void Redraw() override { journal.Note("redraw"); }
    void SetStatusMessage(TextView text) override { statusMessages.emplace_back(text); }
    void Close() override { journal.Note("close"); }

    FrameWindowListener* listener = nullptr;
    Text title;
    WindowState state = WindowState::Normal;
    Point position{500, 500};
    int moves = 0;
    Size client{800, 600};
    bool topMost = false;
    bool acceptsFocus = false;
    bool captionVisible = true;
    bool menuVisible = true;
    bool statusBarVisible = true;
    bool menuEnabled = true;
    int holds = 0;
    std::optional<WindowBackground> background;
    std::vector<Text> statusMessages;

  private:
    Journal& journal;
};

} // namespace ondrilo
