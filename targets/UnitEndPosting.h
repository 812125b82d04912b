#pragma once

#include "platform/MessageQueue.h"

#include <cstdint>

namespace ondrilo {

/// Posts each character that was typed in a target, and the end of a word or sentence that it brings about. A
/// word ends at a separator after a character that is none; one after Backspace ends nothing.
class UnitEndPosting {
  public:
    explicit UnitEndPosting(MessageQueue& queue) : queue(queue) {}
    void PostCharacter(char c, std::int32_t keyData);

  private:
    MessageQueue& queue;
    char lastChar = ' ';
};

} // namespace ondrilo
