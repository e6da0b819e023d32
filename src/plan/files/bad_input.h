// What is wrong with a file, on its way to the one place that prints it.
#pragma once

#include <string>

namespace veldrin {

/// `text` is one line, the file in front: "DRY.nx4:12: ...".
struct BadInput {
  std::string text;
};

/// A fault of the whole file, and one of its line.
[[noreturn]] inline void RefuseFile(const std::string& path, const std::string& why) {
  throw BadInput{path + ": " + why};
}
[[noreturn]] inline void RefuseLine(const std::string& path, int line, const std::string& why) {
  throw BadInput{path + ':' + std::to_string(line) + ": " + why};
}

}  // namespace veldrin
