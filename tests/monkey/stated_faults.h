// The ways in which the program ends by an error box on purpose, as data: each with its reason, and with what
// must have been the case. Any other fault is a finding.
#pragma once

#include "tests/monkey/oracle/oracle.h"

#include <vector>

namespace veldrin::monkey {

struct StatedFault {
  /// Number of the fault.
  int fault;
  const char* reason;
  /// Whether the last action, and what stands behind it, are such a case.
  bool (*isCase)(const Look& look);
};

const std::vector<StatedFault>& StatedFaults();

/// The case that the program has just ended by; null for no fault, and for one that is no such case.
const StatedFault* StatedFaultOf(const Look& look);

}  // namespace veldrin::monkey
