#pragma once

#include "text/Text.h"

#include <optional>

namespace ondrilo {

/// What was chosen on the on-screen keyboard, as the column TYPE tells it.
struct LogSelection {
    TextView operation;  ///< "PREDICTED_WORD_SELECTION"; lives as long as the program
    bool writes = false; ///< it puts something into the message
    bool predicted = false;
    int page = 0; ///< of a prediction, as its position from 0
    std::optional<int> position;
    Text details; ///< what stands behind the operation, and behind the position of a prediction
};

/// Nothing for a type that is no selection: steps of scanning, and what is shown or spoken before or after.
[[nodiscard]] std::optional<LogSelection> ReadLogSelection(TextView type);

} // namespace ondrilo
