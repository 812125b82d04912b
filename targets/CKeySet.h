#pragma once

#include "text/Text.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace ondrilo {

/// The table between key names ("BkSp", "Esquerda", "a") and virtual key codes, with two properties by code:
/// reserved keys write or steer the text and can take no special role; combinable ones can be the main key of
/// a sequence.
class CKeySet {
  public:
    /// Nothing happens if the name or the code is known already.
    void AddKey(TextView name, int code, bool reserved, bool combinable);
    /// Leaves the properties of the code as they are.
    void AddKey(TextView name, int code);
    /// A combinable key.
    void AddKey(TextView name, int code, bool reserved);
    void Clear();

    [[nodiscard]] std::optional<int> GetCode(TextView name) const;
    [[nodiscard]] std::optional<Text> GetName(int code) const;

    [[nodiscard]] bool IsReserved(int code) const;
    /// For a key that takes a special role of the session, or gives it up.
    void SetReserved(int code, bool value);
    [[nodiscard]] bool IsReservedName(TextView name) const;
    [[nodiscard]] bool IsCombinableName(TextView name) const;

    /// By rising code. Free are the keys that are not reserved.
    [[nodiscard]] std::vector<Text> GetFreeKeyNames() const;
    [[nodiscard]] std::vector<Text> GetAllKeyNames() const;

  private:
    static constexpr int kCodes = 256;
    static bool HasProperties(int code) { return code >= 0 && code < kCodes; }

    std::map<Text, int, std::less<>> keyCodes;
    std::map<int, Text> keyNames;
    std::array<bool, kCodes> reserved{};
    std::array<bool, kCodes> combinable{};
};

/// The keys that the program knows by name.
[[nodiscard]] CKeySet StandardKeys();

} // namespace ondrilo
