// Plans as a drawing or as a page to be printed.
#pragma once

#include "plan/page/page_words.h"
#include "plan/sheet/plan_sheet.h"
#include "plan/tyre/tyre_fit.h"

#include <ostream>
#include <string>
#include <vector>

namespace veldrin {

/// The chart of the plans as SVG: the plot with its scales, a legend, and measured points as dots. As a file
/// of its own, or as an element of a page. There is at least one plan. Raises what DrawPlans does.
void WriteSvg(std::ostream& out, const PageWords& words, const std::vector<PlanSheet>& sheets,
              const TyreFit* tyre);

/// One self-contained page of HTML for A4: chart, figures, parts and remark of each plan. Raises as WriteSvg.
void WriteHtml(std::ostream& out, const PageWords& words, const std::vector<PlanSheet>& sheets,
               const TyreFit* tyre);

/// Either of the two. Nothing where there are no plans.
void WritePage(std::ostream& out, bool html, bool japanese, const std::vector<PlanSheet>& sheets,
               const TyreFit* tyre);

/// The text with what has a meaning in markup escaped; characters that markup cannot hold become "?".
std::string MarkupText(const std::string& text);

}  // namespace veldrin
