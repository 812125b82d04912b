#include "tools/JsonWriter.h"

#include <array>
#include <cstdio>

namespace ondrilo {

void JsonWriter::Name(TextView name) {
    Separate();
    AddString(name);
    json += ": ";
    hasName = true;
}

void JsonWriter::Value(TextView text) {
    Separate();
    AddString(text);
    hasPrevious = true;
}

void JsonWriter::Value(bool truth) {
    Separate();
    json += truth ? "true" : "false";
    hasPrevious = true;
}

void JsonWriter::Separate() {
    if (hasName) {
        hasName = false;
        return;
    }
    if (hasPrevious)
        json += ',';
    if (openBrackets.ends_with('['))
        json += '\n';
    else if (hasPrevious)
        json += ' ';
}

void JsonWriter::Open(char bracket) {
    Separate();
    json += bracket;
    openBrackets += bracket;
    hasPrevious = false;
}

void JsonWriter::Close(char bracket) {
    json += bracket;
    openBrackets.pop_back();
    hasPrevious = true;
}

void JsonWriter::AddString(TextView text) {
    constexpr unsigned char firstPrintable = 0x20;
    json += '"';
    for (const char c : ToUtf8(text)) {
        if (static_cast<unsigned char>(c) < firstPrintable) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(c));
            json += escape.data();
            continue;
        }
        if (c == '"' || c == '\\')
            json += '\\';
        json += c;
    }
    json += '"';
}

} // namespace ondrilo
