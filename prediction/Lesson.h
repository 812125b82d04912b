#pragma once

#include "prediction/CDictionary.h"

#include <optional>
#include <span>
#include <vector>

namespace ondrilo {

/// One thing to learn from what a person wrote, once.
struct Lesson {
    enum class Kind { Word, WordPair, Sentence, SentencePair };
    static constexpr std::size_t kKinds = 4;

    Kind kind = Kind::Word;
    Text first;
    /// Of pairs only.
    Text second{};
};

/// What the end of a word, or of a sentence, teaches.
using Lessons = std::vector<Lesson>;

void Learn(CDictionary& dictionary, std::span<const Lesson> lessons);

/// One line, without its end, and back; nothing if the line is not such a one.
[[nodiscard]] Text FormatLessons(std::span<const Lesson> lessons);
[[nodiscard]] std::optional<Lessons> ParseLessons(TextView line);

/// The letter of a kind in such lines.
[[nodiscard]] char LetterOf(Lesson::Kind kind);
[[nodiscard]] std::optional<Lesson::Kind> KindOfLetter(TextView letter);
/// The texts between tabulators, empty ones too.
[[nodiscard]] std::vector<TextView> SplitAtTabs(TextView line);

} // namespace ondrilo
