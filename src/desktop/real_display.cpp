#include "desktop/real_display.h"

#include <QtGlobal>

namespace veldrin {

bool TellsLostDisplay(const QString& message) {
  // Newer versions can be asked to find it again.
  if (qEnvironmentVariableIsSet("QT_WAYLAND_RECONNECT")) return false;
  return message.contains("connection broke") || message.contains("connection experienced a fatal error");
}

}  // namespace veldrin
