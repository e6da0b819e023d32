// How values read in scripts, logs and traces: numbers in their shortest text, colours as "r,g,b", booleans
// as True and False, texts as they stand. What is printed shows control characters by their names.
#pragma once

#include "view/control.h"

#include <string>
#include <string_view>

namespace veldrin {

/// A value as scripts compare it. Floats are the shortest text that reads back to the same value. Raises
/// nothing, and so do all functions here.
std::string ValueText(bool value);
std::string ValueText(int value);
std::string ValueText(float value);
std::string ValueText(double value);
std::string ValueText(Colour value);
std::string ValueText(const std::string& value);

/// A control's slot as scripts compare it; the state of a window is its word: normal, minimised or maximised.
std::string SlotText(const Control& control, const AnySlot& slot);

/// `text` with <CR>, <LF> and <TAB> for those characters.
std::string Printed(std::string_view text);

/// `text` in double quotes, a quote inside it doubled.
std::string Quoted(std::string_view text);

}  // namespace veldrin
