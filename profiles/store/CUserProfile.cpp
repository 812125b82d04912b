#include "profiles/store/CUserProfile.h"

namespace ondrilo {

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
    return dictionary.LoadProfileDictionaries(DataFolder(properties.dictionaryFolder), properties.profileName,
                                              properties.IsOn(option::ADAPTACAO_UTILIZADOR));
}

SaveResult CUserProfile::ReleaseDictionary() {
    auto abbreviations = dictionary.abbreviations.Save();
    auto vocabulary = dictionary.SaveUserFiles();
    dictionary.Clear();
    return vocabulary ? abbreviations : vocabulary;
}

} // namespace ondrilo
