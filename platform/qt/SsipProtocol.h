#pragma once

#include "text/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The language of Speech Dispatcher (SSIP): commands and replies in lines of UTF-8 that end with CR LF.
namespace ondrilo {

/// A line of a reply, "249-Portuguese (Portugal)<TAB>pt<TAB>none" or, as its last one, "249 OK VOICE LIST
/// SENT".
struct SsipLine {
    int code = 0; ///< 0 for a line that does not belong to the language
    bool last = true;
    std::string_view text; ///< valid until the reader is given more

    [[nodiscard]] bool IsGood() const { return code >= 200 && code < 300; }
    /// What happens to a text that is being said; nobody asked for it now.
    [[nodiscard]] bool IsEvent() const { return code >= 700; }
};

/// Cuts what the service sends into lines.
class SsipReader {
  public:
    void Append(std::string_view bytes);
    [[nodiscard]] std::optional<SsipLine> Next();

  private:
    std::string buffer;
    std::size_t taken = 0;
};

/// What follows the command SPEAK: the text and its end.
[[nodiscard]] std::string SsipText(TextView text);
/// What says nothing after the command SPEAK.
inline constexpr std::string_view kSsipNoText = ".\r\n";

struct SpeechVoice {
    Text description; ///< "Portuguese (Portugal) - espeak-ng"
    std::string module, name;
};

/// The voices that the service told of, in its order.
class SpeechVoices {
  public:
    /// A row of a module's list. Variants of a voice ("Portuguese (Portugal)+Alex") are left out, since there
    /// are a hundred of each.
    void Add(std::string_view module, std::string_view row);
    /// Null if there is none of that description.
    [[nodiscard]] const SpeechVoice* Find(TextView description) const;
    [[nodiscard]] std::vector<Text> Descriptions() const;
    [[nodiscard]] bool IsEmpty() const { return voices.empty(); }

  private:
    std::vector<SpeechVoice> voices;
};

} // namespace ondrilo
