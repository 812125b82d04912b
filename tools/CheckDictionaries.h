#pragma once

#include "tools/CheckReport.h"

namespace ondrilo {

/// Words, sentences, their pairs, word classes and abbreviations: all such files of a data folder.
/// `profiles` are those whose own files must be there.
void CheckDictionaries(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report);

} // namespace ondrilo
