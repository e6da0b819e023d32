// Questions: what a script may ask by a name, of the windows, the workspace, the machine and the script's own
// run. Nothing is changed by asking.
#pragma once

#include "script/script_slots.h"
#include "script/script_words.h"
#include "script/script_world.h"

#include <string>
#include <vector>

namespace veldrin {

struct Asked {
  /// The name as the script writes it, a range replaced by the subscript in its turn.
  std::string name;
  Answer answer;
};

/// The answers to the question that begins at `words[at]`, one for each subscript of a range; `at` moves
/// behind the question. Throws ScriptError for an unknown name.
std::vector<Asked> Ask(ScriptWorld& world, const std::vector<Word>& words, std::size_t& at);

/// A root of the registry by its word. Throws ScriptError for others.
RegistryRoot RootOf(const std::string& word);

}  // namespace veldrin
