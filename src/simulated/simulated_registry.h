// The registry of the simulated machine: three trees of keys with string values, empty at first.
#pragma once

#include "platform/system.h"

#include <map>
#include <string>
#include <utility>

namespace veldrin {

class SimulatedRegistry : public Registry {
 public:
  /// The system refuses to write and to delete.
  bool refusesWrites = false;

  std::optional<std::string> Read(RegistryRoot root, const std::string& key,
                                  const std::string& value) const override;
  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override;
  /// A key that was only made by one below it counts as there. A root itself is refused.
  bool DeleteKey(RegistryRoot root, const std::string& key) override;

  /// Whether the key, or one below it, was made.
  bool HasKey(RegistryRoot root, const std::string& key) const;

 private:
  using Place = std::pair<RegistryRoot, std::string>;

  /// Values by their names in lower case, of keys in lower case.
  std::map<Place, std::map<std::string, std::string>> keys_;
};

}  // namespace veldrin
