#pragma once

#include "text/Text.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <limits>

/// The options of a profile, made from the rows of ProfileOptions.def: typed handles to read and set values
/// with (`option::TEMPO_DE_PREDICAO`), and the rows themselves for readers, writers and dialogs.
namespace ondrilo {

enum class OptionKind {
    Switch,     ///< on or off; any value but 0 is on
    Number,     ///< a 32-bit integer
    Ticks,      ///< milliseconds that ticks are counted up to: what is no multiple of a tick never comes
    Color,      ///< 0x00BBGGRR, in decimal
    Real,       ///< six decimals in the file
    Text,       ///< one word: what follows a blank does not survive the file
    SpacedText, ///< text whose blanks stand as ";;;" in the file
};

enum class IntegerOption : std::size_t {
#define OPTION_INTEGER(kind, key, standard, least, most, label) key,
#include "profiles/ProfileOptions.def"
};
enum class RealOption : std::size_t {
#define OPTION_REAL(key, label) key,
#include "profiles/ProfileOptions.def"
};
enum class TextOption : std::size_t {
#define OPTION_TEXT(kind, key, standard, label) key,
#include "profiles/ProfileOptions.def"
};

namespace option {
using enum IntegerOption;
using enum RealOption;
using enum TextOption;
} // namespace option

inline constexpr std::size_t kIntegerOptions =
    std::initializer_list<IntegerOption>{
#define OPTION_INTEGER(kind, key, standard, least, most, label) IntegerOption::key,
#include "profiles/ProfileOptions.def"
    }
        .size();
inline constexpr std::size_t kRealOptions =
    std::initializer_list<RealOption>{
#define OPTION_REAL(key, label) RealOption::key,
#include "profiles/ProfileOptions.def"
    }
        .size();
inline constexpr std::size_t kTextOptions =
    std::initializer_list<TextOption>{
#define OPTION_TEXT(kind, key, standard, label) TextOption::key,
#include "profiles/ProfileOptions.def"
    }
        .size();

inline constexpr int kMostInteger = std::numeric_limits<int>::max();

/// One row of the table. `index` is the value of the row's handle among the handles of its type.
struct ProfileOption {
    OptionKind kind;
    TextView key;
    std::size_t index;
    int standard;          ///< default of an integer
    int least, most;       ///< what the dialog offers of an integer
    TextView standardText; ///< default of a text
    TextView label;        ///< in the options dialog; empty where the control has none of its own

    [[nodiscard]] constexpr bool IsInteger() const { return kind <= OptionKind::Color; }
    [[nodiscard]] constexpr bool IsText() const { return kind >= OptionKind::Text; }
    /// Values are multiples of it.
    [[nodiscard]] constexpr int Step() const { return kind == OptionKind::Ticks ? 100 : 1; }
};

/// All rows in the order of the file.
inline constexpr std::array<ProfileOption, kIntegerOptions + kRealOptions + kTextOptions> kProfileOptions{{
#define OPTION_INTEGER(kind, key, standard, least, most, label)                                              \
    {OptionKind::kind, #key, static_cast<std::size_t>(IntegerOption::key), standard, least, most, {}, label},
#define OPTION_REAL(key, label)                                                                              \
    {OptionKind::Real, #key, static_cast<std::size_t>(RealOption::key), 0, 0, 0, {}, label},
#define OPTION_TEXT(kind, key, standard, label)                                                              \
    {OptionKind::kind, #key, static_cast<std::size_t>(TextOption::key), 0, 0, 0, standard, label},
#include "profiles/ProfileOptions.def"
}};

/// The row of a key, or null for a word that is no key. Case counts.
[[nodiscard]] const ProfileOption* FindProfileOption(TextView key);

/// The row of a handle.
[[nodiscard]] const ProfileOption& RowOf(IntegerOption option);
[[nodiscard]] const ProfileOption& RowOf(RealOption option);
[[nodiscard]] const ProfileOption& RowOf(TextOption option);

/// `value` or, if it is no multiple of `step`, the multiple next to it; `least` for one below 0, which
/// nothing counts up to.
[[nodiscard]] int OnStep(int value, int step, int least);

} // namespace ondrilo
