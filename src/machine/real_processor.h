// What is known of the machine's processor.
#pragma once

#include <istream>
#include <string>

namespace veldrin {

struct ProcessorNames {
  std::string vendor;  // such as "GenuineIntel"; empty when unknown
  std::string model;
};

/// The first processor of a list as Linux keeps it in /proc/cpuinfo.
ProcessorNames ReadProcessorNames(std::istream& list);

/// This machine's, its kind standing in for a model that is not told.
ProcessorNames SystemProcessorNames();

}  // namespace veldrin
