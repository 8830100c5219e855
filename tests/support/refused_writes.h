#pragma once

#include <sys/resource.h>

#include <csignal>

namespace morlek {

/// While it lives, the system refuses every write to a file from this 1-based position on.
class RefusedWrites {
 public:
  explicit RefusedWrites(int position) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = static_cast<rlim_t>(position - 1);
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~RefusedWrites() { setrlimit(RLIMIT_FSIZE, &before_); }
  RefusedWrites(const RefusedWrites&) = delete;
  RefusedWrites& operator=(const RefusedWrites&) = delete;

 private:
  rlimit before_ = {};
};

}  // namespace morlek
