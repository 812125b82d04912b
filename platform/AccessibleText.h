#pragma once

#include "platform/Geometry.h"
#include "text/Text.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace ondrilo {

/// What another program tells of the text that has the focus in it, for those who write with other means than
/// the keyboard. Every answer comes late or never: nothing here waits for the other program. This class is at
/// the same time the form for a desktop that tells nothing.
class AccessibleText {
  public:
    virtual ~AccessibleText() = default;

    /// From now on everything is about that process; 0 is none. An answer that is still awaited never comes.
    virtual void Follow(std::uint32_t /*process*/) {}
    /// Who is to be told when the caret has moved there, or when something else has got the focus, also where
    /// nobody pressed anything: pages move them by themselves. Forgotten when another process is followed.
    virtual void OnCaretMoved(const std::function<void(bool isElsewhere)>& /*moved*/) {}

    /// Top left of the caret on the screen, as last told, in logical pixels; (0, 0) while unknown.
    [[nodiscard]] virtual Point CaretPosition() const { return {}; }
    /// The text that has the focus is secret. True also while a text that has just got the focus has not yet
    /// said what it is.
    [[nodiscard]] virtual bool IsPassword() const { return false; }

    /// The paragraph with the caret, in Windows-1252, one byte a character ("?" for what that lacks).
    struct Paragraph {
        Text text;
        std::size_t cursor = 0; ///< the caret's place in it
    };
    /// Asks for the paragraph as it will be once program and caret have come to rest, some tens of
    /// milliseconds after the last call; each call takes the place of the one before. There is no answer from
    /// a program that does not tell, from a terminal, from a password field or while something is selected.
    virtual void ReadParagraph(const std::function<void(Paragraph)>& /*answer*/) {}
};

} // namespace ondrilo
