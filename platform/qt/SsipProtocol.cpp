#include "platform/qt/SsipProtocol.h"

#include <QString>

#include <algorithm>

namespace ondrilo {
namespace {

/// Letters lose marks that Windows-1252 has not ("Māori" is "Maori"); nothing if that does not do.
std::optional<Text> Encoded(std::string_view utf8) {
    const auto name = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    Text encoded;
    for (const QChar letter : name) {
        auto byte = Encode(letter.unicode());
        if (!byte)
            byte = Encode(QString(letter).normalized(QString::NormalizationForm_KD).front().unicode());
        if (!byte)
            return std::nullopt;
        encoded += static_cast<char>(*byte);
    }
    return encoded;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

void SsipReader::Append(std::string_view bytes) {
    buffer.erase(0, taken);
    taken = 0;
    buffer += bytes;
}

std::optional<SsipLine> SsipReader::Next() {
    constexpr std::size_t kHead = 4;            // "249-"
    constexpr std::size_t kLongest = 64 * 1024; // bytes; no service says so much in a line
    const auto end = buffer.find('\n', taken);
    if (end == std::string::npos)
        return buffer.size() - taken > kLongest ? std::optional(SsipLine{}) : std::nullopt;
    auto line = std::string_view(buffer).substr(taken, end - taken);
    taken = end + 1;
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (line.size() < kHead || !std::all_of(line.begin(), line.begin() + kHead - 1, IsDigit))
        return SsipLine{};
    const int code = (line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0');
    return SsipLine{code, line[3] != '-', line.substr(kHead)};
}

std::string SsipText(TextView text) {
    std::string data = ToUtf8(text);
    // One line: with several the service loses its way when one of them begins with a dot.
    std::replace_if(
        data.begin(), data.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    if (data.starts_with('.'))
        data.insert(data.begin(), '.');
    return data.append("\r\n").append(kSsipNoText);
}

void SpeechVoices::Add(std::string_view module, std::string_view row) {
    const auto name = row.substr(0, row.find('\t'));
    if (name.empty() || name.find('+') != std::string_view::npos)
        return;
    const auto description = Encoded(std::string(name).append(" - ").append(module));
    if (description && !Find(*description))
        voices.push_back({*description, std::string(module), std::string(name)});
}

const SpeechVoice* SpeechVoices::Find(TextView description) const {
    const auto found = std::find_if(voices.begin(), voices.end(),
                                    [&](const auto& voice) { return voice.description == description; });
    return found == voices.end() ? nullptr : &*found;
}

std::vector<Text> SpeechVoices::Descriptions() const {
    std::vector<Text> descriptions;
    for (const auto& voice : voices)
        descriptions.push_back(voice.description);
    return descriptions;
}

} // namespace ondrilo
