// A machine as the console holds it: the workspace of a list, without windows.
#pragma once

#include "model/workspace.h"

#include <cstdint>
#include <string>

namespace veldrin {

// What the running conditions are where neither the list nor an option says otherwise; the settings of a new
// installation.
inline constexpr float kDefaultTyreLength = 1.9F;       // metres
inline constexpr std::int16_t kDefaultShiftNe = 13000;  // rev/min
inline constexpr std::int16_t kDefaultCheckNe = 10000;  // rev/min
inline constexpr std::int16_t kDefaultMaxNe = 15000;    // rev/min
inline constexpr std::int16_t kDefaultMaxSpeed = 340;   // km/h

/// Fills the tables from a list's text as the program's window does. Raises nothing; of a list that cannot be
/// read what comes before the first wrong keyword is filled.
Workspace ReadMachine(const std::string& listText);

}  // namespace veldrin
