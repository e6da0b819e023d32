// What a script prints and expects.
//
//   show NAME                        expect NAME VALUE...          expect-not NAME VALUE...
//   expect NAME ~ VALUE... TOLERANCE       expect NAME has TEXT...
//
// A range of subscripts takes one value for each.
#pragma once

#include "script/script_words.h"
#include "script/script_world.h"

#include <string>
#include <vector>

namespace veldrin {

/// An expectation that did not hold, in full.
struct Failure {
  std::string name;
  std::string expected;
  std::string found;
};

/// Prints the answers to the question in `words`, behind the command. Empties the log when that was asked.
/// Throws ScriptError, as the next one does, for a wrong question or number of words.
void Show(ScriptWorld& world, const std::vector<Word>& words);

/// Holds the question's answers against what the words behind it expect; those that differ come back. With
/// `wanted` false, those that do not differ.
std::vector<Failure> Expect(ScriptWorld& world, const std::vector<Word>& words, bool wanted);

}  // namespace veldrin
