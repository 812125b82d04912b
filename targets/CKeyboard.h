#pragma once

#include "platform/Keyboard.h"
#include "targets/CKeySet.h"
#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// The output side of the keys: types text, presses named keys, plays sequences, and counts what a text costs
/// on the person's layout. What it types goes to the window that has the focus.
class CKeyboard {
  public:
    explicit CKeyboard(KeyOutput& output) : output(output) {}
    CKeyboard(const CKeyboard&) = delete;
    CKeyboard& operator=(const CKeyboard&) = delete;

    /// Fills `keySet` anew with the standard keys.
    void Initialize();

    /// A line break, "\r\n" or "\n", is one Enter.
    void TypeText(TextView text);
    void TypeChar(char c);
    void Backspace(int times);

    /// A known name, white space around it aside, stands for its key, any other text for the key of its first
    /// character. Nothing happens without a key.
    void PressKey(TextView name);
    void ReleaseKey(TextView name);
    /// Presses and releases the key of a known name; types any other text.
    void TapKey(TextView name);
    /// The output of a text key.
    void SendKey(TextView keyOutput) { TapKey(keyOutput); }
    /// Combinations between blanks and "{", "}"; their key names joined by "+" go down in order and up in
    /// reverse: "{Ctrl+c} Enter".
    void PlaySequence(TextView sequence);

    [[nodiscard]] bool IsCapsLockOn() const { return output.IsCapsLockOn(); }
    /// Capitals become small letters and the reverse, accented ones too.
    [[nodiscard]] static Text SwapCase(TextView text);

    /// Key presses that a key's output or a text costs: a key name one, otherwise the sum of CountChar.
    [[nodiscard]] int CountKeys(TextView text) const;
    /// Dead key and letter count apart, each modifier counts; what the layout cannot type costs nothing, a
    /// line feed costs one and a carriage return nothing.
    [[nodiscard]] int CountChar(char c) const;
    /// The key names in a sequence.
    [[nodiscard]] static int CountSequenceKeys(TextView sequence);

    /// True for a key that writes a visible character or a blank, and for any text that is no key name.
    [[nodiscard]] bool IsPrintingKey(TextView name) const;

    CKeySet keySet;

  private:
    [[nodiscard]] std::optional<int> CodeOf(TextView name) const;
    void Tap(int code);

    KeyOutput& output;
};

/// The strokes that a text is typed with: letters with a dead accent as the accent and the letter ("é" as
/// "´e"), all others as they are.
[[nodiscard]] Text TypedCharacters(TextView text);

} // namespace ondrilo
