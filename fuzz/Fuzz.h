#pragma once

#include "text/Text.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace ondrilo {

inline TextView TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run, as a crash does, where a promise is broken.
inline void Require(bool kept, const char* promise) {
    if (kept)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

} // namespace ondrilo

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
