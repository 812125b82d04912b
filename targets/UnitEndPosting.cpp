#include "targets/UnitEndPosting.h"

#include "text/Splitter.h"

namespace ondrilo {

void UnitEndPosting::PostCharacter(char c, std::int32_t keyData) {
    constexpr char kBackspace = 8;
    queue.Post(Message::UM_CHAR, static_cast<unsigned char>(c), keyData);
    if (!IsSeparator(lastChar) && lastChar != kBackspace && IsSeparator(c))
        queue.Post(Message::UM_WORD_END);
    if (IsTerminator(c))
        queue.Post(Message::UM_SENTENCE_END);
    lastChar = c;
}

} // namespace ondrilo
