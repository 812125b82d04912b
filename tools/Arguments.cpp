#include "tools/Arguments.h"

#include <algorithm>
#include <charconv>

namespace ondrilo {

Arguments::Arguments(std::vector<std::string> given, std::span<const ToolOption> known)
    : words(std::move(given)) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (!word.starts_with("--")) {
            operands.emplace_back(word);
            continue;
        }
        const auto name = word.substr(0, word.find('='));
        const auto option = std::ranges::find(known, name, &ToolOption::name);
        if (option == known.end())
            throw UsageError("unknown option " + std::string(name));
        if (option->value.empty()) {
            if (name != word)
                throw UsageError(std::string(name) + " takes no value");
            values[std::string(name)];
        } else if (name != word) {
            values[std::string(name)] = word.substr(name.size() + 1);
        } else if (i + 1 < words.size()) {
            values[std::string(name)] = words[++i];
        } else {
            throw UsageError(std::string(name) + " needs a value");
        }
    }
    const auto encoding = Value("--encoding").value_or("utf-8");
    if (encoding != "utf-8" && encoding != "windows-1252")
        throw UsageError("--encoding is utf-8 or windows-1252");
    rawBytes = encoding == "windows-1252";
}

std::optional<std::string> Arguments::Value(std::string_view option) const {
    const auto found = values.find(option);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

std::string Arguments::Required(std::string_view option) const {
    if (auto value = Value(option))
        return *value;
    throw UsageError(std::string(option) + " is missing");
}

int Arguments::Number(std::string_view option, int standard) const {
    const auto value = Value(option);
    if (!value)
        return standard;
    int number = 0;
    const auto* end = value->data() + value->size();
    const auto [stop, error] = std::from_chars(value->data(), end, number);
    if (error != std::errc{} || stop != end || number < 0)
        throw UsageError(std::string(option) + " needs a number from 0");
    return number;
}

Text Arguments::FromTerminal(std::string_view bytes) const {
    return rawBytes ? Text(bytes) : FromUtf8(bytes);
}

std::string Arguments::ToTerminal(TextView text) const {
    return rawBytes ? Text(text) : ToUtf8(text);
}

} // namespace ondrilo
