#pragma once

#include "keyboards/COnScreenKeyData.h"
#include "platform/DataFolder.h"

#include <filesystem>
#include <variant>
#include <vector>

/// Keyboard files (".tec"): lines, groups and keys in display order, as values. One record a line, fields are
/// words; a blank inside a text stands as ";;;".
namespace ondrilo {

/// What a keyboard holds at most. Key addresses travel with one byte for each level.
inline constexpr std::size_t kMaximumLines = 20;
inline constexpr std::size_t kMaximumGroups = 10;
inline constexpr std::size_t kMaximumKeys = 200;

struct LineRecord {
    Text name;
};
struct GroupRecord {
    Text name;
};
struct KeyHeightRecord {
    int height;
};
struct ImageHeightRecord {
    int height;
};
struct DescriptionRecord {
    Text text;
};

/// One line of a file as the program takes it. A line that says nothing (blank, comment, unknown word, too
/// few words) holds std::monostate.
struct KeyboardRecord {
    std::variant<std::monostate, LineRecord, GroupRecord, COnScreenKeyData, KeyHeightRecord,
                 ImageHeightRecord, DescriptionRecord>
        content;
    int words = 0; ///< words of the line that were taken; the others are lost
};
[[nodiscard]] KeyboardRecord ParseKeyboardLine(TextView line);

/// A whole keyboard file.
struct KeyboardContent {
    int keyHeight = 0; ///< pixels; 0 or less: the profile's
    int imageHeight = 0;
    Text description;
    std::vector<COnScreenKeyLineData> lines;
    /// Number of the line of the file that ended the reading: a group or key without its parent, or one too
    /// many. What stands before it was read. 0 if all was.
    int failedLine = 0;
};

[[nodiscard]] KeyboardContent ParseKeyboard(TextView bytes);
/// The bytes of the file. Colours go out as they are; keys of an unknown type are left out.
[[nodiscard]] Text FormatKeyboard(const KeyboardContent& keyboard);

/// The keys of a file in its order, without regard to lines, groups and limits; none if it cannot be opened.
[[nodiscard]] std::vector<COnScreenKeyData> ParseFlatKeys(TextView bytes);
[[nodiscard]] std::vector<COnScreenKeyData> ReadFlatKeys(const std::filesystem::path& path);
[[nodiscard]] int CountKeysOfType(const std::filesystem::path& path, TextView type);

/// Texts of keyboard files. Reading turns ";;;" into a blank, then, in what is longer than one character,
/// every
/// ";" left too, so "a;b" comes back as "a b".
[[nodiscard]] Text DecodeKeyboardText(TextView word);
[[nodiscard]] Text EncodeKeyboardText(TextView text);

/// File name of a keyboard: ".tec" is added unless it occurs anywhere in the name.
[[nodiscard]] Text KeyboardFileName(TextView name);
/// Where the file of a keyboard lies, or would lie.
[[nodiscard]] std::filesystem::path FindKeyboard(const DataFolder& folder, TextView name);
/// Name of a keyboard: what stands between the last backslash, if any, and ".tec".
[[nodiscard]] Text KeyboardName(TextView pathOrFileName);

/// The keys in which pictograms are found: those of a keyboard's file and, at the place of each link, of the
/// file that it links to; no file is walked twice. Only active pictogram keys that write pictograms or text
/// count.
[[nodiscard]] std::vector<COnScreenKeyData> CollectPictogramKeys(const DataFolder& folder,
                                                                 TextView keyboardName);

} // namespace ondrilo
