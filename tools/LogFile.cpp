#include "tools/LogFile.h"

#include "text/LineReader.h"
#include "text/Splitter.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kFirstLine = "TIME Time when the event occurred";
constexpr TextView kEndOfHeader = "$$$ End Header";
constexpr TextView kEndOfBody = "$$$ End Body";
constexpr TextView kFinalText = "Linha_Texto_Final ";
constexpr TextView kNothing = "-";
constexpr TextView kTimeForm = "00:00:00.000";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool BeginsEvent(TextView line) {
    const auto isInForm = [](char form, char c) {
        return form == '0' ? IsDigit(c) : form == c;
    };
    return line.size() > kTimeForm.size() &&
           std::equal(kTimeForm.begin(), kTimeForm.end(), line.begin(), isInForm) && line < "24" &&
           line[3] < '6' && line[6] < '6' && line.substr(kTimeForm.size()).starts_with(" \"");
}

/// "3", "3.0" and so on, up to `most` numbers.
bool AreDottedNumbers(TextView text, int most) {
    for (int count = 1; count <= most; ++count) {
        if (text.starts_with('-'))
            text.remove_prefix(1);
        const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
        if (end == text.begin())
            return false;
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
        if (text.empty())
            return true;
        if (!text.starts_with('.'))
            return false;
        text.remove_prefix(1);
    }
    return false;
}

/// Takes a column that holds no blanks, and the blank before it, off the line.
bool TakeColumn(TextView& line, Text& column) {
    if (!line.starts_with(' '))
        return false;
    line.remove_prefix(1);
    if (line.starts_with(" - "))
        line.remove_prefix(1);
    const auto end = line.find(' ');
    if (end == TextView::npos || end == 0)
        return false;
    column = line.substr(0, end);
    if (column == kNothing)
        column.clear();
    line.remove_prefix(end);
    return true;
}

/// What follows the first text, from the blank after its quote on.
bool ReadColumns(TextView rest, LogRecord& record) {
    for (Text* column : {&record.event, &record.type, &record.element, &record.center, &record.page})
        if (!TakeColumn(rest, *column))
            return false;
    // These forms tell columns from words that a person wrote between quotes.
    if (!record.element.empty() && !AreDottedNumbers(record.element, 3))
        return false;
    if (!record.center.empty() && !AreDottedNumbers(record.center, 2))
        return false;
    constexpr TextView opening = " \"";
    if (rest.size() <= opening.size() || !rest.starts_with(opening) || !rest.ends_with('"'))
        return false;
    rest.remove_prefix(opening.size());
    record.context = rest.substr(0, rest.size() - 1);
    return true;
}

/// Adds the event that these lines are, together if they can be, or each on its own.
void AddEvent(const std::vector<TextView>& lines, std::vector<LogRecord>& records) {
    if (lines.empty())
        return;
    Text whole(lines.front());
    for (std::size_t i = 1; i < lines.size(); ++i)
        whole.append("\n").append(lines[i]);
    if (auto record = ReadLogLine(whole)) {
        records.push_back(std::move(*record));
        return;
    }
    for (const TextView line : lines) {
        if (line.empty())
            continue;
        LogRecord undecided;
        undecided.undecided = line;
        records.push_back(ReadLogLine(line).value_or(std::move(undecided)));
    }
}

/// Returns whether the body's end was found.
bool ReadBody(LineReader& lines, std::vector<LogRecord>& records) {
    std::vector<TextView> event;
    auto line = lines.Next();
    for (; line && *line != kEndOfBody; line = lines.Next()) {
        if (BeginsEvent(*line)) {
            AddEvent(event, records);
            event.clear();
        }
        if (!event.empty() || !line->empty())
            event.push_back(*line);
    }
    AddEvent(event, records);
    return line.has_value();
}

void ReadEnd(LineReader& lines, LogFile& log) {
    while (const auto line = lines.Next()) {
        if (line->starts_with(kFinalText)) {
            log.finalTexts.emplace_back(line->substr(kFinalText.size()));
        } else if (!log.finalTexts.empty()) {
            log.finalTexts.back().append("\n").append(*line);
        } else if (const auto blank = line->find(' '); blank != TextView::npos) {
            log.metrics.push_back({Text(line->substr(0, blank)), Text(TrimLeft(line->substr(blank)))});
        }
    }
}

} // namespace

std::optional<LogRecord> ReadLogLine(TextView line) {
    if (!BeginsEvent(line))
        return std::nullopt;
    const TextView texts = line.substr(kTimeForm.size() + 2);
    std::optional<LogRecord> found;
    for (auto quote = texts.find("\" "); quote != TextView::npos; quote = texts.find("\" ", quote + 1)) {
        LogRecord record;
        if (!ReadColumns(texts.substr(quote + 1), record))
            continue;
        if (found)
            return std::nullopt;
        record.time = line.substr(0, kTimeForm.size());
        record.output = texts.substr(0, quote);
        found = std::move(record);
    }
    return found;
}

std::optional<LogFile> ReadLog(TextView bytes) {
    LineReader lines(bytes, kAllTokens);
    auto line = lines.Next();
    if (line != kFirstLine)
        return std::nullopt;
    while (line && *line != kEndOfHeader)
        line = lines.Next();
    LogFile log;
    log.hasEnd = ReadBody(lines, log.records);
    if (log.hasEnd)
        ReadEnd(lines, log);
    // The one event that marks an empty context.
    for (auto& record : log.records)
        if (record.type == "START_LOGGING" && record.context == kNothing)
            record.context.clear();
    return log;
}

} // namespace ondrilo
