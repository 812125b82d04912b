#include "tools/KnownKeyNames.h"

#include "targets/CKeySet.h"

namespace ondrilo {

bool IsKnownKeyName(TextView name) {
    static const auto keys = StandardKeys();
    return keys.GetCode(name).has_value();
}

} // namespace ondrilo
