#pragma once

#include <array>

namespace ondrilo {

/// The virtual keys that a target reports but does not process, at most 20; what comes after that is dropped.
class BlockedKeys {
  public:
    BlockedKeys() { Clear(); }
    void Add(int first, int last);
    void Remove(int first, int last);
    void Clear() { codes.fill(kFree); }
    [[nodiscard]] bool Contains(int code) const;

  private:
    static constexpr int kFree = -1;
    std::array<int, 20> codes{};
};

} // namespace ondrilo
