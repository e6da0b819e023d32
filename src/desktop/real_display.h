// What Qt says about the display.
#pragma once

#include <QString>

namespace veldrin {

/// Whether a message of Qt's tells that the connection to the display is gone. Qt ends the process after it.
bool TellsLostDisplay(const QString& message);

}  // namespace veldrin
