// The slots of controls and windows by the names that scripts use: those of the view's records, and what is
// not a slot there but reads like one, such as List(i), Cell(row,col), Drawing, ZOrder or Focus.
#pragma once

#include "platform/canvas.h"
#include "script/script_catalogue.h"
#include "script/script_names.h"

#include <string>
#include <vector>

namespace veldrin {

/// The answer to a question.
struct Answer {
  std::string text;
  /// Its lines, where it is made of lines that may hold line ends themselves.
  std::vector<std::string> lines;
};

inline constexpr char kNone[] = "(none)";

/// Lines as one answer, joined by LF.
Answer LinesAnswer(std::vector<std::string> lines);

/// What is drawn, asked by one of Drawing, Drawing(k) and DrawingCount; `lines` is a primitive each.
bool IsDrawingSlot(const std::string& name);
Answer DrawingAnswer(const std::vector<std::string>& lines, const NamePart& slot);
std::vector<std::string> DrawingLines(const std::vector<Primitive>& drawing);

/// A slot of what was found; "(none)" where that is not there, and for an entry, a cell or a primitive
/// outside. Throws ScriptError for a slot that its kind does not have.
Answer ReadSlot(const Program& program, const Found& found, const NamePart& slot);

/// Writes a slot as code of the program does, at once and with its events, whose faults and end pass through.
/// Throws ScriptError for a slot that its kind does not have or that cannot be written, for a value that does
/// not fit, and where the control is not there.
void WriteSlot(const Found& found, const NamePart& slot, const std::string& value);

/// Number of a window's state by its word. Throws ScriptError for others.
int StateNumber(const std::string& word);

}  // namespace veldrin
