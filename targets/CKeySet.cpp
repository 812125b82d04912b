#include "targets/CKeySet.h"

#include "platform/Keyboard.h"
#include "text/CaseFolding.h"

namespace ondrilo {
namespace {

struct NamedKey {
    TextView name;
    int code;
    bool reserved;
};

constexpr NamedKey kNamedKeys[] = {
    {"BkSp", vk::Backspace, true},   {"Enter", vk::Enter, true},       {"Space", vk::Space, true},
    {"Tab", vk::Tab, false},         {"CapsLock", vk::CapsLock, true}, {"Esquerda", vk::Left, true},
    {"Direita", vk::Right, true},    {"Cima", vk::Up, true},           {"Baixo", vk::Down, true},
    {"Alt", vk::Alt, true},          {"Ctrl", vk::Control, true},      {"Shift", vk::Shift, true},
    {"Home", vk::Home, false},       {"End", vk::End, false},          {"Pgup", vk::PageUp, false},
    {"Pgdown", vk::PageDown, false}, {"Ins", vk::Insert, false},       {"Del", vk::Delete, false},
};

} // namespace

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

CKeySet StandardKeys() {
    CKeySet keySet;
    for (const auto& [name, code, reserved] : kNamedKeys)
        keySet.AddKey(name, code, reserved, false);
    for (int number = 1; number <= 12; ++number)
        keySet.AddKey("F" + std::to_string(number), vk::F1 + number - 1, number <= 10, false);
    for (int digit = 0; digit <= 9; ++digit)
        keySet.AddKey("Num" + std::to_string(digit), vk::Num0 + digit, false, false);
    for (char digit = '0'; digit <= '9'; ++digit)
        keySet.AddKey({&digit, 1}, digit, true);
    for (char letter = 'a'; letter <= 'z'; ++letter)
        keySet.AddKey({&letter, 1}, MakeUpper(letter), true);
    return keySet;
}

} // namespace ondrilo
