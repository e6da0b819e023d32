// Notices on their way to whoever shows them on the desktop.
#pragma once

#include "platform/notices.h"

#include <functional>
#include <utility>

namespace veldrin {

class RealNotices : public Notices {
 public:
  /// Takes each notice; where nobody does, it is lost.
  std::function<void(Notice notice)> told;

  void Tell(Notice notice) override {
    if (told) told(std::move(notice));
  }
};

}  // namespace veldrin
