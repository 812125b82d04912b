#include "speech/SpeechExceptions.h"

#include "text/LineReader.h"

#include <algorithm>

namespace ondrilo {

void SpeechExceptions::Parse(TextView bytes) {
    replacements.clear();
    LineReader lines(bytes, kLineLimit);
    while (const auto line = lines.Next()) {
        if (std::ranges::count(*line, kSeparator) != 1)
            continue;
        const auto colon = line->find(kSeparator);
        const auto text = line->substr(0, colon), replacement = line->substr(colon + 1);
        if (!text.empty() && !replacement.empty())
            Set(text, replacement);
    }
}

Text SpeechExceptions::Format() const {
    Text bytes;
    for (const auto& [text, replacement] : All())
        bytes.append(text).append(1, kSeparator).append(replacement).append("\n");
    return bytes;
}

std::optional<TextView> SpeechExceptions::Find(TextView text) const {
    const auto found = replacements.find(text);
    return found == replacements.end() ? std::nullopt : std::optional<TextView>(found->second);
}

} // namespace ondrilo
