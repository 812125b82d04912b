#include "profiles/CAccessOptions.h"

#include "profiles/OptionLines.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kKeys[] = {"TEMPO_PERMANENCIA"};
constexpr int kLongestDwell = 10'000;
constexpr int kDwellStep = 100;

} // namespace

void CAccessOptions::Set(AccessOption option, int value) {
    values[static_cast<std::size_t>(option)] = value;
    changed = true;
}

int CAccessOptions::DwellTime() const {
    const int time = std::clamp(Get(access_option::TEMPO_PERMANENCIA), 0, kLongestDwell);
    return time - time % kDwellStep;
}

void CAccessOptions::Load(const std::filesystem::path& path) {
    file = path;
    Parse(ReadFile(path).bytes);
    changed = false;
}

void CAccessOptions::CopyFrom(const CAccessOptions& other) {
    values = other.values;
    changed = true;
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
            if (key == kKeys[i])
                values[i] = IntegerOfLine(line);
    });
}

Text CAccessOptions::Format() const {
    Text bytes;
    for (std::size_t i = 0; i < values.size(); ++i)
        AppendOption(bytes, kKeys[i], values[i]);
    return bytes;
}

} // namespace ondrilo
