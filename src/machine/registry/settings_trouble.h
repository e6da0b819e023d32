// What there is to say of the place where the settings are kept, for whoever tells it to people.
#pragma once

#include <functional>
#include <string>

namespace veldrin {

struct SettingsTrouble {
  std::string path;  // of the file
  int fault = 0;     // why it could not be written; 0 for one that was damaged
  std::string copy;  // where the damaged file is kept now
};

using TellSettingsTrouble = std::function<void(const SettingsTrouble&)>;

}  // namespace veldrin
