#pragma once

#include <filesystem>

namespace ondrilo {

/// The mark that a process of this person runs. It dies with its process, however that ends.
class InstanceLock {
  public:
    virtual ~InstanceLock() = default;
    /// False if another process holds the lock; neither case changes anything that others see.
    [[nodiscard]] virtual bool Acquire(const std::filesystem::path& file) = 0;
};

} // namespace ondrilo
