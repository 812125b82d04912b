#pragma once

#include "text/Text.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ondrilo {

/// What several fakes were asked for, in the one order in which it happened.
class Journal {
  public:
    void Note(TextView entry) { entries.emplace_back(entry); }
    std::vector<Text> Take() { return std::exchange(entries, {}); }
    [[nodiscard]] bool Has(TextView entry) const {
        return std::find(entries.begin(), entries.end(), entry) != entries.end();
    }

    std::vector<Text> entries;
};

} // namespace ondrilo
