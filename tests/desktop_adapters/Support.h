#pragma once

#include "platform/Desktop.h"
#include "platform/Keyboard.h"
#include "text/Text.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace ondrilo {

class X11Connection;

/// Runs the event loop until the condition holds; false if it does not within some seconds.
[[nodiscard]] bool Eventually(const std::function<bool()>& condition);
/// Runs the event loop for a while.
void PassTime(int milliseconds);

/// A program that runs until the end of the test.
class ChildProcess {
  public:
    explicit ChildProcess(const std::vector<std::string>& command);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { Kill(); }
    /// Sends the signal and waits for the end; SIGKILL without an argument.
    void Kill(int signal = 9);

  private:
    pid_t process = -1;
};

/// The roles that this test program plays when it is started again by one of its tests.
inline constexpr auto kHoldShift = "--hold-shift"; ///< lends spare keycodes, presses Shift and stays
inline constexpr auto kTextBoxes = "--text-boxes"; ///< shows a text and a password under that title
/// This program, in that role.
[[nodiscard]] std::vector<std::string> Ourselves(const std::vector<std::string>& arguments);
/// Plays that role until it is ended.
int ShowTextBoxes(int argc, char** argv);

/// Gives a window the focus and waits until the server's keys really go there: window managers tell of an
/// active window a moment earlier.
[[nodiscard]] bool GiveFocus(Desktop& desktop, WindowId window);
/// Waits for a top-level window with that title; 0 if none comes.
[[nodiscard]] WindowId WaitForWindow(const Desktop& desktop, TextView title);

/// What most layouts have no keys for, among what they have.
inline constexpr TextView kSentence = "comunicações É ç «x» € Ç à ~ ^ [1] {2} \"3\" ü º @"_w;
void Type(KeyOutput& keys, TextView text);
/// One key after the other, by virtual codes.
void Tap(KeyOutput& keys, std::initializer_list<int> codes);
/// As the person's mouse does.
void Click(Desktop& desktop, Point point);
[[nodiscard]] Point Middle(const Rectangle& area);

/// Sets the X server's layout.
void SetLayout(const std::string& layout);

/// What a server knows of its keyboard, over a connection of its own.
class ServerKeyboard {
  public:
    ServerKeyboard();
    ~ServerKeyboard();
    /// Keycodes that are down on the one keyboard that programs see.
    [[nodiscard]] std::vector<int> Down() const;
    /// All key symbols of all keycodes.
    [[nodiscard]] std::vector<std::uint32_t> Symbols() const;
    /// A key of the person's own keyboard, not one that a program types.
    void PersonPresses(int keycode) const;
    void PersonReleases(int keycode) const;
    void PersonTaps(int keycode) const {
        PersonPresses(keycode);
        PersonReleases(keycode);
    }

    static constexpr int kShift = 50, kA = 38, kB = 56; ///< keycodes that the layouts of the tests share

  private:
    void Send(int event, int keycode) const;

    std::unique_ptr<X11Connection> connection;
    std::uint8_t personsDevice = 0;
};

} // namespace ondrilo
