#pragma once

#include "platform/FileStore.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <iterator>

namespace ondrilo {

/// Ways of reaching keys that the options of a profile do not know.
enum class AccessOption : std::size_t {
    TEMPO_PERMANENCIA, ///< ms for which the pointer rests on a key to press it; 0 turns this off
};
namespace access_option {
using enum AccessOption;
} // namespace access_option

/// A line of the file, with the range of its value and the texts of its control in the options dialog.
struct AccessOptionRow {
    TextView key;
    int least;
    int most;
    int step;           ///< values are multiples of it
    TextView label;     ///< ends with a colon
    TextView unit;      ///< behind the number
    TextView leastName; ///< what `least` is called in place of the number; empty if it has no name
};
/// By the values of AccessOption.
inline constexpr AccessOptionRow kAccessOptions[] = {
    {"TEMPO_PERMANENCIA", 0, 10'000, 100, "Permanência do Ponteiro Para Premir:"_w, " ms", "Desligada"},
};

/// How a person reaches the keys, in a file beside the profile's options, "<name>.acs", "KEY value" a line.
/// Without the file all is as by default.
class CAccessOptions {
  public:
    [[nodiscard]] int Get(AccessOption option) const { return values[static_cast<std::size_t>(option)]; }
    void Set(AccessOption option, int value);
    /// TEMPO_PERMANENCIA, brought into its range: 0 to 10,000 ms in steps of 100.
    [[nodiscard]] int DwellTime() const;

    /// Remembers `path` as the file; an absent one gives the defaults.
    void Load(const std::filesystem::path& path);
    /// Takes over all values of another profile; the file stays its own.
    void CopyFrom(const CAccessOptions& other);
    /// Writes the file if anything changed since it was read.
    SaveResult Save();

    void Parse(TextView bytes);
    [[nodiscard]] Text Format() const;

  private:
    std::array<int, std::size(kAccessOptions)> values{};
    std::filesystem::path file;
    bool changed = false;
};

} // namespace ondrilo
