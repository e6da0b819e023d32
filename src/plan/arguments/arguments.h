// The command line of veldrin-plan.
#pragma once

#include "model/workspace.h"
#include "plan/best/rank_key.h"
#include "plan/tyre/tyre_point.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

enum class PlanAction { Search, Show, Compare, Check, FromCsv, ToCsv, Help, Version };
enum class PlanFormat { Table, Csv, Json, Svg, Html };

/// The bounds of a gear set to MANUAL, in km/h, within kToleranceLimits.
struct ManualBounds {
  std::int16_t minus = 0;
  std::int16_t plus = 0;
};

struct PlanArguments {
  PlanAction action = PlanAction::Search;
  std::string listPath;                // empty where the plans are to lead to their list
  std::vector<std::string> planPaths;  // to be shown or compared
  std::string csvPath;                 // the table of parts to be made a list of
  Table<float, 1, kGears> speed;       // km/h, whole
  Table<std::optional<ManualBounds>, 1, kGears> manual;
  int mainGear = 0;  // 0 for none
  std::optional<std::int16_t> shiftNe;
  std::optional<float> tyreLength;
  std::optional<std::int16_t> checkNe;
  std::int16_t minPlan = 1;
  bool why = false;         // tell why a search finds nothing
  std::optional<int> best;  // plans wanted of all that can be fitted
  Rank rank = Rank::Miss;
  std::optional<double> within;  // km/h
  std::string fromPath;          // the plan that is built in now; empty for none
  std::vector<TyrePoint> tyrePoints;
  std::vector<std::string> tyreFiles;
  PlanFormat format = PlanFormat::Table;
  bool japanese = false;    // the words of a page in Japanese
  std::optional<int> page;  // code page of the files; nothing for what the system says

  bool HasManual() const;
};

/// Reads the arguments behind the program's name. Nothing, and one sentence in `mistake`, when they are
/// wrong.
std::optional<PlanArguments> ReadArguments(const std::vector<std::string>& arguments, std::string& mistake);

}  // namespace veldrin
