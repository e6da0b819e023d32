#include "model/file_tags.h"

#include "runtime/fault.h"
#include "runtime/text.h"

namespace veldrin {

bool IsListTag(std::string_view tag) {
  return tag.starts_with("LIST");
}

bool IsPlanTag(std::string_view tag) {
  return tag.starts_with("FROM");
}

std::string PlanTag(const std::string& machineName) {
  return "FROM:" + machineName + ".RAT";
}

std::string MachineOfPlan(const std::string& tag) {
  constexpr int kNameStart = 6;  // behind "FROM:"
  const int nameLength = Find(tag, ".") - kNameStart;
  if (nameLength < 0) Raise(kFaultBadCall);
  return Mid(tag, kNameStart, nameLength);
}

}  // namespace veldrin
