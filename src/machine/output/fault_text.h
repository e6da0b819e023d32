// The run-time's words for faults, as the box of a fault shows them.
#pragma once

#include <string>

namespace veldrin {

/// Those for an unknown fault where the run-time has none of its own.
std::string FaultText(int number);

}  // namespace veldrin
