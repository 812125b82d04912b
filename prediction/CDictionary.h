#pragma once

#include "platform/DataFolder.h"
#include "platform/FileStore.h"
#include "prediction/CAbbreviationExpansionSet.h"
#include "prediction/CWordClassPairSet.h"
#include "prediction/CWordClassSet.h"
#include "prediction/DictionaryEntry.h"
#include "prediction/DictionarySide.h"

#include <filesystem>
#include <memory>
#include <span>
#include <vector>

namespace ondrilo {

/// The vocabulary of one profile: words and sentences that can be predicted, what followed what, the word
/// classes and the abbreviations. Each entry has a general counter, read from files shared by all profiles
/// and never written, and a user counter, which grows as the person writes.
///
/// Words are stored as given: callers fold them to lower case. Sentences are normalised here.
class CDictionary {
  public:
    /// Dictionaries with the same store share what they read from the same general files.
    explicit CDictionary(std::shared_ptr<GeneralStore> general = std::make_shared<GeneralStore>());

    /// Loads all of a profile's files in the order that the links between them need; with `adapt`, room is
    /// made for new entries in a full dictionary. Returns the messages to show, in order.
    std::vector<Text> LoadProfileDictionaries(const DataFolder& folder, TextView name, bool adapt);

    /// Each reads one file and remembers its path; returns the message to show, empty if there is none.
    Text LoadGeneralWords(const std::filesystem::path& path) { return words.LoadGeneral(path); }
    Text LoadGeneralWordPairs(const std::filesystem::path& path) { return words.LoadGeneralPairs(path); }
    Text LoadUserWords(const std::filesystem::path& path) { return words.LoadUser(path); }
    Text LoadUserWordPairs(const std::filesystem::path& path) { return words.LoadUserPairs(path); }
    Text LoadGeneralSentences(const std::filesystem::path& path) { return sentences.LoadGeneral(path); }
    Text LoadGeneralSentencePairs(const std::filesystem::path& path) {
        return sentences.LoadGeneralPairs(path);
    }
    Text LoadUserSentences(const std::filesystem::path& path) { return sentences.LoadUser(path); }
    Text LoadUserSentencePairs(const std::filesystem::path& path) { return sentences.LoadUserPairs(path); }

    /// The four word files, or the four sentence files, from their remembered paths: all that was not saved
    /// is forgotten. Returns the messages to show.
    std::vector<Text> ReloadWords() { return words.Reload(); }
    std::vector<Text> ReloadSentences() { return sentences.Reload(); }

    /// Each writes its file if something changed (pairs also when their entries changed). On failure the file
    /// and the changed flag stay as they were.
    SaveResult SaveUserWordPairs() { return words.SaveUserPairs(); }
    SaveResult SaveUserWords() { return words.SaveUser(); }
    SaveResult SaveUserSentencePairs() { return sentences.SaveUserPairs(); }
    SaveResult SaveUserSentences() { return sentences.SaveUser(); }
    /// The four above in this order; all are tried, the first problem is returned.
    SaveResult SaveUserFiles();

    /// Forgets words and sentences; classes, class pairs and abbreviations stay until the next load.
    void Clear();

    void AddUserWord(TextView text, int count = 1) { words.AddUser(text, count); }
    void AddUserWordPair(TextView first, TextView second, int count = 1) {
        words.AddUserPair(first, second, count);
    }
    void AddUserSentence(TextView text, int count = 1) { sentences.AddUser(text, count); }
    void AddUserSentencePair(TextView first, TextView second, int count = 1) {
        sentences.AddUserPair(first, second, count);
    }
    /// False if there is no such entry.
    bool SetUserWordFrequency(TextView text, int value) { return words.SetUserFrequency(text, value); }
    bool SetUserSentenceFrequency(TextView text, int value) {
        return sentences.SetUserFrequency(text, value);
    }
    bool RemoveUserWord(TextView text) { return SetUserWordFrequency(text, 0); }
    bool RemoveUserSentence(TextView text) { return SetUserSentenceFrequency(text, 0); }
    /// Sets every entry with the smallest user counter above or below 0 to 0.
    void RemoveRarestUserWords() { words.RemoveRarest(); }
    void RemoveRarestUserSentences() { sentences.RemoveRarest(); }

