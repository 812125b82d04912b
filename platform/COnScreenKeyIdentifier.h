#pragma once

#include <compare>
#include <cstdint>

namespace ondrilo {

/// The address of a key on an on-screen keyboard: zero-based line, group and key number. Ordered as the keys
/// are read: line, group, key.
struct COnScreenKeyIdentifier {
    int line = 0;
    int group = 0;
    int key = 0;

    auto operator<=>(const COnScreenKeyIdentifier&) const = default;

    /// The form that key messages carry: line * 65536 + group * 256 + key.
    [[nodiscard]] std::int32_t Packed() const { return line * 65536 + group * 256 + key; }
    static COnScreenKeyIdentifier FromPacked(std::int32_t packed) {
        return {packed / 65536, packed / 256 % 256, packed % 256};
    }
};

} // namespace ondrilo
