#pragma once

#include <csignal>
#include <sys/resource.h>

namespace ondrilo {

/// While it lives, no file can grow beyond so many bytes.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        (void)std::signal(SIGXFSZ, SIG_IGN);
        (void)::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        (void)::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { (void)::setrlimit(RLIMIT_FSIZE, &before); }

  private:
    rlimit before{};
};

} // namespace ondrilo
