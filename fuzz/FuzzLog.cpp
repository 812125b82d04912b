#include "fuzz/Fuzz.h"
#include "text/Splitter.h"
#include "tools/LogCsv.h"
#include "tools/LogReplay.h"
#include "tools/OpenBoardLog.h"

namespace {

using namespace ondrilo;

/// With one blank before each hyphen: an empty column has one or two.
Text AsLine(const LogRecord& record) {
    Text line = record.time + " \"" + record.output + "\"";
    for (const Text* column : {&record.event, &record.type, &record.element, &record.center, &record.page})
        line += " " + (column->empty() ? "-" : *column);
    return Replace(line + " \"" + record.context + "\"", "  -", " -");
}

void ReadAsLine(TextView line) {
    if (const auto record = ReadLogLine(line))
        Require(AsLine(*record) == Replace(line, "  -", " -"), "each byte of a line is in its columns");
}

bool HasControls(TextView text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return c >= 0 && c < ' ' && c != '\n'; });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TextView bytes = TextOf(data, size);
    ReadAsLine(bytes);
    ReadAsLine(Text("09:00:01.000 \"").append(bytes));
    for (const TextView start : {"", "TIME Time when the event occurred\n$$$ End Header\n\n"}) {
        const auto log = ReadLog(Text(start).append(bytes));
        Require(log || start.empty(), "what begins as a log is one");
        if (!log)
            continue;
        (void)LogAsCsv(*log);
        (void)Replay(*log);
        Require(!HasControls(LogAsOpenBoardLog(*log, bytes, bytes, LogDay{})), "JSON has no raw controls");
        (void)ReadLogName(bytes);
        (void)ReadLogDay(bytes);
    }
    return 0;
}
