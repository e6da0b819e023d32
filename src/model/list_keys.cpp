#include "model/list_keys.h"

#include "model/decimal.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"

#include <string>

namespace veldrin {

namespace {

template <class Number>
void Take(KeyedCondition<Number>& keyed, Number& condition, Number value) {
  if (!keyed.taken) keyed.before = condition;
  keyed.taken = true;
  keyed.set = value;
  condition = value;
}

template <class Number>
void Release(KeyedCondition<Number>& keyed, Number& condition) {
  if (keyed.taken && condition == keyed.set) condition = keyed.before;
  keyed.taken = false;
}

/// A whole-number condition: taken when the number as written lies in the range.
template <class Number>
void TakeWhole(double value, const Limits& limits, KeyedCondition<Number>& keyed, Number& condition) {
  if (limits.Holds(value)) Take(keyed, condition, static_cast<Number>(ToInt16(value)));
}

/// One line. A key with a blank before the "=" is an unknown one.
void ReadKeyLine(const std::string& line, Workspace& workspace) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return;
  const std::string key = line.substr(0, equals);
  const double value = SystemNumber(workspace, line.substr(equals + 1));
  KeyedConditions& keyed = workspace.keyed;
  if (key == "TYRE_L") {
    if (kTyreLimits.Holds(value)) Take(keyed.TyreLength, workspace.TyreLength, ToSingle(value));
  } else if (key == "CHECK_NE") {
    TakeWhole(value, kRevolutionLimits, keyed.CheckNe, workspace.CheckNe);
  } else if (key == "SHIFT_NE") {
    TakeWhole(value, kRevolutionLimits, keyed.ShiftNe, workspace.ShiftNe);
  } else if (key == "MAX_SPEED") {
    TakeWhole(value, kMaxSpeedLimits, keyed.MaxSpeed, workspace.MaxSpeed);
  } else if (key == "MAX_NE") {
    TakeWhole(value, kRevolutionLimits, keyed.MaxNe, workspace.MaxNe);
  }
}

}  // namespace

void ReadListKeys(TextReader& reader, Workspace& workspace) {
  while (!reader.AtEnd()) {
    const std::string line = reader.Line();
    Guarded([&] { ReadKeyLine(line, workspace); });
  }
}

void ReleaseListKeys(Workspace& workspace) {
  KeyedConditions& keyed = workspace.keyed;
  Release(keyed.TyreLength, workspace.TyreLength);
  Release(keyed.CheckNe, workspace.CheckNe);
  Release(keyed.ShiftNe, workspace.ShiftNe);
  Release(keyed.MaxSpeed, workspace.MaxSpeed);
  Release(keyed.MaxNe, workspace.MaxNe);
}

}  // namespace veldrin
