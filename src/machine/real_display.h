// What Qt says about the display.
#pragma once

#include <QString>

namespace veldrin {

/// Whether a message of Qt's tells that the connection to the display is gone. Qt ends the process after it.
bool TellsLostDisplay(const QString& message);

/// What to tell of a message after which Qt ends the process, in one line: how a display is named where there
/// is none, else Qt's own words.
QString FatalText(const QString& message);

}  // namespace veldrin
