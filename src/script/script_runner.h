// Runs scripts: reads their lines, does their commands and tells what did not hold.
//
// A modal window of the program reads the next lines inside of the routine that showed it, until it hides. A
// script that ends inside of one ends there.
#pragma once

#include "script/script_hand.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace veldrin {

/// What became of a script; the numbers are exit states of the process.
enum class ScriptVerdict : int { Held = 0, Failed = 1, Wrong = 2 };

/// Runs one script on a machine of its own. What it prints goes to `out`; what failed and is wrong, with file
/// and line, to `err`. `name` stands in messages, `folder` is where files that the script names lie.
ScriptVerdict RunScript(std::istream& text, const std::string& name, const std::string& folder,
                        ScriptHand& hand, std::ostream& out, std::ostream& err);

/// Runs scripts of the real machine one after the other, "-" being standard input. Gives the worst verdict;
/// no file at all is wrong as well.
ScriptVerdict RunScriptFiles(const std::vector<std::string>& files, ScriptHand& hand,
                             const std::string& program);

}  // namespace veldrin
