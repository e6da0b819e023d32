#include "desktop/controls/timer_view.h"

namespace veldrin {

TimerView::TimerView(TimerControl& timer, Stage& stage) : ControlView(timer, stage) {
  QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
    if (control_ == nullptr) return;
    Do([control = control_] {
      static_cast<TimerControl&>(*control).Timer();
      return true;
    });
  });
}

void TimerView::Take(std::string_view slot) {
  if (slot != "Enabled" && slot != "Interval") return;
  const auto& timer = static_cast<const TimerControl&>(*control_);
  if (stage_->servesTimers && timer.Enabled && timer.Interval > 0) {
    clock_.setTimerType(Qt::PreciseTimer);
    clock_.start(timer.Interval);
  } else {
    clock_.stop();
  }
}

}  // namespace veldrin
