#pragma once

#include "platform/FileStore.h"
#include "prediction/CDictionary.h"
#include "prediction/LearningJournal.h"
#include "profiles/OptionDialogs.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace ondrilo {

/// One person: options and vocabulary. Lives in its CUserProfileSet and is never copied.
class CUserProfile {
  public:
    /// `general`: what profiles read once for all of them.
    explicit CUserProfile(std::shared_ptr<GeneralStore> general) : dictionary(std::move(general)) {}
    CUserProfile(const CUserProfile&) = delete;
    CUserProfile& operator=(const CUserProfile&) = delete;

    CUserProfileProperties properties;
    CAccessOptions access;
    CDictionary dictionary;

    /// Sets an option and marks the profile as changed.
    template <typename Option, typename Value>
    void Set(Option option, const Value& value) {
        properties.Set(option, value);
        changed = true;
    }
    [[nodiscard]] bool IsChanged() const { return changed; }

    /// Lets the person edit the options; true on OK, which marks the profile as changed.
    bool EditOptions(OptionDialogs& dialogs, const ProfileOptionSources& sources);

    /// Takes over all options of another profile; name and files stay its own.
    void CopyOptionsOf(const CUserProfile& other);

    /// Reads the options, and the access options in the ".acs" beside them. Marks the profile as changed,
    /// even if there is no such file: a profile that was read is written at every save, which also brings
    /// its file up to the current list of keys.
    void Load(const std::filesystem::path& path);
    /// Writes the options if the profile is marked as changed; the mark stays. Access options are written if
    /// they differ from their file. The first problem, if any.
    SaveResult Save();

    /// True if the dictionary stays in memory for the whole run.
    [[nodiscard]] bool KeepsDictionary() const { return properties.IsOn(option::MANTER_DICIONARIO_MEMORIA); }
    /// Reads the vocabulary, and what was learned before a crash; what comes back are the messages to show,
    /// in order.
    [[nodiscard]] std::vector<Text> LoadDictionary();
    /// Saves the vocabulary and frees it; the first problem, if any.
    SaveResult ReleaseDictionary();

    /// Learns what the person wrote so that a crash does not cost it; a problem is one of the journal's.
    SaveResult Learn(std::span<const Lesson> lessons);
    /// Waits until the disk has all that was learned.
    SaveResult FlushLearned() { return journal.Flush(); }

  private:
    LearningJournal journal;
    bool changed = false;
};

} // namespace ondrilo
