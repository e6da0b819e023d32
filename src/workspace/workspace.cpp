#include "workspace/workspace.h"

#include "runtime/conversion.h"
#include "runtime/number_format.h"

namespace veldrin {

std::string RatioText(int drive, int driven) {
  std::string text = std::to_string(drive) + "-" + std::to_string(driven);
  text.resize(kRatioTextLength, ' ');
  return text;
}

char DecimalSeparator(const Workspace& workspace) {
  return workspace.DecimalSep.empty() ? '.' : workspace.DecimalSep.front();
}

std::string FormatSingle(const Workspace& workspace, float value, const char* format) {
  return FormatNumber(value, format, DecimalSeparator(workspace));
}

std::string SingleText(const Workspace& workspace, float value) {
  return ShortestText(value, DecimalSeparator(workspace));
}

}  // namespace veldrin