    /// Learn from a text file; one that cannot be opened is skipped. Counts add up at each pass.
    void LearnWordsFromFile(const std::filesystem::path& path);
    void LearnWordPairsFromFile(const std::filesystem::path& path);
    void LearnSentencesFromFile(const std::filesystem::path& path);
    void LearnSentencePairsFromFile(const std::filesystem::path& path);

    /// The entry's index in ascending byte order, or the index at which it would be inserted.
    struct Position {
        DictionaryEntry found;
        int position = 0;
    };
    [[nodiscard]] Position FindWord(TextView text) const { return Find(words, text); }
    [[nodiscard]] Position FindSentence(TextView text) const { return Find(sentences, text); }
    [[nodiscard]] CDictionaryWord GetWord(TextView text) const { return FindWord(text).found; }
    [[nodiscard]] CDictionarySentence GetSentence(TextView text) const { return FindSentence(text).found; }

    /// The entries that begin with `prefix`, without one that equals it, as many as `out` holds. For
    /// sentences it is the entry's position, not the number taken, that must stay below the size of `out`.
    std::size_t WordsWithPrefix(TextView prefix, std::span<CDictionaryWord> out) const;
    std::size_t SentencesWithPrefix(TextView prefix, std::span<CDictionarySentence> out) const;
    /// The successors in ascending order with their counters, at most 10,000; `out` is filled anew.
    std::size_t NextWordSet(TextView word, CDictionaryNextWordSet& out) const {
        return NextSet(words, word, out);
    }
    std::size_t NextSentenceSet(TextView sentence, CDictionaryNextSentenceSet& out) const {
        return NextSet(sentences, sentence, out);
    }

    /// Iteration over all entries: begin with FirstWord(), then each NextWord gives the entry at `position`
    /// and moves on; -1 is the end.
    [[nodiscard]] int FirstWord() const { return WordCount() > 0 ? 0 : -1; }
    CDictionaryWord NextWord(int& position) const { return Next(words, position); }
    [[nodiscard]] int FirstSentence() const { return SentenceCount() > 0 ? 0 : -1; }
    CDictionarySentence NextSentence(int& position) const { return Next(sentences, position); }

    [[nodiscard]] int WordCount() const { return static_cast<int>(words.Entries().Count()); }
    [[nodiscard]] int SentenceCount() const { return static_cast<int>(sentences.Entries().Count()); }
    /// Longer ones are not taken in from the person, in characters.
    static constexpr std::size_t kLongestUserWord = 499, kLongestUserSentence = 999;
    [[nodiscard]] static int WordCapacity() { return static_cast<int>(Vocabulary::kCapacity); }
    [[nodiscard]] const VocabularyTotals& WordTotals() const { return words.Totals(); }
    [[nodiscard]] const VocabularyTotals& SentenceTotals() const { return sentences.Totals(); }
    [[nodiscard]] bool UserWordsChanged() const { return words.UserChanged(); }
    [[nodiscard]] bool UserWordPairsChanged() const { return words.UserPairsChanged(); }
    [[nodiscard]] bool UserSentencesChanged() const { return sentences.UserChanged(); }
    [[nodiscard]] bool UserSentencePairsChanged() const { return sentences.UserPairsChanged(); }

    /// The records themselves, for the predictors.
    [[nodiscard]] const Vocabulary& Words() const { return words.Entries(); }
    [[nodiscard]] const Vocabulary& Sentences() const { return sentences.Entries(); }

    CWordClassSet wordClasses;
    CWordClassPairSet wordClassPairs;
    CAbbreviationExpansionSet abbreviations;

  private:
    void LoadClasses(const DataFolder& folder);
    static Position Find(const DictionarySide& side, TextView text);
    static std::size_t NextSet(const DictionarySide& side, TextView text,
                               std::vector<DictionaryNextEntry>& out);
    static DictionaryEntry Next(const DictionarySide& side, int& position);

    std::shared_ptr<GeneralStore> general;
    DictionarySide words;
    DictionarySide sentences;
};

} // namespace ondrilo
