#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

/// The one table between Windows-1252 and Unicode. The five codes that the code page leaves open (0x81, 0x8D,
/// 0x8F, 0x90, 0x9D) stand for the control characters of the same number, so that every byte survives a round
/// trip.
namespace ondrilo {

inline constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Unicode code point of a Windows-1252 byte.
constexpr char32_t CodePointOf(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : byte;
}

/// The Windows-1252 byte of a code point, or nothing where the code page has none.
constexpr std::optional<unsigned char> Encode(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
        return static_cast<unsigned char>(codePoint);
    for (unsigned i = 0; i < 32; ++i)
        if (kHighControls[i] == codePoint)
            return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

/// As Encode, but what the code page lacks is an error: at compile time it ends the compilation.
constexpr unsigned char EncodeStrictly(char32_t codePoint) {
    if (const auto byte = Encode(codePoint))
        return *byte;
    throw std::invalid_argument("not a Windows-1252 character");
}

inline constexpr char32_t kReplacement = 0xFFFD;

/// Takes one code point off the front of a UTF-8 text that is not empty. A malformed sequence gives
/// kReplacement and costs one byte.
constexpr char32_t TakeUtf8(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const unsigned length = lead < 0x80   ? 1
                            : lead < 0xC2 ? 0
                            : lead < 0xE0 ? 2
                            : lead < 0xF0 ? 3
                            : lead < 0xF5 ? 4
                                          : 0;
    auto malformed = [&utf8] {
        utf8.remove_prefix(1);
        return kReplacement;
    };
    if (length == 0 || utf8.size() < length)
        return malformed();
    char32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
    for (unsigned i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0) != 0x80)
            return malformed();
        codePoint = codePoint << 6 | (next & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (codePoint < smallest[length] || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint < 0xE000))
        return malformed();
    utf8.remove_prefix(length);
    return codePoint;
}

/// UTF-8 to Windows-1252; characters that the code page lacks become "?".
[[nodiscard]] std::string FromUtf8(std::string_view utf8);
/// Windows-1252 to UTF-8; never fails.
[[nodiscard]] std::string ToUtf8(std::string_view text);

} // namespace ondrilo
