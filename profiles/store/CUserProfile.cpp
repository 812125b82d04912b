#include "profiles/store/CUserProfile.h"

namespace ondrilo {

bool CUserProfile::EditOptions(OptionDialogs& dialogs, const ProfileOptionSources& sources) {
    const bool accepted = dialogs.EditProfileOptions({properties, access}, sources);
    changed = changed || accepted;
    return accepted;
}

void CUserProfile::CopyOptionsOf(const CUserProfile& other) {
    auto copy = other.properties;
    copy.profileName = properties.profileName;
    copy.filePath = properties.filePath;
    properties = std::move(copy);
    access.CopyFrom(other.access);
    changed = true;
}

void CUserProfile::Load(const std::filesystem::path& path) {
    changed = true;
    properties.Load(path);
    access.Load(std::filesystem::path(path).replace_extension(".acs"));
}

SaveResult CUserProfile::Save() {
    auto accessSaved = access.Save();
    auto saved = changed ? properties.Save() : SaveResult{};
    return saved ? accessSaved : saved;
}

std::vector<Text> CUserProfile::LoadDictionary() {
    const DataFolder folder(properties.dictionaryFolder);
    auto messages = dictionary.LoadProfileDictionaries(folder, properties.profileName,
                                                       properties.IsOn(option::ADAPTACAO_UTILIZADOR));
    journal.Open(folder, properties.profileName, dictionary);
    return messages;
}

SaveResult CUserProfile::ReleaseDictionary() {
    auto abbreviations = dictionary.abbreviations.Save();
    auto vocabulary = dictionary.SaveUserFiles();
    dictionary.Clear();
    if (!vocabulary) {
        journal.Close();
        return vocabulary;
    }
    auto removed = journal.Remove();
    return abbreviations ? removed : abbreviations;
}

SaveResult CUserProfile::Learn(std::span<const Lesson> lessons) {
    ondrilo::Learn(dictionary, lessons);
    return journal.Append(lessons);
}

} // namespace ondrilo
