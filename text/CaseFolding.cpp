#include "text/CaseFolding.h"

#include <array>

namespace ondrilo {
namespace {

struct FoldingTables {
    std::array<char, 256> lower{};
    std::array<char, 256> upper{};
};

constexpr FoldingTables MakeTables() {
    FoldingTables tables;
    for (unsigned code = 0; code < 256; ++code)
        tables.lower[code] = tables.upper[code] = static_cast<char>(code);
    auto pair = [&tables](unsigned capital, unsigned small) {
        tables.lower[capital] = static_cast<char>(small);
        tables.upper[small] = static_cast<char>(capital);
    };
    for (unsigned code = 'A'; code <= 'Z'; ++code)
        pair(code, code + 0x20);
    for (unsigned code = 0xC0; code <= 0xDE; ++code)
        if (code != 0xD7) // the multiplication sign, whose "partner" is the division sign
            pair(code, code + 0x20);
    for (const unsigned code : {0x8AU, 0x8CU, 0x8EU})
        pair(code, code + 0x10);
    pair(0x9F, 0xFF);
    return tables;
}

constexpr FoldingTables kTables = MakeTables();

} // namespace

char MakeLower(char c) {
    return kTables.lower[static_cast<unsigned char>(c)];
}

char MakeUpper(char c) {
    return kTables.upper[static_cast<unsigned char>(c)];
}

Text MakeLower(TextView text) {
    Text folded(text);
    for (char& c : folded)
        c = MakeLower(c);
    return folded;
}

Text MakeUpper(TextView text) {
    Text folded(text);
    for (char& c : folded)
        c = MakeUpper(c);
    return folded;
}

} // namespace ondrilo
