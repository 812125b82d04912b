#pragma once

#include "platform/FileStore.h"
#include "profiles/ProfileOptions.h"

#include <array>
#include <filesystem>

namespace ondrilo {

/// The options of one person. A plain value: copied whole, never validated. See ProfileOptions.def for the
/// options; the file holds one "KEY value" a line, in Windows-1252.
class CUserProfileProperties {
  public:
    CUserProfileProperties();

    [[nodiscard]] int Get(IntegerOption option) const { return integers[static_cast<std::size_t>(option)]; }
    [[nodiscard]] double Get(RealOption option) const { return reals[static_cast<std::size_t>(option)]; }
    [[nodiscard]] const Text& Get(TextOption option) const { return texts[static_cast<std::size_t>(option)]; }
    /// True for any value but 0.
    [[nodiscard]] bool IsOn(IntegerOption option) const { return Get(option) != 0; }
    void Set(IntegerOption option, int value) { integers[static_cast<std::size_t>(option)] = value; }
    void Set(RealOption option, double value) { reals[static_cast<std::size_t>(option)] = value; }
    void Set(TextOption option, TextView value) { texts[static_cast<std::size_t>(option)] = value; }

    /// The time spans of a weekday, 1 (Sunday) to 7 (Saturday); empty for any other number.
    [[nodiscard]] TextView GetTimeSpans(int weekday) const;

    /// Remembers `path` as the profile's file and takes over what the file holds; an absent file changes no
    /// option and is no error.
    void Load(const std::filesystem::path& path);
    /// Writes `filePath`.
    SaveResult Save() const;

    /// As Load, from the bytes of a file.
    void Parse(TextView bytes);
    /// The bytes that Save writes.
    [[nodiscard]] Text Format() const;

    /// Not in the file.
    Text profileName;
    std::filesystem::path filePath;
    std::filesystem::path dictionaryFolder;
    /// Follows the keyboard on show; Parse sets it together with NOME_TECLADO, which alone is written.
    Text activeKeyboardName = "QwertySimples";

  private:
    void Assign(const ProfileOption& option, TextView line);

    std::array<int, kIntegerOptions> integers{};
    std::array<double, kRealOptions> reals{};
    std::array<Text, kTextOptions> texts;
};

} // namespace ondrilo
