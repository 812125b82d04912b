#include "tools/CheckReport.h"

#include "platform/FileStore.h"

#include <charconv>

namespace ondrilo {

namespace {

Text BytesToCheck(CheckReport& report, const DataFolder& folder, const Text& name) {
    auto file = ReadFile(folder.Path(name));
    if (file.state == ReadState::Broken)
        report.push_back({name, 0, "cannot be read to its end"});
    return std::move(file.bytes);
}

/// Accents written for another program: each would be read as two characters.
bool IsUtf8WithAccents(TextView line) {
    bool accents = false;
    while (!line.empty()) {
        const auto codePoint = TakeUtf8(line);
        if (codePoint == kReplacement)
            return false;
        accents = accents || codePoint >= 0x80;
    }
    return accents;
}

} // namespace

CheckedFile::CheckedFile(CheckReport& report, const DataFolder& folder, TextView name, std::size_t lineLimit)
    : report(report), name(name), bytes(BytesToCheck(report, folder, this->name)), limit(lineLimit),
      lines(bytes, lineLimit) {
}

std::optional<TextView> CheckedFile::Next() {
    const auto before = Line();
    auto line = lines.Next();
    if (line && Line() == before && Line() != lastTooLong) {
        lastTooLong = Line();
        Tell("longer than " + std::to_string(limit) + " bytes: read as several lines");
    }
    if (line && IsUtf8WithAccents(*line))
        Tell("is UTF-8, but is read as Windows-1252");
    return line;
}

void CheckedFile::Tell(Text reason) {
    report.push_back({name, Line(), std::move(reason)});
}

std::vector<TextView> WordsOf(TextView line) {
    std::vector<TextView> words;
    FieldScanner scanner(line);
    while (const auto word = scanner.Word())
        words.push_back(*word);
    return words;
}

Text IntegerProblem(TextView word) {
    const auto read = FieldScanner(word).Integer();
    if (!read)
        return Quoted(word) + " is no number";
    const auto digits = word.substr(word.starts_with('+') ? 1 : 0);
    int exact = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), exact);
    if (error == std::errc{} && end == digits.data() + digits.size())
        return {};
    return Quoted(word) + " is read as " + std::to_string(*read);
}

Text Quoted(TextView text) {
    return Text("\"").append(text).append("\"");
}

} // namespace ondrilo
