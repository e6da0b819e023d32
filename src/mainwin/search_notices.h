// What a search came to, told beside the window: how many plans and how near, or why there is none and what
// comes nearest.
#pragma once

#include "calc/search_bounds.h"
#include "workspace/program.h"

namespace veldrin {

/// A search has found the plans of `PlanList`. Raises nothing.
void TellFound(Program& program);

/// A search with these bounds has found nothing. Looks at all combinations once, in about the time of the
/// search. Raises nothing.
void TellWhyNone(Program& program, const SearchBounds& bounds);

}  // namespace veldrin
