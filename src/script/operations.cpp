#include "script/operations.h"

#include "calc/gear_speed.h"
#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "model/decimal.h"
#include "program/event_boundary.h"
#include "script/script_error.h"
#include "script/script_suggest.h"
#include "script/script_values.h"
#include "simulated/printed_values.h"
#include "workspace/captions.h"
#include "workspace/files/plan_file.h"
#include "workspace/files/working_files.h"

#include <limits>

namespace veldrin {

namespace {

using Arguments = std::vector<std::string>;

int Row(const std::string& word) {
  return static_cast<int>(
      WholeNumber(word, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

std::string CallFixDecimal(ScriptWorld& world, const Arguments& arguments) {
  return FixDecimal(world.Running().workspace, arguments[0]);
}

/// Gives the caption as it reads afterwards.
std::string CallAlignCaption(ScriptWorld& world, const Arguments& arguments) {
  const int column = Row(arguments[0]);
  const ScriptName name = ParseName(arguments[1]);
  if (name.size() != 2) throw ScriptError{arguments[1] + " is no label"};
  const Found found = world.catalogue.FindControl(world.Running(), name[0].name, name[1]);
  if (found.model->kind != ControlKind::Label) throw ScriptError{arguments[1] + " is no label"};
  if (found.control == nullptr) throw ScriptError{arguments[1] + " is not there now"};
  auto& label = static_cast<Label&>(*found.control);
  AlignCaption(column, label);
  return label.Caption;
}

std::string CallGearSpeed(ScriptWorld& world, const Arguments& arguments) {
  return ValueText(GearSpeed(world.Running().workspace, Row(arguments[0]), Row(arguments[1]),
                             Row(arguments[2]), Row(arguments[3])));
}

/// An operation of the program alone.
template <void (*operation)(Program&)>
std::string Plain(ScriptWorld& world, const Arguments& /*arguments*/) {
  operation(world.Running());
  return "";
}

std::string CallAddToHistory(ScriptWorld& world, const Arguments& arguments) {
  AddToHistory(world.Running(), arguments[0]);
  return "";
}

std::string CallRestorePlan(ScriptWorld& world, const Arguments& /*arguments*/) {
  RestorePlan(world.Running());
  return "";
}

struct Operation {
  const char* name;
  std::size_t arguments;
  const char* usage;
  std::string (*run)(ScriptWorld& world, const Arguments& arguments);
};

// clang-format off
constexpr Operation kOperations[] = {
    {"FixDecimal",     1, "TEXT",                   CallFixDecimal},
    {"AlignCaption",   2, "COLUMN CONTROL",         CallAlignCaption},
    {"GearSpeed",      4, "PRIMARY FINAL GEAR ROW", CallGearSpeed},
    {"RefreshDisplay", 0, "",                       Plain<RefreshDisplay>},
    {"ChartScale",     0, "",                       Plain<ChartScale>},
    {"ChartPlan",      0, "",                       Plain<ChartPlan>},
    {"ChartRequest",   0, "",                       Plain<ChartRequest>},
    {"RestorePlan",    0, "",                       CallRestorePlan},
    {"AddToHistory",   1, "PATH",                   CallAddToHistory},
};
// clang-format on

const Operation& Find(const std::string& name) {
  std::vector<std::string> known;
  for (const Operation& operation : kOperations) {
    if (name == operation.name) return operation;
    known.emplace_back(operation.name);
  }
  throw ScriptError{"there is no operation " + name + Suggestion(name, known)};
}

}  // namespace

void CallOperation(ScriptWorld& world, const std::string& name, const std::vector<std::string>& arguments) {
  const Operation& operation = Find(name);
  if (arguments.size() != operation.arguments) {
    throw ScriptError{"wrong number of words: call " + name + " " + operation.usage};
  }
  world.result = "";
  RunEvent(world.Running(), [&] { world.result = operation.run(world, arguments); });
}

}  // namespace veldrin
