// veldrin-plan as a function: what main() is made of, and what the tests call.
#pragma once

#include "platform/text_encoding.h"

#include <ostream>
#include <string>
#include <vector>

namespace veldrin {

/// Runs the planner with the arguments behind its name, on a machine with these code pages. Results go to
/// `out`, everything else, one line a fault, to `errors`. Returns the exit status: 0 done, 1 no plan found, 2
/// bad input.
int RunPlanner(const std::vector<std::string>& arguments, const CodePages& pages, std::ostream& out,
               std::ostream& errors);

}  // namespace veldrin
