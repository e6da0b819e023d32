// A user without rights, in a process of its own; Linux alone has them as numbers.
#pragma once

#include "tests/desktop/child_process.h"

#include <functional>
#include <unistd.h>

namespace veldrin {

inline constexpr uid_t kNobody = 65534;

/// What `work` returns in a process of its own that has no rights beyond those of a plain user.
inline int AsPlainUser(const std::function<int()>& work) {
  return WaitForChild(StartChild([&] {
    const bool plain = geteuid() != 0 || setuid(kNobody) == 0;
    return plain ? work() : 255;
  }));
}

}  // namespace veldrin
