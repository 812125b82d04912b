#include "keyboards/KeyboardFile.h"

#include "keyboards/KeyOutputs.h"
#include "keyboards/KeyType.h"
#include "keyboards/Pictograms.h"
#include "platform/FileStore.h"
#include "text/CaseFolding.h"
#include "text/LineReader.h"

#include <algorithm>
#include <set>

namespace ondrilo {
namespace {

constexpr std::size_t kLineLimit = 999;
constexpr std::size_t kWordLimit = 511;

/// A number as the C library takes it from the start of a word; 0 if there is none.
int NumberAtStart(TextView word) {
    return FieldScanner(word).Integer().value_or(0);
}

/// Numbers that do not read leave the shorter forms of the line.
KeyboardRecord ParseKey(const std::vector<TextView>& words, FieldScanner& numbers) {
    COnScreenKeyData key;
    key.type = words[1];
    if (words.size() < 5)
        return {std::move(key), 2};

    key.SetMixedLabel(DecodeKeyboardText(words[2]));
    key.description = DecodeKeyboardText(words[3]);
    key.output = DecodeKeyboardText(words[4]);
    const auto active = numbers.Integer();
    if (!active)
        return {std::move(key), 5};

    key.active = *active;
    const auto background = numbers.Integer();
    const auto text = background ? numbers.Integer() : std::nullopt;
    if (!text)
        return {std::move(key), 6};

    key.backgroundColor = *background;
    key.textColor = *text;
    return {std::move(key), 8};
}

/// Adds records to a keyboard; each says whether there was a place for it.
struct ContentBuilder {
    KeyboardContent& keyboard;

    bool operator()(std::monostate) const { return true; }
    bool operator()(const KeyHeightRecord& record) const {
        keyboard.keyHeight = record.height;
        return true;
    }
    bool operator()(const ImageHeightRecord& record) const {
        keyboard.imageHeight = record.height;
        return true;
    }
    bool operator()(DescriptionRecord& record) const {
        keyboard.description = std::move(record.text);
        return true;
    }
    bool operator()(LineRecord& record) const {
        if (keyboard.lines.size() == kMaximumLines)
            return false;
        keyboard.lines.push_back({std::move(record.name), {}});
        return true;
    }
    bool operator()(GroupRecord& record) const {
        if (keyboard.lines.empty() || keyboard.lines.back().groups.size() == kMaximumGroups)
            return false;
        keyboard.lines.back().groups.push_back({std::move(record.name), {}});
        return true;
    }
    bool operator()(COnScreenKeyData& key) const {
        if (keyboard.lines.empty() || keyboard.lines.back().groups.empty() ||
            keyboard.lines.back().groups.back().keys.size() == kMaximumKeys)
            return false;
        keyboard.lines.back().groups.back().keys.push_back(std::move(key));
        return true;
    }
};

Text FormatKey(const COnScreenKeyData& key) {
    const KeyType type = KeyTypeOf(key.type);
    if (type == KeyType::Other)
        return {};
    Tokens words{"TECLA", key.type};
    if (HasOwnContent(type))
        words.insert(words.end(), {EncodeKeyboardText(key.label), EncodeKeyboardText(key.description),
                                   EncodeKeyboardText(key.output), std::to_string(key.active),
                                   std::to_string(key.backgroundColor), std::to_string(key.textColor)});
    return Join(words, " ") + "\n";
}

bool WritesPictogramsOrText(TextView output) {
    return HasPictograms(output) || !(IsKeyboardLink(output) || IsProgram(output) || IsKeySequence(output));
}

/// Walks keyboard files along their links.
class PictogramWalk {
  public:
    explicit PictogramWalk(const DataFolder& folder) : folder(folder) {}

    void Visit(const std::filesystem::path& path) {
        if (!visited.insert(path).second)
            return;
        for (auto& key : ReadFlatKeys(path)) {
            if (IsKeyboardLink(key.output))
                Visit(folder.Find(key.output));
            else if (KeyTypeOf(key.type) == KeyType::Image && key.active == 1 &&
                     WritesPictogramsOrText(key.output))
                found.push_back(std::move(key));
        }
    }

    std::vector<COnScreenKeyData> found;

