#include "machine/files/real_leftovers.h"

#include "platform/paths.h"
#include "runtime/fault.h"

#include <vector>

namespace veldrin {

void DeleteLeftovers(Files& files, const RealInstances& instances, const std::string& folder) {
  const PathRules rules = files.Rules();
  const std::string place = TrimRoot(rules, folder);
  std::vector<std::string> names;
  Guarded([&] { names = files.FileNames(JoinPath(rules, place, ""), "veld???.tmp"); });
  // A copy that starts now counts before it takes a name, and takes none that is in the list.
  if (names.empty() || !instances.Counts() || instances.Others() > 0) return;
  for (const std::string& name : names) {
    Guarded([&] { files.Delete(JoinPath(rules, place, name)); });
  }
}

}  // namespace veldrin
