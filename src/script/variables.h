// The variables of the workspace and of the dialogs by their names, for scripts: each is listed once, in
// variables.cpp, and found from there for reading and writing.
//
//   ModeWord   SpeedNow(3)   GearTable(3,2)   FinalTable(2).Text   CompareSlot(0).Plan(6)
#pragma once

#include "script/script_names.h"
#include "workspace/program.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace veldrin {

/// A text of fixed length: what is written is filled up with blanks, or cut.
struct FixedText {
  std::string* text;
  std::size_t length;
};

/// Where one value lies, by its type.
using VariablePlace = std::variant<std::string*, FixedText, std::int16_t*, float*, double*, bool*, Colour*>;

/// Whether a variable of the program has this name, its first part alone.
bool IsVariable(Program& program, const std::string& name);

/// The value's place. Throws ScriptError for an unknown name or field, a subscript outside of the declared
/// range, and a table without one.
VariablePlace FindVariable(Program& program, const ScriptName& name);

std::string VariableText(const VariablePlace& place);

/// Writes a value given as text. Throws ScriptError where it does not fit the type.
void SetVariable(const VariablePlace& place, const std::string& text);

/// The names of all variables, without fields.
std::vector<std::string> VariableNames(Program& program);

}  // namespace veldrin
