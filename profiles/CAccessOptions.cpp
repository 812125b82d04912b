#include "profiles/CAccessOptions.h"

#include "profiles/OptionLines.h"

#include <algorithm>

namespace ondrilo {

void CAccessOptions::Set(AccessOption option, std::optional<int> value) {
    values.numbers[static_cast<std::size_t>(option)] = value;
    changed = true;
}

void CAccessOptions::SetCueVoice(TextView voice) {
    values.cueVoice = voice;
    changed = true;
}

std::optional<int> CAccessOptions::InRange(AccessOption option) const {
    const auto value = Get(option);
    return value ? std::optional(std::clamp(*value, RowOf(option).least, RowOf(option).most)) : std::nullopt;
}

int CAccessOptions::DwellTime() const {
    const int time = InRange(access_option::TEMPO_PERMANENCIA).value_or(0);
    return time - time % RowOf(access_option::TEMPO_PERMANENCIA).step;
}

SpeechManner CAccessOptions::Manner() const {
    return {InRange(access_option::VELOCIDADE_FALA), InRange(access_option::TOM_FALA),
            InRange(access_option::VOLUME_FALA)};
}

SpeechManner CAccessOptions::CueManner() const {
    auto manner = Manner();
    if (const auto volume = InRange(access_option::VOLUME_PISTAS))
        manner.volume = volume;
    return manner;
}

void CAccessOptions::Load(const std::filesystem::path& path) {
    file = path;
    Parse(ReadFile(path).bytes);
    changed = false;
}

void CAccessOptions::CopyFrom(const CAccessOptions& other) {
    changed = changed || values != other.values;
    values = other.values;
}

SaveResult CAccessOptions::Save() {
    if (!changed)
        return {};
    auto result = ReplaceFile(file, Format());
    changed = !result;
    return result;
}

void CAccessOptions::Parse(TextView bytes) {
    values = {};
    ForEachOptionLine(bytes, [this](TextView key, TextView line) {
        for (std::size_t i = 0; i < values.numbers.size(); ++i)
            if (key == kAccessOptions[i].key)
                values.numbers[i] = IntegerOfLine(line);
        if (key == kCueVoiceKey)
            values.cueVoice = MarksToBlanks(TextOfLine(line));
    });
}

Text CAccessOptions::Format() const {
    Text bytes;
    for (std::size_t i = 0; i < values.numbers.size(); ++i)
        if (const auto& number = values.numbers[i])
            AppendOption(bytes, kAccessOptions[i].key, *number);
    if (!values.cueVoice.empty())
        AppendOption(bytes, kCueVoiceKey, BlanksToMarks(values.cueVoice));
    return bytes;
}

} // namespace ondrilo
