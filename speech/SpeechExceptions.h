#pragma once

#include "text/Text.h"

#include <map>
#include <optional>
#include <unordered_map>

namespace ondrilo {

/// What a voice says in place of which texts. A line of the file is a text, ":" and its replacement; lines
/// without exactly one ":" between two texts are skipped, so that an empty replacement does not last.
class SpeechExceptions {
  public:
    using List = std::map<Text, Text>;

    /// Bytes of one read; a longer line becomes several.
    static constexpr std::size_t kLineLimit = 999;
    static constexpr char kSeparator = ':';

    /// Forgets what there was.
    void Parse(TextView bytes);
    [[nodiscard]] Text Format() const;

    /// The replacement of exactly that text.
    [[nodiscard]] std::optional<TextView> Find(TextView text) const;
    [[nodiscard]] List All() const { return {replacements.begin(), replacements.end()}; }
    void Set(TextView text, TextView replacement) { replacements[Text(text)] = replacement; }
    void Remove(TextView text) { replacements.erase(Text(text)); }

  private:
    struct Hash {
        using is_transparent = void; // a text need not be copied to be looked up
        std::size_t operator()(TextView text) const { return std::hash<TextView>()(text); }
    };
    std::unordered_map<Text, Text, Hash, std::equal_to<>> replacements;
};

} // namespace ondrilo
