#pragma once

#include "text/Text.h"

namespace ondrilo {

/// The sentence that is being written, as the event log tells it: as it stood at the last input, and at the
/// one before.
class MessageContext {
  public:
    /// `written`: the sentence, or the whole text where none is open. At most its last 500 characters count.
    void Update(TextView written);
    void Clear();

    [[nodiscard]] const Text& Current() const { return current; }
    /// For a character that the text has received already.
    [[nodiscard]] const Text& Previous() const { return previous; }

  private:
    Text current;
    Text previous;
};

} // namespace ondrilo
