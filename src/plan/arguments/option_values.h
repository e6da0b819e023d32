// Values of options, from their texts. What is none is refused with a sentence that says what can be typed.
#pragma once

#include "plan/arguments/arguments.h"

#include <string>
#include <vector>

namespace veldrin {

/// What is wrong with a command line, on its way out of the depths of the reader.
struct BadArgument {
  std::string text;
};

[[noreturn]] void Refuse(const std::string& text);

/// The number that `text` spells; refused, with the option's name, when it is none or out of range.
double Number(const std::string& option, const std::string& text, const Limits& limits);
int WholeNumber(const std::string& option, const std::string& text, const Limits& limits);

/// The parts of a text between its commas.
std::vector<std::string> SplitAtCommas(const std::string& text);

// Each takes the value of the option that its name says into `result`.
void ReadSpeeds(const std::string& text, PlanArguments& result);
void ReadManual(const std::string& text, PlanArguments& result);
void ReadRank(const std::string& text, PlanArguments& result);
void ReadFrom(const std::string& text, PlanArguments& result);
void ReadTyreFrom(const std::string& text, PlanArguments& result);
void ReadFormat(const std::string& text, PlanArguments& result);
void ReadLanguage(const std::string& text, PlanArguments& result);
void ReadEncoding(const std::string& text, PlanArguments& result);

}  // namespace veldrin
