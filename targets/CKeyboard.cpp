#include "targets/CKeyboard.h"

#include "text/CaseFolding.h"
#include "text/Splitter.h"

#include <algorithm>
#include <bit>

namespace ondrilo {
namespace {

// "Ì" has a small base, as on the keyboards that this table was made for: typing it gives "ì".
constexpr TextView kAccented = "ÀÁÂÃÈÉÊÌÍÎÒÓÔÕÙÚÛàáâãèéêìíîòóôõùúû"_w;
constexpr TextView kDeadKeys = "`´^~`´^`´^`´^~`´^`´^~`´^`´^`´^~`´^"_w;
constexpr TextView kBases = "AAAAEEEiIIOOOOUUUaaaaeeeiiioooouuu";
static_assert(kAccented.size() == kDeadKeys.size() && kAccented.size() == kBases.size());

using Combinations = std::vector<Tokens>;

/// The key names of each combination of a sequence.
Combinations SplitSequence(TextView sequence) {
    Combinations combinations;
    for (const Text& combination : Split(sequence, " {}", kAllTokens))
        combinations.push_back(Split(combination, "+", kAllTokens));
    return combinations;
}

} // namespace

void CKeyboard::Initialize() {
    keySet = StandardKeys();
}

void CKeyboard::TypeText(TextView text) {
    for (const char c : text)
        TypeChar(c);
}

void CKeyboard::TypeChar(char c) {
    if (c == '\r')
        return;
    if (c == '\n')
        Tap(vk::Enter);
    else
        output.TypeCharacter(c);
}

void CKeyboard::Backspace(int times) {
    for (int i = 0; i < times; ++i)
        Tap(vk::Backspace);
}

std::optional<int> CKeyboard::CodeOf(TextView name) const {
    name = Trim(name);
    if (const auto code = keySet.GetCode(name))
        return code;
    const auto key = name.empty() ? std::nullopt : output.KeyOf(name.front());
    return key ? std::optional(key->code) : std::nullopt;
}

void CKeyboard::Tap(int code) {
    output.KeyDown(code);
    output.KeyUp(code);
}

void CKeyboard::PressKey(TextView name) {
    if (const auto code = CodeOf(name))
        output.KeyDown(*code);
}

void CKeyboard::ReleaseKey(TextView name) {
    if (const auto code = CodeOf(name))
        output.KeyUp(*code);
}

void CKeyboard::TapKey(TextView name) {
    if (const auto code = keySet.GetCode(name))
        Tap(*code);
    else
        TypeText(name);
}

void CKeyboard::PlaySequence(TextView sequence) {
    for (const Tokens& names : SplitSequence(sequence)) {
        // Codes, not names: a layout that changes meanwhile must not leave a key down.
        std::vector<int> pressed;
        for (const Text& name : names)
            if (const auto code = CodeOf(name)) {
                output.KeyDown(*code);
                pressed.push_back(*code);
            }
        std::for_each(pressed.rbegin(), pressed.rend(), [this](int code) { output.KeyUp(code); });
    }
}

Text CKeyboard::SwapCase(TextView text) {
    Text swapped(text);
    for (char& c : swapped) {
        const char capital = MakeUpper(c);
        c = capital != c ? capital : MakeLower(c);
    }
    return swapped;
}

int CKeyboard::CountKeys(TextView text) const {
    if (keySet.GetCode(text))
        return 1;
    int count = 0;
    for (const char c : text)
        count += CountChar(c);
    return count;
}

int CKeyboard::CountChar(char c) const {
    if (c == '\n' || c == '\r')
        return c == '\n' ? 1 : 0;
    int count = 0;
    for (const char stroke : TypedCharacters({&c, 1}))
        if (const auto key = output.KeyOf(stroke))
            count += 1 + std::popcount(key->shift);
    return count;
}

int CKeyboard::CountSequenceKeys(TextView sequence) {
    std::size_t count = 0;
    for (const Tokens& names : SplitSequence(sequence))
        count += names.size();
    return static_cast<int>(count);
}

bool CKeyboard::IsPrintingKey(TextView name) const {
    const auto code = keySet.GetCode(name);
    if (!code)
        return true;
    auto isIn = [code](int first, int last) {
        return *code >= first && *code <= last;
    };
    return *code == vk::Space || isIn('0', '9') || isIn('A', 'Z') || isIn(vk::Num0, vk::NumDivide);
}

Text TypedCharacters(TextView text) {
    Text strokes;
    for (const char c : text)
        if (const auto accented = kAccented.find(c); accented != TextView::npos)
            (strokes += kDeadKeys[accented]) += kBases[accented];
        else
            strokes += c;
    return strokes;
}

} // namespace ondrilo
