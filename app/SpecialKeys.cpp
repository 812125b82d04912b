#include "app/SpecialKeys.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr int kNoKeyFromHere = 256; // key codes are bytes

} // namespace

SpecialKeys::SpecialKeys(const CUserProfileSet& profiles, const CKeySet& keySet, const Targets& targets)
    : profiles(profiles), keySet(keySet), targets(targets) {
}

void SpecialKeys::MapSpecialKeys() {
    Unblock();
    Map(switch1Key, option::TECLA_MANIPULO1);
    Map(switch2Key, option::TECLA_MANIPULO2);
    firstHotKey = std::min(profiles.Active().properties.Get(option::TECLAS_COMPLETAR), kNoKeyFromHere);
    lastHotKey = firstHotKey + 9;
    if (targets.Current() && firstHotKey != 0)
        targets.Current()->BlockKeys(firstHotKey, lastHotKey);
    Map(expansionKey, option::TECLA_EXPANSAO_ABREVIATURAS);
    Map(speakWordKey, option::TECLA_SINTESE_PALAVRA);
    Map(speakSentenceKey, option::TECLA_SINTESE_FRASE);
}

void SpecialKeys::Unblock() {
    if (!targets.Current())
        return;
    for (const int code : {switch1Key, switch2Key, expansionKey, speakWordKey, speakSentenceKey})
        if (code != 0)
            targets.Current()->UnblockKeys(code, code);
    if (firstHotKey != 0)
        targets.Current()->UnblockKeys(firstHotKey, lastHotKey);
}

void SpecialKeys::Map(int& code, TextOption name) {
    code = keySet.GetCode(profiles.Active().properties.Get(name)).value_or(0);
    if (targets.Current() && code != 0)
        targets.Current()->BlockKeys(code, code);
}

std::optional<int> SpecialKeys::HotKeyIndex(int code) const {
    if (firstHotKey == 0 || code < firstHotKey || code > lastHotKey)
        return std::nullopt;
    return code - firstHotKey;
}

Text SpecialKeys::HotKeyName(int index) const {
    return keySet.GetName(firstHotKey + index).value_or("");
}

} // namespace ondrilo
