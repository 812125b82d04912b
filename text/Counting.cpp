#include "text/Counting.h"

#include "text/Classes.h"

#include <array>

namespace ondrilo {
namespace {

constexpr TextView kAccentedCapitals = "ÀÁÂÃÇÈÉÊÌÍÎÒÓÔÕÙÚÛ"_w;
constexpr TextView kAccentedSmall = "àáâãçèéêìíîòóôõùúû"_w;

using KeyCosts = std::array<unsigned char, 256>;

constexpr KeyCosts MakeKeyCosts() {
    KeyCosts costs{};
    auto set = [&costs](TextView characters, unsigned char cost) {
        for (const char c : characters)
            costs[static_cast<unsigned char>(c)] = cost;
    };
    set("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789\n '+,-.\\«ºÇç"_w, 1);
    set("€£§ª´»!\"#$%&()*/:;=?@[]_{|}~ÁÃÉÍÓÕÚáãéíóõú"_w, 2);
    set("^`ÀÂÈÊÌÎÒÔÙÛàâèêìîòôùû"_w, 3);
    return costs;
}

/// Presses of one character on a Portuguese Qwerty keyboard without capitals: a dead key and its letter are
/// two, with Shift for the dead key three; 0 where there is no key.
constexpr KeyCosts kKeyCosts = MakeKeyCosts();

int KeyCost(char c) {
    return kKeyCosts[static_cast<unsigned char>(c)];
}

/// True if the first letter of `text`, whatever stands before it, is a capital.
bool GoesOnInCapitals(TextView text) {
    const auto letter = std::find_if(text.begin(), text.end(), [](char c) { return IsLetter(c); });
    return letter != text.end() && IsUpper(*letter);
}

/// The presses of Caps Lock and Shift in `text`: Caps Lock where a capital is followed by another, and again
/// at the first small letter; Shift for a capital on its own.
int CountCapitalKeys(TextView text) {
    int count = 0;
    bool capsLock = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool upper = IsUpper(text[i]);
        if (capsLock && IsLetter(text[i]) && !upper) {
            ++count;
            capsLock = false;
        } else if (!capsLock && upper) {
            ++count;
            capsLock = GoesOnInCapitals(text.substr(i + 1));
        }
    }
    return count;
}

} // namespace

int CountCharacters(TextView text) {
    return static_cast<int>(text.size()) - static_cast<int>(std::count(text.begin(), text.end(), '\r'));
}

int CountWords(TextView text) {
    int count = 0;
    bool inside = false;
    for (const char c : text) {
        const bool letter = !IsSeparator(c);
        count += letter && !inside ? 1 : 0;
        inside = letter;
    }
    return count;
}

int CountSentences(TextView text) {
    int count = 0;
    char previous = ' ';
    for (const char c : text) {
        count += IsTerminator(c) && !IsTerminator(previous) ? 1 : 0;
        previous = c;
    }
    return count;
}

int CountSymbols(TextView text) {
    const Tokens tokens = SplitTokens(text, kAllTokens);
    return static_cast<int>(std::count_if(tokens.begin(), tokens.end(), IsPictogramToken));
}

Text DropBrackets(TextView text) {
    Text kept(text);
    for (std::size_t i = 0; i < kept.size(); ++i)
        if (kept[i] == '[' || kept[i] == ']')
            kept.erase(i, 1);
    return kept;
}

int CountQwertyKeys(TextView text) {
    int count = CountCapitalKeys(text);
    for (const char c : text)
        count += KeyCost(c);
    return count;
}

int CountKeyPresses(TextView text) {
    int count = CountCapitalKeys(text);
    for (const char c : text)
        count += KeyCost(c) > 0 ? 1 : 0;
    return count;
}

bool IsUpper(char c) {
    return (c >= 'A' && c <= 'Z') || kAccentedCapitals.find(c) != TextView::npos;
}

bool IsLetter(char c) {
    return IsUpper(c) || (c >= 'a' && c <= 'z') || kAccentedSmall.find(c) != TextView::npos;
}

} // namespace ondrilo
