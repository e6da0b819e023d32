// Notices of the simulated machine: nobody reads them, and all are kept.
#pragma once

#include "platform/notices.h"

#include <utility>
#include <vector>

namespace veldrin {

struct SimulatedNotices : Notices {
  /// Since the machine's start, the oldest first.
  std::vector<Notice> told;

  void Tell(Notice notice) override { told.push_back(std::move(notice)); }
};

}  // namespace veldrin
