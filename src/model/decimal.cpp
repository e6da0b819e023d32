#include "model/decimal.h"

#include "runtime/conversion.h"

namespace veldrin {

std::string FixDecimal(const Workspace& workspace, const std::string& text) {
  const bool comma = workspace.DecimalSep == ",";
  std::string repaired = text;
  const std::size_t at = repaired.find(comma ? '.' : ',');
  if (at != std::string::npos) repaired[at] = comma ? ',' : '.';
  return repaired;
}

float RepairedSingle(const Workspace& workspace, const std::string& text) {
  return ParseSingle(FixDecimal(workspace, text), DecimalSeparator(workspace));
}

double SystemNumber(const Workspace& workspace, const std::string& text) {
  return ParseNumber(text, DecimalSeparator(workspace));
}

std::int16_t SystemInt16(const Workspace& workspace, const std::string& text) {
  return ParseInt16(text, DecimalSeparator(workspace));
}

std::int32_t SystemInt32(const Workspace& workspace, const std::string& text) {
  return ParseInt32(text, DecimalSeparator(workspace));
}

}  // namespace veldrin
