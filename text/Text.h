#pragma once

#include "text/Windows1252.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/// The text of the whole system: 8-bit Windows-1252 with value semantics. Comparison is that of bytes as
/// unsigned values, which is the order of every sorted file and array.
namespace ondrilo {

using Text = std::string;
using TextView = std::string_view;

/// A UTF-8 source literal as a template argument; see operator""_w.
template <std::size_t N>
struct Utf8Literal {
    char bytes[N]{};
    consteval Utf8Literal(const char (&literal)[N]) { std::copy_n(literal, N, bytes); }
    [[nodiscard]] consteval std::string_view View() const { return {bytes, N - 1}; }
};

namespace detail {
template <Utf8Literal literal>
consteval auto Encode() {
    struct {
        char bytes[sizeof(literal.bytes)]{};
        std::size_t size = 0;
    } encoded;
    auto rest = literal.View();
    while (!rest.empty())
        encoded.bytes[encoded.size++] = static_cast<char>(EncodeStrictly(TakeUtf8(rest)));
    return encoded;
}
template <Utf8Literal literal>
inline constexpr auto encoded = Encode<literal>();
} // namespace detail

/// "Não"_w: a source literal (UTF-8) turned into Windows-1252 at compile time. What Windows-1252 cannot hold
/// does not compile. The view lives as long as the program.
template <Utf8Literal literal>
consteval TextView operator""_w() {
    return {detail::encoded<literal>.bytes, detail::encoded<literal>.size};
}

} // namespace ondrilo
