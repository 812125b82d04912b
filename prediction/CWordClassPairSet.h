#pragma once

#include "text/Text.h"

#include <filesystem>
#include <map>

namespace ondrilo {

/// How often a word of one class followed a word of another in general texts.
class CWordClassPairSet {
  public:
    /// Names are compared as bytes; ordered, so that the successors of a class lie together.
    using Row = std::map<Text, int, std::less<>>;

    /// Reads "first second count" lines anew; without a file the set is empty. A line that does not parse
    /// counts the value before it once more.
    void Load(const std::filesystem::path& path);

    /// 0 for an unknown pair.
    [[nodiscard]] int Frequency(TextView first, TextView second) const;
    /// The classes that followed `first` with their counts; null if there is none.
    [[nodiscard]] const Row* After(TextView first) const;
    /// Lines read.
    [[nodiscard]] int Count() const { return count; }
    /// Sum of the counts.
    [[nodiscard]] int Total() const { return total; }

  private:
    std::map<Text, Row, std::less<>> rows;
    int count = 0;
    int total = 0;
};

} // namespace ondrilo
