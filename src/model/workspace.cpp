#include "model/workspace.h"

#include "runtime/conversion.h"
#include "runtime/number_format.h"

namespace veldrin {

std::string RatioText(int drive, int driven) {
  std::string text = std::to_string(drive) + "-" + std::to_string(driven);
  text.resize(kRatioTextLength, ' ');
  return text;
}

char DecimalSeparator(const Workspace& workspace) {
  const std::string& separator = workspace.DecimalSep;
  const bool plain = separator.size() == 1 && static_cast<unsigned char>(separator.front()) < 0x80;
  return plain ? separator.front() : '.';
}

std::string FormatSingle(const Workspace& workspace, float value, const char* format) {
  return FormatNumber(value, format, DecimalSeparator(workspace));
}

std::string SingleText(const Workspace& workspace, float value) {
  return ShortestText(value, DecimalSeparator(workspace));
}

}  // namespace veldrin
