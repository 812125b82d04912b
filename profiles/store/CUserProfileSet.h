#pragma once

#include "platform/DataFolder.h"
#include "platform/Dialogs.h"
#include "profiles/store/CUserProfile.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ondrilo {

inline constexpr TextView kGenericProfile = "generico";

/// All profiles, the generic one first, and the one that is active. The list is kept in the file "utils" of
/// the data folder, one name a line; names compare exactly, case included.
class CUserProfileSet {
  public:
    /// Told a sentence for the status line when something could not be saved.
    using StatusSink = std::function<void(TextView)>;

    CUserProfileSet(DataFolder folder, MessageBoxes& boxes, Dialogs& dialogs, StatusSink tell = {});

    /// Builds the list anew; nothing is active then.
    void Load();
    /// Makes a profile active and gives its index. An unknown name is told in a box and becomes the generic
    /// profile. Opening the active profile again reloads its dictionary, unless that is kept in memory.
    int Open(TextView name);
    /// Saves and frees the dictionaries kept in memory: the first step of the program's end.
    void Release();
    /// Saves the active profile and empties the list.
    void Close();

    /// std::invalid_argument before the first Open.
    [[nodiscard]] CUserProfile& Active();
    [[nodiscard]] const CUserProfile& Active() const;
    [[nodiscard]] int ActiveIndex() const { return active; }
    [[nodiscard]] int Count() const { return static_cast<int>(profiles.size()); }
    /// std::invalid_argument outside the list.
    [[nodiscard]] CUserProfile& At(int index);
    [[nodiscard]] const CUserProfile& At(int index) const;
    /// Index in the list, or -1.
    [[nodiscard]] int FindProfile(TextView name) const;

    /// Makes the files of a new profile, adds it and opens it.
    void CreateProfile(TextView name);
    /// Asks which profile, and for confirmation; the profile's files stay.
    void RemoveProfile();
    /// Why a new profile cannot have that name: a sentence for the person, empty if it can.
    [[nodiscard]] Text ObjectionToName(TextView name) const;
    /// Deletes the event logs of a profile, and tells how it went.
    void RemoveLogs(TextView name);
    /// Asks which profile, and for a folder to copy its event logs to; tells how it went.
    void CopyLogs();
    /// Asks which profile, and copies its options into the active one; false if none was chosen.
    bool CopyFromProfile();
    /// The chosen name, or empty on Cancel.
    [[nodiscard]] Text ChooseProfile();
    /// Saves the options of the active profile.
    void SaveActive();
    /// The active profile learns what its person wrote.
    void Learn(std::span<const Lesson> lessons);
    /// For a moment in which nobody waits: has what was learned written to the disk.
    void FlushLearned();

    /// As the list on disk stands: "generico" first.
    [[nodiscard]] std::vector<Text> GetProfileNames() const;
    /// Whether the list on disk names it; the generic profile usually is not there.
    [[nodiscard]] bool ProfileExists(TextView name) const;

    [[nodiscard]] const DataFolder& Folder() const { return folder; }
    [[nodiscard]] std::filesystem::path GetBaseProfilePath() const { return folder.Path("base.cfg"); }
    [[nodiscard]] std::filesystem::path GetProfileListPath() const { return folder.Path("utils"); }

  private:
    CUserProfile& Add(TextView name);
    void ReleaseDictionary(CUserProfile& profile);
    void LoadDictionary(CUserProfile& profile);
    [[nodiscard]] std::vector<Text> ListedNames() const;
    void Tell(const SaveResult& result);
    [[nodiscard]] std::vector<Text> LogsOf(TextView name) const;

    DataFolder folder;
    MessageBoxes& boxes;
    Dialogs& dialogs;
    StatusSink tell;
    std::vector<Text> told;
    std::shared_ptr<GeneralStore> general = std::make_shared<GeneralStore>();
    std::vector<std::unique_ptr<CUserProfile>> profiles;
    int active = -1;
};

/// File names of a profile: name and extension (".cfg", ".acs", ".pal", ".par", ".abr", ".frs", ".paf").
[[nodiscard]] Text ProfileFile(TextView name, TextView extension);
/// All profiles whose options lie in a folder, whether listed or not.
[[nodiscard]] std::vector<Text> GetProfileNamesInFolder(const DataFolder& folder);
/// The keyboard that a profile in `folder` opens with, without and with ".tec".
[[nodiscard]] Text GetKeyboardNameOfProfile(const DataFolder& folder, TextView name);
[[nodiscard]] Text GetKeyboardFileOfProfile(const DataFolder& folder, TextView name);

} // namespace ondrilo
