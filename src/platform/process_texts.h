// What the system hands to a process, as UTF-8: on Windows main() and getenv() have it in a page that lacks
// most characters.
#pragma once

#include <string>
#include <vector>

namespace veldrin {

/// The words behind the program's name. `count` and `words` are main()'s own.
std::vector<std::string> ArgumentTexts(int count, const char* const* words);

/// A variable's value; empty when there is none.
std::string VariableText(const char* name);

/// While it lives, a console of Windows takes what the program writes for UTF-8. Does nothing elsewhere.
class ConsoleInUtf8 {
 public:
  ConsoleInUtf8();
  ~ConsoleInUtf8();
  ConsoleInUtf8(const ConsoleInUtf8&) = delete;
  ConsoleInUtf8& operator=(const ConsoleInUtf8&) = delete;

 private:
  [[maybe_unused]] unsigned before_ = 0;  // the console's page; 0 for no console
};

}  // namespace veldrin
