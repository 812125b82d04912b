#include "targets/BlockedKeys.h"

#include <algorithm>

namespace ondrilo {

void BlockedKeys::Add(int first, int last) {
    for (int code = first; code <= last; ++code) {
        if (Contains(code))
            continue;
        const auto entry = std::find(codes.begin(), codes.end(), kFree);
        if (entry == codes.end())
            return;
        *entry = code;
    }
}

void BlockedKeys::Remove(int first, int last) {
    std::replace_if(
        codes.begin(), codes.end(), [=](int code) { return code >= first && code <= last; }, kFree);
}

bool BlockedKeys::Contains(int code) const {
    return code != kFree && std::find(codes.begin(), codes.end(), code) != codes.end();
}

} // namespace ondrilo