  private:
    const DataFolder& folder;
    std::set<std::filesystem::path> visited;
};

} // namespace

KeyboardRecord ParseKeyboardLine(TextView line) {
    FieldScanner fields(line);
    std::vector<TextView> words;
    for (auto word = fields.Word(); word; word = words.size() < 5 ? fields.Word() : std::nullopt)
        words.push_back(word->substr(0, kWordLimit));

    if (words.size() < 2)
        return {};
    const TextView keyword = words[0];
    if (keyword == "LINHA")
        return {LineRecord{DecodeKeyboardText(words[1])}, 2};
    if (keyword == "GRUPO")
        return {GroupRecord{DecodeKeyboardText(words[1])}, 2};
    if (keyword == "TECLA")
        return ParseKey(words, fields);
    if (words.size() == 5)
        return {};
    if (keyword == "ALTURA_TECLAS")
        return {KeyHeightRecord{NumberAtStart(words[1])}, 2};
    if (keyword == "ALTURA_TECLAS_IMAGENS")
        return {ImageHeightRecord{NumberAtStart(words[1])}, 2};
    if (keyword == "DESCRICAO")
        return {DescriptionRecord{DecodeKeyboardText(words[1])}, 2};
    return {};
}

KeyboardContent ParseKeyboard(TextView bytes) {
    KeyboardContent keyboard;
    LineReader reader(bytes, kLineLimit);
    while (const auto line = reader.Next()) {
        auto record = ParseKeyboardLine(*line);
        if (!std::visit(ContentBuilder{keyboard}, record.content)) {
            keyboard.failedLine = reader.LineNumber();
            break;
        }
    }
    return keyboard;
}

Text FormatKeyboard(const KeyboardContent& keyboard) {
    Text bytes;
    if (keyboard.keyHeight > 0)
        bytes += "ALTURA_TECLAS " + std::to_string(keyboard.keyHeight) + "\n";
    if (keyboard.imageHeight > 0)
        bytes += "ALTURA_TECLAS_IMAGENS " + std::to_string(keyboard.imageHeight) + "\n";
    if (!keyboard.description.empty())
        bytes += "DESCRICAO " + EncodeKeyboardText(keyboard.description) + "\n";
    for (const auto& line : keyboard.lines) {
        bytes += "\nLINHA " + EncodeKeyboardText(line.name) + "\n";
        for (const auto& group : line.groups) {
            bytes += "GRUPO " + EncodeKeyboardText(group.name) + "\n";
            for (const auto& key : group.keys)
                bytes += FormatKey(key);
        }
    }
    return bytes;
}

std::vector<COnScreenKeyData> ParseFlatKeys(TextView bytes) {
    std::vector<COnScreenKeyData> keys;
    LineReader reader(bytes, kLineLimit);
    while (const auto line = reader.Next()) {
        auto record = ParseKeyboardLine(*line);
        if (auto* key = std::get_if<COnScreenKeyData>(&record.content))
            keys.push_back(std::move(*key));
    }
    return keys;
}

std::vector<COnScreenKeyData> ReadFlatKeys(const std::filesystem::path& path) {
    return ParseFlatKeys(ReadFile(path).bytes);
}

int CountKeysOfType(const std::filesystem::path& path, TextView type) {
    const auto keys = ReadFlatKeys(path);
    return static_cast<int>(
        std::count_if(keys.begin(), keys.end(), [type](const auto& key) { return key.type == type; }));
}

Text DecodeKeyboardText(TextView word) {
    const Text text = Replace(word, ";;;", " ");
    return text.size() > 1 ? Replace(text, ";", " ") : text;
}

Text EncodeKeyboardText(TextView text) {
    return Replace(text, " ", ";;;");
}

Text KeyboardFileName(TextView name) {
    const bool isComplete = name.find(".tec") != TextView::npos;
    return Text(name) + (isComplete ? "" : ".tec");
}

std::filesystem::path FindKeyboard(const DataFolder& folder, TextView name) {
    return folder.Find(KeyboardFileName(name));
}

Text KeyboardName(TextView pathOrFileName) {
    const TextView fileName = pathOrFileName.substr(pathOrFileName.rfind('\\') + 1);
    return Text(fileName.substr(0, MakeLower(fileName).rfind(".tec")));
}

std::vector<COnScreenKeyData> CollectPictogramKeys(const DataFolder& folder, TextView keyboardName) {
    PictogramWalk walk(folder);
    walk.Visit(FindKeyboard(folder, keyboardName));
    return std::move(walk.found);
}

} // namespace ondrilo
