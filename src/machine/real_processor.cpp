#include "machine/real_processor.h"

#include "runtime/text.h"

#include <QString>
#include <QSysInfo>

#include <fstream>

namespace veldrin {

namespace {

/// What stands behind the colon when `line` begins with `name`; empty otherwise.
std::string Told(const std::string& line, const std::string& name) {
  const std::size_t colon = line.find(':');
  if (colon == std::string::npos || line.substr(0, line.find_first_of("\t:")) != name) return "";
  return Trim(line.substr(colon + 1));
}

}  // namespace

ProcessorNames ReadProcessorNames(std::istream& list) {
  ProcessorNames names;
  for (std::string line; std::getline(list, line);) {
    if (names.vendor.empty()) names.vendor = Told(line, "vendor_id");
    if (names.model.empty()) names.model = Told(line, "model name");
    if (!names.vendor.empty() && !names.model.empty()) break;
  }
  return names;
}

ProcessorNames SystemProcessorNames() {
  std::ifstream list("/proc/cpuinfo");
  ProcessorNames names = ReadProcessorNames(list);
  if (names.model.empty()) names.model = QSysInfo::currentCpuArchitecture().toStdString();
  return names;
}

}  // namespace veldrin
