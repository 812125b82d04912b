#include "prediction/LearningJournal.h"

#include "text/LineReader.h"

#include <algorithm>
#include <charconv>

namespace ondrilo {
namespace {

constexpr TextView kVersionMark = "=";
constexpr std::array<TextView, Lesson::kKinds> kExtensions{".pal", ".par", ".frs", ".paf"};

std::optional<std::int64_t> ParseNumber(TextView digits) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return number;
}

} // namespace

void LearningJournal::Open(const DataFolder& folder, TextView name, CDictionary& dictionary) {
    Close();
    path = folder.Path(Text(name) + ".jrn");
    for (std::size_t kind = 0; kind < told.size(); ++kind)
        told[kind] = folder.Path(Text(name).append(kExtensions[kind]));
    noted = {};

    const FileBytes read = ReadFile(path);
    size = read.bytes.rfind('\n') + 1; // what a crash cut off does not count
    if (!Replay(TextView(read.bytes).substr(0, size), dictionary))
        (void)Remove();
}

bool LearningJournal::Replay(TextView lines, CDictionary& dictionary) const {
    Versions versions;
    bool any = false;
    LineReader reader(lines, TextView::npos);
    while (const auto line = reader.Next()) {
        if (ReadVersion(*line, versions))
            continue;
        auto lessons = ParseLessons(*line);
        if (!lessons)
            continue;
        std::erase_if(*lessons, [&](const Lesson& lesson) {
            return versions[static_cast<std::size_t>(lesson.kind)] != CurrentVersion(lesson.kind);
        });
        Learn(dictionary, *lessons);
        any = any || !lessons->empty();
    }
    return any;
}

bool LearningJournal::ReadVersion(TextView line, Versions& versions) {
    const auto fields = SplitAtTabs(line);
    if (fields.size() != 4 || fields[0] != kVersionMark)
        return false;
    const auto kind = KindOfLetter(fields[1]);
    const auto size = ParseNumber(fields[2]);
    const auto modified = ParseNumber(fields[3]);
    if (kind && size && modified)
        versions[static_cast<std::size_t>(*kind)] = {*size, *modified};
    return true;
}

LearningJournal::Version LearningJournal::CurrentVersion(Lesson::Kind kind) const {
    const FileIdentity identity = IdentityOf(told[static_cast<std::size_t>(kind)]);
    return {identity.size, identity.modified};
}

void LearningJournal::NoteVersion(Lesson::Kind kind, Text& piece) {
    auto& known = noted[static_cast<std::size_t>(kind)];
    const Version current = CurrentVersion(kind);
    if (known == current)
        return;
    known = current;
    piece.append(kVersionMark).append("\t") += LetterOf(kind);
    piece.append("\t" + std::to_string(current.size) + "\t" + std::to_string(current.modified) + "\n");
}

SaveResult LearningJournal::Append(std::span<const Lesson> lessons) {
    if (!file.IsOpen())
        if (auto opened = file.Open(path, size); !opened)
            return opened;
    Text piece;
    for (const Lesson& lesson : lessons)
        NoteVersion(lesson.kind, piece);
    piece += FormatLessons(lessons) + "\n";

    auto appended = file.Append(piece);
    if (appended)
        size += piece.size();
    else
        noted = {};
    return appended;
}

SaveResult LearningJournal::Remove() {
    Close();
    size = 0;
    noted = {};
    return path.empty() ? SaveResult() : RemoveFile(path);
}

} // namespace ondrilo
