// The command line of veldrin-plan.
#pragma once

#include "model/workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

enum class PlanAction { Search, Check, Help, Version };
enum class PlanFormat { Table, Csv, Json };

/// The bounds of a gear set to MANUAL, in km/h, within kToleranceLimits.
struct ManualBounds {
  std::int16_t minus = 0;
  std::int16_t plus = 0;
};

struct PlanArguments {
  PlanAction action = PlanAction::Search;
  std::string listPath;
  Table<float, 1, kGears> speed;  // km/h, whole
  Table<std::optional<ManualBounds>, 1, kGears> manual;
  int mainGear = 0;  // 0 for none
  std::optional<std::int16_t> shiftNe;
  std::optional<float> tyreLength;
  std::int16_t minPlan = 1;
  bool why = false;  // tell why a search finds nothing
  PlanFormat format = PlanFormat::Table;
  std::optional<int> page;  // code page of the list; nothing for what the system says

  bool HasManual() const;
};

/// Reads the arguments behind the program's name. Nothing, and one sentence in `mistake`, when they are
/// wrong.
std::optional<PlanArguments> ReadArguments(const std::vector<std::string>& arguments, std::string& mistake);

}  // namespace veldrin
