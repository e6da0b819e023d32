// The commands of a script but for show and expect: a table of names, numbers of words and functions for each
// of three matters.
#pragma once

#include "script/script_source.h"
#include "script/script_words.h"
#include "script/script_world.h"

#include <limits>
#include <string>
#include <vector>

namespace veldrin {

/// What a command works on.
struct CommandLine {
  ScriptWorld& world;
  ScriptSource& source;
  /// The command first.
  const std::vector<Word>& words;

  std::size_t Count() const { return words.size(); }
  const std::string& operator[](std::size_t place) const { return words[place].text; }
  /// Whether the word is `text`, without quotes.
  bool Says(std::size_t place, const char* text) const {
    return words[place].plain && words[place].text == text;
  }
};

struct Command {
  const char* name;
  /// Words behind the command.
  std::size_t least;
  std::size_t most;
  /// What stands behind the command, for messages.
  const char* usage;
  void (*run)(const CommandLine& line);
};

inline constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max() - 1;

/// The machine around the program: system, environment, registry, files.
const std::vector<Command>& MachineCommands();
/// What the user does: clicks, keys, windows.
const std::vector<Command>& ActionCommands();
/// The program's run: start, advance, kill, set, call, answer, trace, screenshot.
const std::vector<Command>& ProgramCommands();

/// Throws ScriptError where the command must not have this number of words.
void CheckNumberOfWords(const Command& command, std::size_t words);

}  // namespace veldrin
