// The text of a script, line by line, with what its messages tell: file, line and the phase, which is the
// last comment that has lines of its own.
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

class ScriptSource {
 public:
  /// `name` stands in messages; files that the script names lie in `folder`, as the real machine spells it.
  ScriptSource(std::istream& text, std::string name, std::string folder);

  /// The next line that is no comment; nothing at the end.
  std::optional<std::string> NextLine();
  /// The lines up to one that is just "end", raw. Throws ScriptError where that is missing.
  std::vector<std::string> NextBlock();

  const std::string& Name() const { return name_; }
  const std::string& Folder() const { return folder_; }
  /// "FILE:LINE", of the line that NextLine gave last.
  std::string Place() const { return name_ + ":" + std::to_string(line_); }
  const std::string& Phase() const { return phase_; }

 private:
  std::string name_;
  std::string folder_;
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  std::size_t line_ = 0;
  std::string phase_;
};

}  // namespace veldrin
