// Lines of the script language, made and taken apart.
#pragma once

#include "script/script_words.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace veldrin::monkey {

/// `text` as one word of a script, whatever characters it holds.
std::string AsWord(std::string_view text);

/// A line of words that stand as they are given.
std::string Line(std::initializer_list<std::string> words);

/// One line of a script that was done, taken apart.
struct Deed {
  Deed() = default;
  explicit Deed(const std::string& theLine);

  std::string line;
  std::vector<Word> words;
  std::string command;
  /// What it was done to: "Form2", "Label12", 3. Empty and -1 where there is none.
  std::string window;
  std::string control;
  int index = -1;

  bool Is(std::string_view aCommand) const { return command == aCommand; }
  /// Whether it was done to the control, or to any element of an array of this name.
  bool On(std::string_view aWindow, std::string_view aControl) const {
    return window == aWindow && control == aControl;
  }
  /// The word behind the target, empty where there is none.
  std::string Argument() const { return words.size() > 2 ? words[2].text : ""; }
};

}  // namespace veldrin::monkey
