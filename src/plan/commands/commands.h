// What veldrin-plan does, one function for each action. What is wrong with a file is thrown as BadInput.
#pragma once

#include "plan/arguments/arguments.h"
#include "platform/text_encoding.h"

#include <ostream>
#include <string>

namespace veldrin {

inline constexpr int kDone = 0;
inline constexpr int kNoPlanFound = 1;
inline constexpr int kBadInput = 2;

/// A call of the program: what is asked for, the code pages of the machine, and where to write.
struct Call {
  const PlanArguments& arguments;
  const CodePages& pages;
  std::ostream& out;     // results
  std::ostream& errors;  // everything else, one line a fault
};

// Each returns the exit status.
int SearchPlans(const Call& call);
int ShowPlan(const Call& call);
int ComparePlans(const Call& call);
int CheckListFile(const Call& call);
int ListFromCsv(const Call& call);
int ListToCsv(const Call& call);

}  // namespace veldrin
