#include "profiles/store/CUserProfileSet.h"

#include "platform/AppendFile.h"
#include "text/LineReader.h"

#include <algorithm>
#include <stdexcept>

namespace ondrilo {

namespace {

/// Names of files that no profile owns: the dictionaries that all share, and the template of the options.
constexpr TextView kReservedNames[] = {kGenericProfile, "geral", "base"};
constexpr std::size_t kLongestName = 100; // bytes, so that no file name becomes too long

/// A profile's name begins the names of its files, and stands in "utils" as a word of its own and in the list
/// of priorities between ";". A "?" is what a character that Windows-1252 lacks has become.
bool IsFileName(TextView name) {
    return name.front() != '.' && name.find_first_of(TextView("/\\?;\0\t\r\n\v\f", 10)) == TextView::npos;
}

constexpr TextView kVocabularyExtensions[] = {".pal", ".par", ".abr", ".frs", ".paf"};

Text AsLines(const std::vector<Text>& names) {
    Text lines;
    for (const auto& name : names)
        lines.append(name).append("\n");
    return lines;
}

} // namespace

Text ProfileFile(TextView name, TextView extension) {
    return Text(name).append(extension);
}

std::vector<Text> GetProfileNamesInFolder(const DataFolder& folder) {
    auto names = folder.Files(".cfg");
    for (auto& name : names)
        name.resize(name.size() - 4);
    return names;
}

Text GetKeyboardNameOfProfile(const DataFolder& folder, TextView name) {
    CUserProfileProperties scratch;
    scratch.Load(folder.Path(ProfileFile(name, ".cfg")));
    return scratch.Get(option::NOME_TECLADO);
}

Text GetKeyboardFileOfProfile(const DataFolder& folder, TextView name) {
    return GetKeyboardNameOfProfile(folder, name) + ".tec";
}

CUserProfileSet::CUserProfileSet(DataFolder folder, MessageBoxes& boxes, Dialogs& dialogs, StatusSink tell)
    : folder(std::move(folder)), boxes(boxes), dialogs(dialogs), tell(std::move(tell)) {
}

void CUserProfileSet::Load() {
    profiles.clear();
    active = -1;
    const auto listed = ListedNames();
    Add(kGenericProfile);
    for (const auto& name : listed)
        Add(name);
    for (const auto& profile : profiles)
        if (profile->KeepsDictionary())
            LoadDictionary(*profile);
}

CUserProfile& CUserProfileSet::Add(TextView name) {
    auto& profile = *profiles.emplace_back(std::make_unique<CUserProfile>(general));
    profile.properties.profileName = name;
    profile.properties.dictionaryFolder = folder.Path();
    profile.Load(folder.Path(ProfileFile(name, ".cfg")));
    return profile;
}

std::vector<Text> CUserProfileSet::ListedNames() const {
    const auto file = ReadFile(GetProfileListPath());
    std::vector<Text> names;
    FieldScanner words(file.bytes);
    while (const auto name = words.Word())
        names.emplace_back(*name);
    return names;
}

int CUserProfileSet::Open(TextView name) {
    auto index = FindProfile(name);
    if (index < 0) {
        boxes.Show(Text("O perfil de utilizador ")
                       .append(name)
                       .append(" não está disponível! Será carregado o perfil de utilizador genérico."_w));
        index = 0;
    }
    if (active >= 0) {
        SaveActive();
        if (Active().KeepsDictionary())
            FlushLearned();
        else
            ReleaseDictionary(Active());
    }
    active = index;
    if (!Active().KeepsDictionary())
        LoadDictionary(Active());
    return active;
}

void CUserProfileSet::Release() {
    for (const auto& profile : profiles)
        if (profile->KeepsDictionary())
            ReleaseDictionary(*profile);
}

void CUserProfileSet::Close() {
    if (active >= 0) {
        SaveActive();
        if (!Active().KeepsDictionary())
            ReleaseDictionary(Active());
    }
    profiles.clear();
    active = -1;
}

CUserProfile& CUserProfileSet::Active() {
    return At(active);
}

const CUserProfile& CUserProfileSet::Active() const {
    return At(active);
}

CUserProfile& CUserProfileSet::At(int index) {
    return const_cast<CUserProfile&>(static_cast<const CUserProfileSet&>(*this).At(index));
}

const CUserProfile& CUserProfileSet::At(int index) const {
    if (index < 0 || index >= Count())
        throw std::invalid_argument("no such profile");
    return *profiles[static_cast<std::size_t>(index)];
}

int CUserProfileSet::FindProfile(TextView name) const {
    const auto found =
        std::ranges::find_if(profiles, [&](const auto& p) { return p->properties.profileName == name; });
    return found == profiles.end() ? -1 : static_cast<int>(found - profiles.begin());
}

void CUserProfileSet::CreateProfile(TextView name) {
    auto list = ReadFile(GetProfileListPath()).bytes;
    if (!list.empty() && list.back() != '\n')
        list += '\n';
    Tell(ReplaceFile(GetProfileListPath(), list.append(name).append("\n")));
    for (const auto extension : kVocabularyExtensions)
        Tell(ReplaceFile(folder.Path(ProfileFile(name, extension)), {}));
    if (const auto base = ReadFile(GetBaseProfilePath()); base.CouldOpen())
        Tell(ReplaceFile(folder.Path(ProfileFile(name, ".cfg")), base.bytes));
    for (const auto extension : {".acs", ".jrn"})
        Tell(RemoveFile(folder.Path(ProfileFile(name, extension))));
    Add(name);
    Open(name);
}

void CUserProfileSet::RemoveProfile() {
    const auto name = ChooseProfile();
    if (name == kGenericProfile) {
        boxes.Show("Não é possível apagar o perfil de utilizador genérico."_w);
        return;
    }
    if (name.empty())
        return;
    if (boxes.AskYesNo("Quer mesmo remover o perfil " + name + "?", Answer::No) != Answer::Yes)
        return;
    const auto index = FindProfile(name);
    if (index >= 0 && index == active) {
        boxes.Show("Este perfil de utilizador encontra-se activo e por isso não pode ser removido."_w);
        return;
    }
    auto listed = ListedNames();
    std::erase(listed, name);
    Tell(ReplaceFile(GetProfileListPath(), AsLines(listed)));
    if (index < 0)
        return;
    ReleaseDictionary(At(index));
    profiles.erase(profiles.begin() + index);
    if (index < active)
        --active;
}

Text CUserProfileSet::ObjectionToName(TextView name) const {
    if (name.empty())
        return Text("Introduza um nome para o novo perfil de utilizador."_w);
    if (name.find(' ') != TextView::npos)
        return Text("Não são permitidos espaços no nome do perfil de utilizador. Utilize um travessão para "
                    "separar as palavras que constituem o nome."_w);
    if (std::ranges::count(kReservedNames, name) > 0 || ProfileExists(name))
        return Text("Já existe um perfil de utilizador com esse nome."_w);
    if (name.size() > kLongestName)
        return Text("O nome do perfil de utilizador é demasiado longo."_w);
    return IsFileName(name) ? Text()
                            : Text("O nome do perfil de utilizador não pode conter esses caracteres."_w);
}

std::vector<Text> CUserProfileSet::LogsOf(TextView name) const {
    auto logs = folder.Files(".log");
    // Up to the blank, so that "ana" never takes the logs of "anabela".
    std::erase_if(logs, [name](const Text& log) { return !log.starts_with(Text(name) + " "); });
    return logs;
}

void CUserProfileSet::RemoveLogs(TextView name) {
    bool all = true;
    for (const auto& log : LogsOf(name))
        all = bool(RemoveFile(folder.Path(log))) && all;
    boxes.Show(all ? TextView("Registos eliminados com sucessos.")
                   : "Não foi possível eliminar parte dos registos."_w);
}

void CUserProfileSet::CopyLogs() {
    const auto name = ChooseProfile();
    if (name.empty())
        return;
    const auto target = dialogs.ChooseFolder("Seleccione uma directoria");
    if (!target)
        return;
    std::error_code ignored;
    // Copied onto itself, a log that is being written would go on in a file that nobody finds any more.
    bool all = !std::filesystem::equivalent(*target, folder.Path(), ignored);
    for (const auto& log : all ? LogsOf(name) : std::vector<Text>()) {
        const auto read = ReadFile(folder.Path(log));
        all = read.state == ReadState::Complete && ReplaceFile(DataFolder(*target).Path(log), read.bytes) &&
              all;
    }
    boxes.Show(all ? TextView("Registos copiados com sucessos.")
                   : "Não foi possível copiar parte dos registos."_w);
}

bool CUserProfileSet::CopyFromProfile() {
    const auto index = FindProfile(ChooseProfile());
    if (index < 0)
        return false;
    Active().CopyOptionsOf(At(index));
    return true;
}

Text CUserProfileSet::ChooseProfile() {
    return dialogs.ChooseProfile(GetProfileNames()).value_or(Text{});
}

std::vector<Text> CUserProfileSet::GetProfileNames() const {
    auto names = ListedNames();
    names.emplace(names.begin(), kGenericProfile);
    return names;
}

bool CUserProfileSet::ProfileExists(TextView name) const {
    return std::ranges::count(ListedNames(), name) > 0;
}

void CUserProfileSet::SaveActive() {
    Tell(Active().Save());
}

void CUserProfileSet::Learn(std::span<const Lesson> lessons) {
    Tell(Active().Learn(lessons));
}

void CUserProfileSet::FlushLearned() {
    Tell(Active().FlushLearned());
}

void CUserProfileSet::LoadDictionary(CUserProfile& profile) {
    for (const auto& message : profile.LoadDictionary())
        boxes.Show(message);
}

void CUserProfileSet::ReleaseDictionary(CUserProfile& profile) {
    Tell(profile.ReleaseDictionary());
}

void CUserProfileSet::Tell(const SaveResult& result) {
    // A folder that cannot be written fails at every save; the person is told once a file.
    if (result || std::ranges::count(told, result.problem) > 0)
        return;
    told.push_back(result.problem);
    if (tell)
        tell(result.problem);
}

} // namespace ondrilo
