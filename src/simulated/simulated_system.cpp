#include "simulated/simulated_system.h"

#include "runtime/text.h"

namespace veldrin {

std::optional<std::string> SimulatedProfile::International(const std::string& entry) const {
  if (EqualsIgnoringCase(entry, "iCountry")) return iCountry;
  if (EqualsIgnoringCase(entry, "sDecimal")) return sDecimal;
  if (EqualsIgnoringCase(entry, "sThousand")) return sThousand;
  return std::nullopt;
}

std::string SimulatedEnvironment::Variable(const std::string& name) const {
  const auto exact = variables_.find(name);
  if (exact != variables_.end()) return exact->second.value_or("");
  for (const auto& [other, value] : variables_) {
    if (value && EqualsIgnoringCase(other, name)) return *value;
  }
  return "";
}

void SimulatedEnvironment::Put(const std::string& name, const std::optional<std::string>& value) {
  const auto exact = variables_.find(name);
  if (exact != variables_.end()) {
    exact->second = value;
    return;
  }
  bool found = false;
  for (auto& [other, held] : variables_) {
    if (!EqualsIgnoringCase(other, name)) continue;
    held = value;
    found = true;
  }
  if (!found) variables_[name] = value;
}

}  // namespace veldrin
