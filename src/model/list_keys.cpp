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

/// The number as written: a whole one is rounded.
template <class Number>
Number Written(const Condition& condition, double value) {
  return condition.whole ? static_cast<Number>(ToInt16(value)) : static_cast<Number>(ToSingle(value));
}

/// One line. A key with a blank before the "=" is an unknown one.
void ReadKeyLine(const std::string& line, Workspace& workspace) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return;
  const std::string key = line.substr(0, equals);
  const double value = SystemNumber(workspace, line.substr(equals + 1));
  ForEachKeyed(workspace,
               [&]<class Number>(const Condition& condition, KeyedCondition<Number>& keyed, Number& number) {
                 if (key != condition.key || !condition.limits.Holds(value)) return;
                 Take(keyed, number, Written<Number>(condition, value));
               });
}

}  // namespace

void ReadListKeys(TextReader& reader, Workspace& workspace) {
  while (!reader.AtEnd()) {
    const std::string line = reader.Line();
    Guarded([&] { ReadKeyLine(line, workspace); });
  }
}

void ReleaseListKeys(Workspace& workspace) {
  ForEachKeyed(workspace, [](const Condition&, auto& keyed, auto& number) { Release(keyed, number); });
}

}  // namespace veldrin
