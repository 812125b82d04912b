#pragma once

#include "platform/FileStore.h"
#include "platform/SpeechEngine.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <iterator>

namespace ondrilo {

/// Ways of reaching and hearing keys that the options of a profile do not know. What is absent from the file
/// is as by default: the dwell time is 0, the speech as its service has it.
enum class AccessOption : std::size_t {
    TEMPO_PERMANENCIA, ///< ms for which the pointer rests on a key to press it; 0 turns this off
    VELOCIDADE_FALA,
    TOM_FALA,
    VOLUME_FALA,
    VOLUME_PISTAS, ///< of what scanning says; absent, as loud as the rest
};
namespace access_option {
using enum AccessOption;
} // namespace access_option

/// A line of the file, with the range of its value and the texts of its control in the options dialog.
struct AccessOptionRow {
    TextView key;
    int least;
    int most;
    int step;            ///< values are multiples of it
    TextView label;      ///< ends with a colon
    TextView unit;       ///< behind the number
    TextView leastName;  ///< what `least` is called in place of the number; empty if it has no name
    TextView absentName; ///< what the absent value is called; empty if it is `least`
};
/// By the values of AccessOption.
inline constexpr AccessOptionRow kAccessOptions[] = {
    {"TEMPO_PERMANENCIA", 0, 10'000, 100, "Permanência do Ponteiro Para Premir:"_w, " ms", "Desligada", ""},
    {"VELOCIDADE_FALA", -100, 100, 1, "Velocidade da Fala:", "", "", "Normal da voz"},
    {"TOM_FALA", -100, 100, 1, "Tom da Fala:", "", "", "Normal da voz"},
    {"VOLUME_FALA", -100, 100, 1, "Volume da Fala:", "", "", "Normal da voz"},
    {"VOLUME_PISTAS", -100, 100, 1, "Volume das Pistas:", "", "", "Como o volume da fala"},
};
/// The line of the voice, blanks as ";;;".
inline constexpr TextView kCueVoiceKey = "VOZ_PISTAS";

constexpr const AccessOptionRow& RowOf(AccessOption option) {
    return kAccessOptions[static_cast<std::size_t>(option)];
}

/// How a person reaches and hears the keys, in a file beside the profile's options, "<name>.acs",
/// "KEY value" a line. Without the file all is as by default.
class CAccessOptions {
  public:
    /// As it stands in the file, whether it lies in its range or not; nothing if it is absent.
    [[nodiscard]] std::optional<int> Get(AccessOption option) const {
        return values.numbers[static_cast<std::size_t>(option)];
    }
    void Set(AccessOption option, std::optional<int> value);
    /// The voice of scanning; empty for that of the profile.
    [[nodiscard]] const Text& CueVoice() const { return values.cueVoice; }
    void SetCueVoice(TextView voice);

    /// TEMPO_PERMANENCIA, brought into its range: 0 to 10,000 ms in steps of 100.
    [[nodiscard]] int DwellTime() const;
    /// How the profile's voice speaks, and how the voice of scanning does.
    [[nodiscard]] SpeechManner Manner() const;
    [[nodiscard]] SpeechManner CueManner() const;

    /// Remembers `path` as the file; an absent one gives the defaults.
    void Load(const std::filesystem::path& path);
    /// Takes over all values of another profile; the file stays its own.
    void CopyFrom(const CAccessOptions& other);
    /// Writes the file if anything changed since it was read.
    SaveResult Save();

    void Parse(TextView bytes);
    [[nodiscard]] Text Format() const;

  private:
    struct Values {
        std::array<std::optional<int>, std::size(kAccessOptions)> numbers;
        Text cueVoice;
        bool operator==(const Values&) const = default;
    };

    [[nodiscard]] std::optional<int> InRange(AccessOption option) const;

    Values values;
    std::filesystem::path file;
    bool changed = false;
};

} // namespace ondrilo
