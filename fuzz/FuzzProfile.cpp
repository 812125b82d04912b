#include "fuzz/Fuzz.h"
#include "profiles/CSystemOptions.h"
#include "profiles/CUserProfileProperties.h"

using namespace ondrilo;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TextView bytes = TextOf(data, size);
    CUserProfileProperties profile;
    profile.Parse(bytes);
    const Text written = profile.Format();
    CUserProfileProperties again;
    again.Parse(written);
    Require(again.Format() == written, "what a profile writes it reads back");

    CSystemOptions options;
    options.Parse(bytes);
    (void)options.GetPriorities();
    (void)options.Format();
    return 0;
}
