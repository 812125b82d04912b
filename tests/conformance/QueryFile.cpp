#include "tests/conformance/QueryFile.h"

namespace ondrilo::conformance {
namespace {

constexpr TextView kHexDigits = "0123456789ABCDEF";

/// Unlike Split, keeps empty fields.
std::vector<TextView> SplitFields(TextView line) {
    std::vector<TextView> fields;
    for (auto tab = line.find('\t'); tab != TextView::npos; tab = line.find('\t')) {
        fields.push_back(line.substr(0, tab));
        line.remove_prefix(tab + 1);
    }
    fields.push_back(line);
    return fields;
}

} // namespace

Text Escape(TextView field) {
    Text escaped;
    for (const char c : field) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte <= 0x7E && c != '\\')
            escaped += c;
        else
            escaped.append("\\x").append({kHexDigits[byte >> 4], kHexDigits[byte & 0xF]});
    }
    return escaped;
}

Text Unescape(TextView field) {
    Text plain;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (!field.substr(i).starts_with("\\x") || i + 3 >= field.size()) {
            plain += field[i];
            continue;
        }
        plain += static_cast<char>(kHexDigits.find(field[i + 2]) << 4 | kHexDigits.find(field[i + 3]));
        i += 3;
    }
    return plain;
}

Query ParseQuery(TextView line) {
    const auto fields = SplitFields(line);
    Query query;
    for (std::size_t i = 1; i < fields.size() && fields[i] != "=>"; ++i)
        if (i == 1)
            query.operation = fields[i];
        else
            query.arguments.push_back(Unescape(fields[i]));
    return query;
}

Text FormatAnswer(const std::optional<Values>& values) {
    if (!values)
        return "!skip";
    Text answer = "=>";
    for (const Text& value : *values)
        answer.append("\t").append(Escape(value));
    return answer;
}

} // namespace ondrilo::conformance
