#include "simulators/CWordPredictionSimulator.h"

#include "profiles/CUserProfileProperties.h"
#include "targets/CKeyboardSimulator.h"
#include "text/CaseFolding.h"

#include <algorithm>
#include <stdexcept>

namespace ondrilo {
namespace {

/// Most bytes that are read of a line at once.
constexpr std::size_t kLineLimit = 499;

} // namespace

bool CWordPredictionSimulator::Start(CDictionary& newDictionary, const CUserProfileProperties& newProfile,
                                     const std::filesystem::path& newPath) {
    dictionary = &newDictionary;
    profile = &newProfile;
    path = newPath;
    problem.clear();
    FileBytes file = ReadFile(path);
    if (!file.CouldOpen())
        return false;
    if (profile->IsOn(option::ADAPTACAO_UTILIZADOR))
        problem = dictionary->SaveUserFiles().problem;
    if (!problem.empty())
        return false;

    bytes = std::move(file.bytes);
    lines = LineReader(bytes, kLineLimit);
    tokens.clear();
    tokenIndex = 0;
    previousWord.clear();
    figures = {};
    capsLock = userCapsLock = false;
    return true;
}

int CWordPredictionSimulator::CountWords() const {
    const FileBytes file = ReadFile(path);
    LineReader all(file.bytes, kLineLimit);
    std::size_t count = 0;
    while (const auto line = all.Next())
        count += Split(*line).size();
    return static_cast<int>(count);
}

bool CWordPredictionSimulator::Step() {
    if (!FindNextWord())
        return false;
    const Text& word = tokens[tokenIndex];
    const char next = tokenIndex + 1 < tokens.size() ? tokens[tokenIndex + 1].front() : ' ';
    ++figures.words;
    figures.characters += static_cast<int>(word.size()) + 1;
    figures.keyPresses += CountKeys(capsLock, word, next);
    WriteWithPrediction(word, next);
    if (profile->IsOn(option::ADAPTACAO_UTILIZADOR))
        Learn(word);
    previousWord = word;
    ++tokenIndex;
    return true;
}

/// A word at a line's start has none before it.
bool CWordPredictionSimulator::FindNextWord() {
    while (tokenIndex == tokens.size()) {
        const auto line = lines.Next();
        if (!line)
            return false;
        tokens = Split(*line);
        tokenIndex = 0;
        previousWord.clear();
    }
    return true;
}

void CWordPredictionSimulator::WriteWithPrediction(const Text& word, char next) {
    const Text smallWord = MakeLower(word);
    const TextView letters = word;
    for (std::size_t written = 0; written < letters.size(); ++written) {
        if (written > 0) {
            ++figures.userCharacters;
            figures.userKeyPresses +=
                CountKeys(userCapsLock, letters.substr(written - 1, 1), letters[written]);
        }
        const auto place = PlaceAmongPredictions(smallWord, letters.substr(0, written));
        if (!place)
            continue;
        ++figures.successes;
        figures.positionSum += *place;
        figures.lettersSum += static_cast<int>(written);
        // One press chooses the word, which brings its separator.
        ++figures.userCharacters;
        ++figures.userKeyPresses;
        return;
    }
    figures.userCharacters += 2;
    figures.userKeyPresses += CountKeys(userCapsLock, letters.substr(letters.size() - 1), next) + 1;
}

std::optional<int> CWordPredictionSimulator::PlaceAmongPredictions(TextView smallWord, TextView prefix) {
    ++figures.predictions;
    try {
        predictor.Predict(*dictionary, *profile, previousWord, prefix);
    } catch (const std::invalid_argument&) {
        return std::nullopt; // more candidates than can be ranked: the person sees no list
    }
    const int most = std::max(0, profile->Get(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS));
    predictor.BestWords(static_cast<std::size_t>(most), scoreSet);
    const auto found = std::find_if(scoreSet.begin(), scoreSet.end(),
                                    [&](const DictionaryScore& entry) { return entry.text == smallWord; });
    if (found == scoreSet.end())
        return std::nullopt;
    return static_cast<int>(found - scoreSet.begin());
}

void CWordPredictionSimulator::Learn(const Text& word) {
    dictionary->AddUserWord(MakeLower(word));
    dictionary->AddUserWordPair(MakeLower(previousWord), MakeLower(word));
}

int CWordPredictionSimulator::CountKeys(bool& caps, TextView text, char next) {
    keyNames.clear();
    return CKeyboardSimulator::CountText(caps, text, next, keyNames);
}

std::vector<Text> CWordPredictionSimulator::End() {
    bytes.clear();
    lines = LineReader({}, 0);
    tokens.clear();
    tokenIndex = 0;
    if (!profile->IsOn(option::ADAPTACAO_UTILIZADOR))
        return {};
    auto messages = dictionary->ReloadWords();
    const auto more = dictionary->ReloadSentences();
    messages.insert(messages.end(), more.begin(), more.end());
    return messages;
}

} // namespace ondrilo
