#include "targets/CKeySet.h"

namespace ondrilo {

void CKeySet::AddKey(TextView name, int code, bool isReserved, bool isCombinable) {
    if (keyCodes.contains(name) || keyNames.contains(code))
        return;
    AddKey(name, code);
    if (HasProperties(code)) {
        reserved[static_cast<std::size_t>(code)] = isReserved;
        combinable[static_cast<std::size_t>(code)] = isCombinable;
    }
}

void CKeySet::AddKey(TextView name, int code) {
    if (keyCodes.contains(name) || keyNames.contains(code))
        return;
    keyCodes.emplace(name, code);
    keyNames.emplace(code, name);
}

void CKeySet::AddKey(TextView name, int code, bool isReserved) {
    AddKey(name, code, isReserved, true);
}

void CKeySet::Clear() {
    keyCodes.clear();
    keyNames.clear();
    reserved.fill(false);
    combinable.fill(false);
}

std::optional<int> CKeySet::GetCode(TextView name) const {
    const auto entry = keyCodes.find(name);
    return entry == keyCodes.end() ? std::nullopt : std::optional(entry->second);
}

std::optional<Text> CKeySet::GetName(int code) const {
    const auto entry = keyNames.find(code);
    return entry == keyNames.end() ? std::nullopt : std::optional(entry->second);
}

bool CKeySet::IsReserved(int code) const {
    return HasProperties(code) && reserved[static_cast<std::size_t>(code)];
}

void CKeySet::SetReserved(int code, bool value) {
    if (HasProperties(code))
        reserved[static_cast<std::size_t>(code)] = value;
}

bool CKeySet::IsReservedName(TextView name) const {
    const auto code = GetCode(name);
    return code && IsReserved(*code);
}

bool CKeySet::IsCombinableName(TextView name) const {
    const auto code = GetCode(name);
    return code && HasProperties(*code) && combinable[static_cast<std::size_t>(*code)];
}

std::vector<Text> CKeySet::GetFreeKeyNames() const {
    std::vector<Text> names;
    for (const auto& [code, name] : keyNames)
        if (!IsReserved(code))
            names.push_back(name);
    return names;
}

std::vector<Text> CKeySet::GetAllKeyNames() const {
    std::vector<Text> names;
    for (const auto& [code, name] : keyNames)
        names.push_back(name);
    return names;
}

} // namespace ondrilo
