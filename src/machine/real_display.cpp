#include "machine/real_display.h"

#include <QtGlobal>

namespace veldrin {

bool TellsLostDisplay(const QString& message) {
  // Newer versions can be asked to find it again.
  if (qEnvironmentVariableIsSet("QT_WAYLAND_RECONNECT")) return false;
  return message.contains("connection broke") || message.contains("connection experienced a fatal error");
}

QString FatalText(const QString& message) {
  const bool noDisplay =
      message.contains("no Qt platform plugin") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  if (noDisplay) return "the display cannot be opened; DISPLAY or WAYLAND_DISPLAY must name one";
  return message.section('\n', 0, 0);
}

}  // namespace veldrin
