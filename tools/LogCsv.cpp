#include "tools/LogCsv.h"

namespace ondrilo {
namespace {

std::string Field(TextView text) {
    auto field = ToUtf8(text);
    if (field.find_first_of(",\"\r\n") == std::string::npos)
        return field;
    std::string quoted = "\"";
    for (const char c : field)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

} // namespace

std::string LogAsCsv(const LogFile& log) {
    constexpr std::string_view rowEnd = "\r\n";
    std::string csv("TIME,OUTPUT,EVENT,TYPE,ELEMENT,CENTER,PAGE,CONTEXT,UNDECIDED");
    csv += rowEnd;
    for (const auto& record : log.records) {
        for (const Text* text : {&record.time, &record.output, &record.event, &record.type, &record.element,
                                 &record.center, &record.page, &record.context})
            csv += Field(*text) + ',';
        csv += Field(record.undecided);
        csv += rowEnd;
    }
    return csv;
}

} // namespace ondrilo
