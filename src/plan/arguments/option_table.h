// The options of veldrin-plan: one table for the reader, the help, and the tests of manual and completion.
#pragma once

#include "plan/arguments/arguments.h"

#include <span>
#include <string>

namespace veldrin {

/// A set of actions; each is the bit of its number.
using Actions = unsigned;
constexpr Actions Bit(PlanAction action) {
  return 1U << static_cast<unsigned>(action);
}

/// An option that chooses what is done. Files stand behind it; the first may be its value as well.
struct ActionOption {
  const char* name;
  PlanAction action;
  const char* files;  // how they are named in the help
  const char* help;   // lines parted by '\n'
};

struct Option {
  const char* name;
  const char* value;  // how it is named in the help; nullptr for none
  const char* section;
  Actions actions;  // what it goes together with
  bool repeats;
  void (*read)(const std::string& text, PlanArguments& result);
  const char* help;
};

std::span<const ActionOption> ActionOptions();

/// In the order of the help, those of a section together.
std::span<const Option> Options();

/// What --help prints.
std::string HelpText();

}  // namespace veldrin
