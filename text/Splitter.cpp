#include "text/Splitter.h"

namespace ondrilo {

Tokens Split(TextView text, TextView delimiters, std::size_t most) {
    Tokens tokens;
    auto start = text.find_first_not_of(delimiters);
    while (start != TextView::npos && tokens.size() < most) {
        const auto end = std::min(text.find_first_of(delimiters, start), text.size());
        tokens.emplace_back(text.substr(start, end - start));
        start = text.find_first_not_of(delimiters, end);
    }
    return tokens;
}

Tokens SplitTokens(TextView text, std::size_t most) {
    Tokens tokens;
    const Text marked = Replace(text, "[", "[#");
    for (const Text& piece : Split(marked, "[]", most)) {
        if (const auto mark = piece.find('#'); mark != Text::npos) {
            tokens.push_back("[" + piece.substr(mark == 0 ? 1 : 0) + "]");
            continue;
        }
        for (Text& token : Split(piece, kSeparators, most))
            tokens.push_back(std::move(token));
    }
    return tokens;
}

Text Join(const Tokens& tokens, TextView glue) {
    Text joined;
    for (const Text& token : tokens) {
        if (&token != &tokens.front())
            joined += glue;
        joined += token;
    }
    return joined;
}

Text Replace(TextView text, TextView from, TextView to) {
    Text replaced;
    for (auto at = text.find(from); at != TextView::npos; at = text.find(from)) {
        replaced.append(text.substr(0, at)).append(to);
        text.remove_prefix(at + from.size());
    }
    return replaced.append(text);
}

TextView TrimLeft(TextView text, TextView characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
    return text;
}

TextView Trim(TextView text, TextView characters) {
    text = TrimLeft(text, characters);
    return text.substr(0, text.find_last_not_of(characters) + 1);
}

} // namespace ondrilo
