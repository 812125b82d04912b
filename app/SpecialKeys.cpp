#include "app/SpecialKeys.h"

#include <algorithm>
#include <utility>

namespace ondrilo {
namespace {

constexpr int kNoKeyFromHere = 256; // key codes are bytes

} // namespace

SpecialKeys::SpecialKeys(const CUserProfileSet& profiles, CKeySet& keySet, const Targets& targets)
    : profiles(profiles), keySet(keySet), targets(targets) {
}

void SpecialKeys::MapSpecialKeys() {
    Unblock();
    Map(switch1Key, option::TECLA_MANIPULO1);
    Map(switch2Key, option::TECLA_MANIPULO2);
    firstHotKey = std::min(profiles.Active().properties.Get(option::TECLAS_COMPLETAR), kNoKeyFromHere);
    lastHotKey = firstHotKey + 9;
    if (firstHotKey != 0)
        Block(firstHotKey, lastHotKey);
    Map(expansionKey, option::TECLA_EXPANSAO_ABREVIATURAS);
    Map(speakWordKey, option::TECLA_SINTESE_PALAVRA);
    Map(speakSentenceKey, option::TECLA_SINTESE_FRASE);
}

void SpecialKeys::Unblock() {
    for (const int code : std::exchange(marked, {}))
        keySet.SetReserved(code, false);
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
    if (code != 0)
        Block(code, code);
}

void SpecialKeys::Block(int first, int last) {
    if (targets.Current())
        targets.Current()->BlockKeys(first, last);
    for (int code = first; code <= last; ++code)
        if (!keySet.IsReserved(code)) {
            keySet.SetReserved(code, true);
            marked.push_back(code);
        }
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
