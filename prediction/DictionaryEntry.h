#pragma once

#include "prediction/Vocabulary.h"

#include <vector>

namespace ondrilo {

/// A word or sentence of a dictionary, by reference; null when absent. Valid until the dictionary is loaded
/// anew or cleared; its text until the next insertion.
class DictionaryEntry {
  public:
    DictionaryEntry() = default;
    DictionaryEntry(const Vocabulary& vocabulary, EntryId id) : vocabulary(&vocabulary), id(id) {}

    explicit operator bool() const { return id != kNoEntry; }
    [[nodiscard]] TextView Characters() const { return vocabulary->TextOf(id); }
    [[nodiscard]] int Frequency() const { return vocabulary->Frequency(id); }
    [[nodiscard]] int UserFrequency() const { return vocabulary->UserFrequency(id); }
    /// Empty for sentences and for words without a class.
    [[nodiscard]] const Text& WordClass() const { return vocabulary->ClassNames()[vocabulary->ClassOf(id)]; }
    /// Number of successors that came from the general file.
    [[nodiscard]] int NextCount() const { return vocabulary->GeneralSuccessorCount(id); }
    /// Greatest counter over the successors, 0 if there is none.
    [[nodiscard]] int MaxNextFrequency() const;
    [[nodiscard]] int MaxUserNextFrequency() const;

  private:
    [[nodiscard]] int GreatestOverSuccessors(int Successor::*counter) const;

    const Vocabulary* vocabulary = nullptr;
    EntryId id = kNoEntry;
};

/// A successor with its two counters; -1 in both tells that it is none.
struct DictionaryNextEntry {
    DictionaryEntry entry;
    int frequency = -1;
    int userFrequency = -1;
};

/// A prediction. The text is valid until the dictionary next takes in an entry or is loaded anew.
struct DictionaryScore {
    TextView text;
    double score = 0;
};

using CDictionaryWord = DictionaryEntry;
using CDictionarySentence = DictionaryEntry;
using CDictionaryNextWord = DictionaryNextEntry;
using CDictionaryNextSentence = DictionaryNextEntry;
using CDictionaryNextWordSet = std::vector<CDictionaryNextWord>;
using CDictionaryNextSentenceSet = std::vector<CDictionaryNextSentence>;
using CDictionaryWordScore = DictionaryScore;
using CDictionarySentenceScore = DictionaryScore;
using CDictionaryWordScoreSet = std::vector<CDictionaryWordScore>;
using CDictionarySentenceScoreSet = std::vector<CDictionarySentenceScore>;

} // namespace ondrilo
