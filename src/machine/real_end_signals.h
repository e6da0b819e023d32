// The signals by which a system without session managers asks a program to end: SIGTERM, SIGHUP and SIGINT.
// Windows has its own way for this, which Qt knows.
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace veldrin {

/// While one lives, the signals do not end the process but call `end`, from the event loop. Those that were
/// ignored before stay so, as for a program that is to outlast its terminal. A program that still runs some
/// seconds after the first signal hangs: the next one ends it as the system would have.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> end);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  std::function<void()> end_;
  std::unique_ptr<QSocketNotifier> heard_;
};

}  // namespace veldrin
