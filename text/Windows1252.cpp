#include "text/Windows1252.h"

namespace ondrilo {

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty())
        text += static_cast<char>(Encode(TakeUtf8(utf8)).value_or('?'));
    return text;
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        const char32_t codePoint = CodePointOf(c);
        if (codePoint < 0x80) {
            utf8 += static_cast<char>(codePoint);
        } else if (codePoint < 0x800) {
            utf8 += static_cast<char>(0xC0 | codePoint >> 6);
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | codePoint >> 12);
            utf8 += static_cast<char>(0x80 | (codePoint >> 6 & 0x3F));
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        }
    }
    return utf8;
}

} // namespace ondrilo
