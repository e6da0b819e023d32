#include "simulated/simulated_clock.h"

#include <algorithm>
#include <utility>

namespace veldrin {

void SimulatedClock::WindowLoaded(Window& window) {
  for (Control* const control : window.controls) {
    if (control->kind != ControlKind::Timer) continue;
    Counting& counting = timers_.emplace_back(Counting{static_cast<TimerControl*>(control), kNever});
    Restart(counting);
  }
}

void SimulatedClock::WindowUnloaded(const Window& window) {
  std::erase_if(timers_, [&](const Counting& counting) { return &counting.timer->window == &window; });
}

void SimulatedClock::TimerChanged(TimerControl& timer, std::string_view slot) {
  if (slot != "Enabled" && slot != "Interval") return;
  const auto found = std::find_if(timers_.begin(), timers_.end(),
                                  [&](const Counting& counting) { return counting.timer == &timer; });
  if (found != timers_.end()) Restart(*found);
}

void SimulatedClock::Restart(Counting& counting) const {
  const int interval = counting.timer->Interval;
  counting.due = counting.timer->Enabled && interval > 0 ? now_ + interval : kNever;
}

SimulatedClock::Counting* SimulatedClock::NextDue(std::int64_t end) {
  const auto first = std::min_element(timers_.begin(), timers_.end(),
                                      [](const Counting& a, const Counting& b) { return a.due < b.due; });
  return first == timers_.end() || first->due > end ? nullptr : &*first;
}

void SimulatedClock::Advance(std::int64_t milliseconds, const RunEvent& runEvent) {
  struct Outer {
    SimulatedClock& clock;
    const RunEvent* runEvent;
    std::int64_t end;
    ~Outer() {
      clock.runEvent_ = runEvent;
      clock.end_ = end;
    }
  };
  const Outer outer{*this, runEvent_, end_};
  runEvent_ = &runEvent;
  end_ = now_ + milliseconds;
  FinishAdvance();
}

void SimulatedClock::FinishAdvance() {
  if (runEvent_ == nullptr) return;
  const RunEvent& runEvent = *runEvent_;
  const std::int64_t end = end_;
  while (Counting* const next = NextDue(end)) {
    now_ = std::max(now_, next->due);
    Restart(*next);
    // The event may load and unload windows: `next` is not good any more.
    runEvent(*next->timer);
  }
  now_ = std::max(now_, end);
}

}  // namespace veldrin
