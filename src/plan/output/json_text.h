// Texts and plans as values of JSON.
#pragma once

#include "plan/output/found_plans.h"

#include <ostream>
#include <string>

namespace veldrin {

/// The text in quotation marks, with what JSON does not allow in them escaped.
std::string JsonText(const std::string& text);

/// The object of a plan, as it stands in the array "plans".
void WriteJsonPlan(std::ostream& out, const FoundPlan& plan);

}  // namespace veldrin
