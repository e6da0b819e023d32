#include "simulated/simulated_registry.h"

#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

/// A key as it is compared: in lower case, without backslashes at its ends.
std::string Folded(const std::string& key) {
  const auto first = key.find_first_not_of('\\');
  if (first == std::string::npos) return "";
  return LowerCase(key.substr(first, key.find_last_not_of('\\') - first + 1));
}

bool IsAtOrBelow(const std::string& key, const std::string& top) {
  return key == top || key.starts_with(top + "\\");
}

}  // namespace

std::optional<std::string> SimulatedRegistry::Read(RegistryRoot root, const std::string& key,
                                                   const std::string& value) const {
  const auto place = keys_.find({root, Folded(key)});
  if (place == keys_.end()) return std::nullopt;
  const auto found = place->second.find(LowerCase(value));
  if (found == place->second.end()) return std::nullopt;
  return found->second;
}

bool SimulatedRegistry::Write(RegistryRoot root, const std::string& key, const std::string& value,
                              const std::string& text) {
  if (refusesWrites) return false;
  keys_[{root, Folded(key)}][LowerCase(value)] = text;
  return true;
}

bool SimulatedRegistry::DeleteKey(RegistryRoot root, const std::string& key) {
  const std::string top = Folded(key);
  if (refusesWrites || top.empty()) return false;
  return std::erase_if(keys_, [&](const auto& entry) {
           return entry.first.first == root && IsAtOrBelow(entry.first.second, top);
         }) > 0;
}

bool SimulatedRegistry::HasKey(RegistryRoot root, const std::string& key) const {
  const std::string top = Folded(key);
  return std::any_of(keys_.begin(), keys_.end(), [&](const auto& entry) {
    return entry.first.first == root && (top.empty() || IsAtOrBelow(entry.first.second, top));
  });
}

}  // namespace veldrin
