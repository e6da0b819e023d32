// Timers, served by the real clock.
#pragma once

#include "desktop/controls/control_view.h"

#include <QTimer>

namespace veldrin {

class TimerView : public ControlView {
 public:
  TimerView(TimerControl& timer, Stage& stage);

  void Take(std::string_view slot) override;

 private:
  QTimer clock_;
};

}  // namespace veldrin
