// The tyre that was measured, in words.
#pragma once

#include "plan/tyre/tyre_fit.h"

#include <ostream>

namespace veldrin {

/// The length, its spread, and each point with what it is off.
void WriteTyreTable(std::ostream& out, const TyreFit& fit);

/// A line of names, then one line for each point.
void WriteTyreCsv(std::ostream& out, const TyreFit& fit);

}  // namespace veldrin
