#include "keyboards/KeySymbol.h"

#include "text/Splitter.h"

namespace ondrilo {

bool IsWrappedLabel(TextView label) {
    const auto words = Split(label).size();
    return words > 2 || (words > 0 && label.find_first_of(kTerminators) != TextView::npos);
}

} // namespace ondrilo
