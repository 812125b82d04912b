#include "profiles/CAccessOptions.h"

#include "profiles/OptionLines.h"

#include <algorithm>

namespace ondrilo {

void CAccessOptions::Set(AccessOption option, int value) {
    values[static_cast<std::size_t>(option)] = value;
    changed = true;
}

int CAccessOptions::DwellTime() const {
    constexpr auto row = kAccessOptions[static_cast<std::size_t>(access_option::TEMPO_PERMANENCIA)];
    const int time = std::clamp(Get(access_option::TEMPO_PERMANENCIA), row.least, row.most);
    return time - time % row.step;
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
        for (std::size_t i = 0; i < values.size(); ++i)
            if (key == kAccessOptions[i].key)
                values[i] = IntegerOfLine(line);
    });
}

Text CAccessOptions::Format() const {
    Text bytes;
    for (std::size_t i = 0; i < values.size(); ++i)
        AppendOption(bytes, kAccessOptions[i].key, values[i]);
    return bytes;
}

} // namespace ondrilo
