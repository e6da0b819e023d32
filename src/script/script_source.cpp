#include "script/script_source.h"

#include "script/script_error.h"

#include <utility>

namespace veldrin {

ScriptSource::ScriptSource(std::istream& text, std::string name, std::string folder)
    : name_(std::move(name)), folder_(std::move(folder)) {
  static const std::string kByteOrderMark = "\xEF\xBB\xBF";
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines_.push_back(line);
  }
  if (!lines_.empty() && lines_[0].rfind(kByteOrderMark, 0) == 0) lines_[0].erase(0, kByteOrderMark.size());
}

std::optional<std::string> ScriptSource::NextLine() {
  for (bool commentGoesOn = false; next_ < lines_.size();) {
    const std::string& line = lines_[next_++];
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos) {
      commentGoesOn = false;
    } else if (line[first] == '#') {
      const std::size_t text = line.find_first_not_of("# \t", first);
      const std::string comment = text == std::string::npos ? "" : line.substr(text);
      phase_ = commentGoesOn ? phase_ + " " + comment : comment;
      commentGoesOn = true;
    } else {
      line_ = next_;
      return line;
    }
  }
  return std::nullopt;
}

std::vector<std::string> ScriptSource::NextBlock() {
  std::vector<std::string> block;
  while (next_ < lines_.size()) {
    if (lines_[next_] == "end") {
      ++next_;
      return block;
    }
    block.push_back(lines_[next_++]);
  }
  throw ScriptError{"the line \"end\" is missing behind the file's lines"};
}

}  // namespace veldrin
