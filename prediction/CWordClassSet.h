#pragma once

#include "text/Text.h"

#include <filesystem>
#include <vector>

namespace ondrilo {

/// Longest read of a line of a class file, in bytes.
inline constexpr std::size_t kClassLineLimit = 79;

/// The word classes with their frequencies in general texts. Names are data and mean nothing beyond equality.
class CWordClassSet {
  public:
    static constexpr std::size_t kCapacity = 500;

    /// Reads "name frequency" lines anew; without a file the set is empty. A line that does not parse leaves
    /// a nameless class and counts the frequency before it once more. Throws std::invalid_argument after
    /// taking in the first 500 lines of a longer file.
    void Load(const std::filesystem::path& path);

    /// 0 for an unknown class.
    [[nodiscard]] int Frequency(TextView name) const;
    /// Lines read.
    [[nodiscard]] int Count() const { return static_cast<int>(classes.size()); }
    /// Sum of the frequencies.
    [[nodiscard]] int Total() const { return total; }

  private:
    struct CWordClass {
        Text name;
        int frequency = 0;
    };
    std::vector<CWordClass> classes;
    int total = 0;
};

} // namespace ondrilo
