// Turns of the mouse wheel.
#pragma once

#include <QWheelEvent>

namespace veldrin {

/// Whole turns away from the user, or toward him when negative; fine wheels gather theirs in `rest`.
inline int WheelTurns(const QWheelEvent& event, int& rest) {
  rest += event.angleDelta().y();
  const int turns = rest / QWheelEvent::DefaultDeltasPerStep;
  rest -= turns * QWheelEvent::DefaultDeltasPerStep;
  return turns;
}

}  // namespace veldrin
