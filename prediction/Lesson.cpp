#include "prediction/Lesson.h"

#include "text/Splitter.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kLetters = "pPfF";

bool IsPair(Lesson::Kind kind) {
    return kind == Lesson::Kind::WordPair || kind == Lesson::Kind::SentencePair;
}

void AppendField(Text& line, TextView text) {
    line += '\t';
    const std::size_t begin = line.size();
    line.append(text);
    // Words hold no white space, and to sentences all of it is the same.
    std::replace_if(line.begin() + static_cast<std::ptrdiff_t>(begin), line.end(), IsWhiteSpace, ' ');
}

void Learn(CDictionary& dictionary, const Lesson& lesson) {
    switch (lesson.kind) {
    case Lesson::Kind::Word:
        return dictionary.AddUserWord(lesson.first);
    case Lesson::Kind::WordPair:
        return dictionary.AddUserWordPair(lesson.first, lesson.second);
    case Lesson::Kind::Sentence:
        return dictionary.AddUserSentence(lesson.first);
    case Lesson::Kind::SentencePair:
        return dictionary.AddUserSentencePair(lesson.first, lesson.second);
    }
}

} // namespace

void Learn(CDictionary& dictionary, std::span<const Lesson> lessons) {
    for (const Lesson& lesson : lessons)
        Learn(dictionary, lesson);
}

Text FormatLessons(std::span<const Lesson> lessons) {
    Text line;
    for (const Lesson& lesson : lessons) {
        if (!line.empty())
            line += '\t';
        line += LetterOf(lesson.kind);
        AppendField(line, lesson.first);
        if (IsPair(lesson.kind))
            AppendField(line, lesson.second);
    }
    return line;
}

std::optional<Lessons> ParseLessons(TextView line) {
    const auto fields = SplitAtTabs(line);
    Lessons lessons;
    for (std::size_t i = 0; i < fields.size();) {
        const auto kind = KindOfLetter(fields[i]);
        const std::size_t size = kind && IsPair(*kind) ? 3 : 2;
        if (!kind || i + size > fields.size())
            return std::nullopt;
        lessons.push_back({*kind, Text(fields[i + 1]), Text(size == 3 ? fields[i + 2] : TextView())});
        i += size;
    }
    return lessons;
}

char LetterOf(Lesson::Kind kind) {
    return kLetters[static_cast<std::size_t>(kind)];
}

std::optional<Lesson::Kind> KindOfLetter(TextView letter) {
    const auto place = letter.size() == 1 ? kLetters.find(letter.front()) : TextView::npos;
    if (place == TextView::npos)
        return std::nullopt;
    return static_cast<Lesson::Kind>(place);
}

std::vector<TextView> SplitAtTabs(TextView line) {
    std::vector<TextView> fields;
    for (std::size_t end = line.find('\t'); end != TextView::npos; end = line.find('\t')) {
        fields.push_back(line.substr(0, end));
        line.remove_prefix(end + 1);
    }
    fields.push_back(line);
    return fields;
}

} // namespace ondrilo
