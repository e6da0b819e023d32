// Who is writing to the controls: `CallerWord` is set here and nowhere else, but for a machine that comes
// back (files/kept_machine.h), for which the words that the tries of another one have left standing are
// emptied.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Sets the word and leaves it standing, where a rule has it outlast its routine; who calls says until when.
inline void StayUnder(Program& program, const std::string& word) {
  program.workspace.CallerWord = word;
}

/// Runs `action` under a word, and then empties the word, whatever it held before. A fault that passes leaves
/// the word as it stands; who goes on after the fault empties it.
template <class Action>
void Under(Program& program, const char* word, Action action) {
  StayUnder(program, word);
  action();
  StayUnder(program, caller::kUser);
}

/// Runs `action`, and then puts back the word that stood before, whatever the action left. A fault that
/// passes leaves the word as it stands.
template <class Action>
void KeepingCaller(Program& program, Action action) {
  const std::string before = program.workspace.CallerWord;
  action();
  StayUnder(program, before);
}

}  // namespace veldrin
