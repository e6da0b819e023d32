// What a file's first field says of it: "LIST" begins a machine list, "FROM:NX4.RAT" a plan of machine NX4.
// The beginning alone counts, in its exact case, whatever follows.
#pragma once

#include <string>
#include <string_view>

namespace veldrin {

bool IsListTag(std::string_view tag);
bool IsPlanTag(std::string_view tag);

/// The first line of a machine's plans.
std::string PlanTag(const std::string& machineName);

/// The machine that a plan's tag names, as written there. Raises fault 5 for a tag without a "." behind the
/// name.
std::string MachineOfPlan(const std::string& tag);

}  // namespace veldrin
