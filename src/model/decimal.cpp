#include "model/decimal.h"

namespace veldrin {

std::string FixDecimal(const Workspace& workspace, const std::string& text) {
  const bool comma = workspace.DecimalSep == ",";
  std::string repaired = text;
  const std::size_t at = repaired.find(comma ? '.' : ',');
  if (at != std::string::npos) repaired[at] = comma ? ',' : '.';
  return repaired;
}

}  // namespace veldrin
