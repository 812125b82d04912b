#include "platform/linux/FlockInstanceLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ondrilo {

FlockInstanceLock::~FlockInstanceLock() {
    if (descriptor >= 0)
        close(descriptor);
}

bool FlockInstanceLock::Acquire(const std::filesystem::path& file) {
    if (descriptor >= 0)
        return true;
    std::error_code ignored;
    std::filesystem::create_directories(file.parent_path(), ignored);
    descriptor = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0)
        return true;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
        return true;
    close(descriptor);
    descriptor = -1;
    return false;
}

} // namespace ondrilo
