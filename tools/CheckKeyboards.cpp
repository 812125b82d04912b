#include "tools/CheckKeyboards.h"

#include "keyboards/CCommands.h"
#include "keyboards/KeyOutputs.h"
#include "keyboards/KeyType.h"
#include "keyboards/KeyboardFile.h"
#include "keyboards/Pictograms.h"
#include "tools/KnownKeyNames.h"

#include <algorithm>
#include <filesystem>

namespace ondrilo {

namespace {

constexpr std::size_t kLineLimit = 999;
constexpr std::size_t kWordLimit = 511;

class KeyboardCheck {
  public:
    KeyboardCheck(const DataFolder& folder, const std::vector<Text>& profiles, TextView name,
                  CheckReport& report)
        : folder(folder), profiles(profiles), file(report, folder, name, kLineLimit) {}

    void Run() {
        while (const auto line = file.Next()) {
            const auto record = ParseKeyboardLine(*line);
            CheckWords(WordsOf(*line), record);
            if (const auto* key = std::get_if<COnScreenKeyData>(&record.content))
                CheckKey(*key);
            if (!HasPlace(record)) {
                file.Tell("the program stops reading the keyboard here");
                return;
            }
        }
    }

  private:
    void CheckWords(const std::vector<TextView>& words, const KeyboardRecord& record) {
        if (words.empty() || words[0].starts_with("//"))
            return;
        if (std::holds_alternative<std::monostate>(record.content)) {
            file.Tell(Quoted(words[0]) + " begins no line of a keyboard, or lacks its value: skipped");
            return;
        }
        for (const auto word : words)
            if (word.size() > kWordLimit)
                file.Tell("a word is longer than " + std::to_string(kWordLimit) + " bytes");
        const bool isHeight = std::holds_alternative<KeyHeightRecord>(record.content) ||
                              std::holds_alternative<ImageHeightRecord>(record.content);
        if (isHeight)
            if (const auto problem = IntegerProblem(words[1]); !problem.empty())
                file.Tell(problem);
        if (static_cast<std::size_t>(record.words) < words.size())
            file.Tell("only the first " + std::to_string(record.words) + " of " +
                      std::to_string(words.size()) + " words are read");
    }

    void CheckKey(const COnScreenKeyData& key) {
        const auto type = KeyTypeOf(key.type);
        if (type == KeyType::Other)
            file.Tell(Quoted(key.type) + " is no key type: the key is lost when the keyboard is saved");
        if (!HasOwnContent(type))
            return;
        CheckPictograms(key.label);
        switch (KindOfOutput(key.output)) {
        case OutputKind::KeyboardLink:
            if (!std::filesystem::exists(folder.Find(key.output)))
                file.Tell("there is no keyboard " + Quoted(key.output));
            break;
        case OutputKind::Sequence:
            CheckSequence(key.output);
            break;
        case OutputKind::Command:
            CheckCommand(ParseCommand(key.output));
            break;
        case OutputKind::Pictogram:
            CheckPictograms(key.output);
            break;
        case OutputKind::Program:
        case OutputKind::Text:
            break;
        }
    }

    void CheckPictograms(TextView list) {
        for (const auto& pictogram : PictogramsOf(list))
            if (!std::filesystem::exists(folder.Find(pictogram)))
                file.Tell("there is no picture " + Quoted(pictogram));
        if (static_cast<std::size_t>(CountPictograms(list)) > kMaximumPictograms)
            file.Tell("more than " + std::to_string(kMaximumPictograms) + " pictures");
    }

    void CheckSequence(TextView sequence) {
        for (const auto& name : Split(sequence, "{} +"))
            if (name.size() > 1 && !IsKnownKeyName(name))
                file.Tell(Quoted(name) + " is no key name");
    }

    void CheckCommand(const CommandCall& call) {
        const auto* row = CCommands::Find(call.name);
        if (!row) {
            file.Tell(Quoted(call.name) + " is no command");
            return;
        }
        if (row->arguments > 0 && std::ranges::count(profiles, call.argument) == 0)
            file.Tell(Quoted(call.argument) + " is no profile");
    }

    /// Counts what is there; false if there is no place for this record.
    bool HasPlace(const KeyboardRecord& record) {
        if (std::holds_alternative<LineRecord>(record.content)) {
            groups = 0;
            return Fits(++lines, kMaximumLines, "lines");
        }
        if (std::holds_alternative<GroupRecord>(record.content)) {
            keys = 0;
            return HasParent(lines, "group", "line") && Fits(++groups, kMaximumGroups, "groups in a line");
        }
        if (std::holds_alternative<COnScreenKeyData>(record.content))
            return HasParent(lines, "key", "line") && HasParent(groups, "key", "group") &&
                   Fits(++keys, kMaximumKeys, "keys in a group");
        return true;
    }

    bool HasParent(std::size_t parents, TextView child, TextView parent) {
        if (parents == 0)
            file.Tell(Text("a ").append(child).append(" before its ").append(parent));
        return parents > 0;
    }

    bool Fits(std::size_t count, std::size_t most, TextView what) {
        if (count > most)
            file.Tell("more than " + std::to_string(most) + " " + Text(what));
        return count <= most;
    }

    const DataFolder& folder;
    const std::vector<Text>& profiles;
    CheckedFile file;
    std::size_t lines = 0, groups = 0, keys = 0;
};

} // namespace

void CheckKeyboards(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report) {
    for (const auto& name : folder.Files(".tec"))
        KeyboardCheck(folder, profiles, name, report).Run();
}

} // namespace ondrilo
