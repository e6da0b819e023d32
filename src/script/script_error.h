// A script that is wrong itself: it stops there, with the place in front of the message.
#pragma once

#include <string>

namespace veldrin {

struct ScriptError {
  std::string message;
};

}  // namespace veldrin
