#include "tests/simulators/IdealPerson.h"

#include <algorithm>
#include <numeric>

namespace ondrilo {
namespace {

constexpr TextView kCapitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZÁÉÓÂÊÃ"_w;
constexpr TextView kSmall = "abcdefghijklmnopqrstuvwxyzáéóâêã"_w;

char Small(char c) {
    const auto capital = kCapitals.find(c);
    return capital == TextView::npos ? c : kSmall[capital];
}

Text Small(Text text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return Small(c); });
    return text;
}

/// Accent and letter are a press each; circumflex and grave are on a Shift, like a capital.
int KeysOf(TextView text) {
    constexpr TextView acuteOrTilde = "áéóã"_w;
    constexpr TextView circumflexOrGrave = "âêà"_w;
    int keys = 0;
    for (const char c : text) {
        keys += Small(c) == c ? 1 : 2;
        keys += acuteOrTilde.find(Small(c)) != TextView::npos ? 1 : 0;
        keys += circumflexOrGrave.find(Small(c)) != TextView::npos ? 2 : 0;
    }
    return keys;
}

std::vector<Text> Parts(TextView text, TextView between) {
    std::vector<Text> parts(1);
    for (const char c : text)
        if (between.find(c) == TextView::npos)
            parts.back() += c;
        else
            parts.emplace_back();
    std::erase(parts, Text());
    return parts;
}

template <typename Map>
IdealPerson::Counters TotalOf(const Map& map) {
    return std::accumulate(map.begin(), map.end(), IdealPerson::Counters(), [](auto sum, const auto& entry) {
        return IdealPerson::Counters{sum.general + entry.second.general, sum.user + entry.second.user};
    });
}

double Share(int part, int whole) {
    return whole == 0 ? 0 : static_cast<double>(part) / whole;
}

double Over(double share, double ofWhat) {
    return ofWhat == 0 ? 0 : share / ofWhat;
}

} // namespace

WordSimulationFigures IdealPerson::Write(TextView text) {
    WordSimulationFigures figures;
    for (const auto& line : Parts(text, "\n")) {
        Text previous;
        for (const auto& word : Parts(line, " ,.?!")) {
            WriteWord(word, Small(previous), figures);
            if (learns)
                ++words[Small(word)].user;
            if (learns && !previous.empty())
                ++pairs[{Small(previous), Small(word)}].user;
            previous = word;
        }
    }
    return figures;
}

void IdealPerson::WriteWord(const Text& word, const Text& previous, WordSimulationFigures& f) {
    const int length = static_cast<int>(word.size());
    ++f.words;
    f.characters += length + 1;
    f.keyPresses += KeysOf(word);
    for (int written = 0; written < length; ++written) {
        const TextView prefix = TextView(word).substr(0, static_cast<std::size_t>(written));
        const auto list = List(previous, Small(Text(prefix)));
        const auto place = std::find(list.begin(), list.end(), Small(word));
        ++f.predictions;
        if (place == list.end())
            continue;
        ++f.successes;
        f.positionSum += static_cast<int>(place - list.begin());
        f.lettersSum += written;
        f.userCharacters += written + 1;
        f.userKeyPresses += KeysOf(prefix) + 1;
        return;
    }
    f.userCharacters += length + 1;
    f.userKeyPresses += KeysOf(word) + 1;
}

std::vector<Text> IdealPerson::List(const Text& previous, TextView prefix) const {
    std::vector<std::pair<double, Text>> best;
    for (const auto& entry : words) {
        const Text& word = entry.first;
        const bool continues = prefix.empty()
                                   ? pairs.count({previous, word}) > 0
                                   : word != prefix && TextView(word).substr(0, prefix.size()) == prefix;
        if (!continues || listed == 0)
            continue;
        // Of equal ones the later goes first, until the list is full; then only better ones come in.
        const double score = Score(word, previous);
        if (best.size() == listed && score <= best.back().first)
            continue;
        if (best.size() == listed)
            best.pop_back();
        const auto worse =
            std::find_if(best.begin(), best.end(), [&](const auto& other) { return other.first <= score; });
        best.emplace(worse, score, word);
    }
    std::vector<Text> list;
    for (const auto& entry : best)
        list.push_back(entry.second);
    return list;
}

double IdealPerson::Score(const Text& word, const Text& previous) const {
    const Counters all = TotalOf(words);
    const Counters& own = words.at(word);
    double score =
        weights.userWord * Share(own.user, all.user) + weights.word * Share(own.general, all.general);
    const auto pair = pairs.find({previous, word});
    if (pair == pairs.end() || words.count(previous) == 0)
        return score;
    const Counters allPairs = TotalOf(pairs);
    const Counters& before = words.at(previous);
    const double user = Over(Share(pair->second.user, allPairs.user), Share(before.user, all.user));
    const double general =
        Over(Share(pair->second.general, allPairs.general), Share(before.general, all.general));
    score += weights.userPair * user + weights.pair * general;
    return score;
}

} // namespace ondrilo
