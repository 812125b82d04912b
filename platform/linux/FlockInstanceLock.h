#pragma once

#include "platform/InstanceLock.h"

namespace ondrilo {

/// A lock on an open file, which the kernel takes back when the process ends and which no program started
/// from here inherits. The file itself may stay behind; it means nothing.
class FlockInstanceLock : public InstanceLock {
  public:
    FlockInstanceLock() = default;
    FlockInstanceLock(const FlockInstanceLock&) = delete;
    FlockInstanceLock& operator=(const FlockInstanceLock&) = delete;
    ~FlockInstanceLock() override;
    /// Where the file cannot even be made, there is nobody to ask, and the answer is true: a person must be
    /// able to write on a damaged machine too.
    [[nodiscard]] bool Acquire(const std::filesystem::path& file) override;

  private:
    int descriptor = -1;
};

} // namespace ondrilo
