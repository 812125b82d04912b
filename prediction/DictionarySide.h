#pragma once

#include "platform/FileStore.h"
#include "prediction/GeneralStore.h"
#include "prediction/Vocabulary.h"

#include <filesystem>
#include <vector>

namespace ondrilo {

/// Sums of the counters of all records.
struct VocabularyTotals {
    int general = 0;
    int generalPairs = 0;
    int user = 0;
    int userPairs = 0;
};

/// In what words and sentences differ.
struct SideRules {
    EntryFormat format;
    /// An entry of the user's is shorter than this, in characters.
    std::size_t lengthLimit;
    /// What to tell the person when a file cannot be opened.
    TextView noGeneral, noGeneralPairs, noUser, noUserPairs;
};

/// One side of a dictionary, words or sentences: the vocabulary with its four files, totals and changed
/// flags. In the files the blanks of an entry are "|"; from a file of nonsense is taken what parses.
class DictionarySide {
  public:
    /// Both outlive this.
    DictionarySide(const SideRules& rules, GeneralStore& store) : rules(rules), store(store) {}

    /// Each returns the message to show, empty if there is none.
    Text LoadGeneral(const std::filesystem::path& path);
    Text LoadGeneralPairs(const std::filesystem::path& path);
    Text LoadUser(const std::filesystem::path& path);
    Text LoadUserPairs(const std::filesystem::path& path);
    /// The four above from their remembered paths.
    std::vector<Text> Reload();
    SaveResult SaveUser();
    SaveResult SaveUserPairs();
    /// Forgets entries and files. Totals of pairs stay until the next load.
    void Clear();

    void AddUser(TextView text, int count);
    void AddUserPair(TextView first, TextView second, int count);
    bool SetUserFrequency(TextView text, int value);
    void RemoveRarest();

    [[nodiscard]] Vocabulary::Found Find(TextView text) const { return entries.Find(StoredForm(text)); }
    /// `text` in the form in which this side stores it.
    [[nodiscard]] Text StoredForm(TextView text) const { return rules.format.StoredForm(text); }
    [[nodiscard]] const Vocabulary& Entries() const { return entries; }
    [[nodiscard]] const VocabularyTotals& Totals() const { return totals; }
    [[nodiscard]] bool UserChanged() const { return userChanged; }
    [[nodiscard]] bool UserPairsChanged() const { return userPairsChanged; }

  private:
    /// The told reading of a pair file into a vocabulary that already has more than its general entries.
    Text AppendGeneralPairs();
    [[nodiscard]] Text FormOnFile(EntryId entry) const;
    void ChangeUserFrequency(EntryId entry, int value);

    const SideRules& rules;
    GeneralStore& store;
    Vocabulary entries;
    VocabularyTotals totals;
    bool userChanged = false;
    bool userPairsChanged = false;
    std::filesystem::path generalPath, generalPairsPath, userPath, userPairsPath;
};

} // namespace ondrilo
