#pragma once

#include "text/Text.h"

#include <cstdint>
#include <vector>

namespace ondrilo {

/// Texts one after the other in one block, by number; cheap for hundreds of thousands of short ones. Views
/// are valid until the next Add.
class TextPool {
  public:
    [[nodiscard]] std::size_t Count() const { return ends.size(); }
    [[nodiscard]] TextView Get(std::size_t number) const {
        const std::size_t begin = number == 0 ? 0 : ends[number - 1];
        return {characters.data() + begin, ends[number] - begin};
    }
    /// Has the memory that tells where the text lies fetched ahead.
    void Prefetch(std::size_t number) const { __builtin_prefetch(&ends[number]); }
    void Add(TextView text) {
        characters.append(text);
        ends.push_back(static_cast<std::uint32_t>(characters.size()));
    }

  private:
    Text characters;
    std::vector<std::uint32_t> ends;
};

} // namespace ondrilo
