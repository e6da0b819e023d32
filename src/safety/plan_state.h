// All that is the user's work on the plan on the screen, as plain values: what a plan file holds, and what it
// cannot hold. Rows and pairs are known by their texts as well as by their numbers, so that a list which was
// edited meanwhile does not turn one part into another.
#pragma once

#include "workspace/program.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace veldrin {

/// A row of a table or of a gear: its number, from 1, and its text.
struct ChosenRow {
  std::int16_t row = 0;
  std::string text;

  friend bool operator==(const ChosenRow&, const ChosenRow&) = default;
};

template <class Value>
using PerGear = std::array<Value, kGears>;  // 1st gear first

/// Where a gear (1 to 6) stands in it.
constexpr std::size_t Place(int gear) {
  return static_cast<std::size_t>(gear) - 1;
}

/// What is entered while requests are. Element 0 is the 1st gear.
struct RequestState {
  bool byRevolutions = false;
  std::int16_t mainGear = 0;     // of the search's options, 0 for none
  PerGear<std::string> texts{};  // of the boxes, also half typed
  PerGear<float> speeds{};       // km/h
  PerGear<bool> manual{};
  PerGear<std::int16_t> minus{};      // km/h
  PerGear<std::int16_t> plus{};       // km/h
  PerGear<std::int16_t> baseNe{};     // rev/min
  PerGear<std::int16_t> requestNe{};  // rev/min

  friend bool operator==(const RequestState&, const RequestState&) = default;
};

struct PlanState {
  // Whose plan it is.
  std::string machine;  // name of the machine
  std::string key;      // its key, the extension of plan files
  std::string list;     // path of its list
  std::string file;     // path of the plan's file, empty for a plan that never had one
  std::string title;    // of the main window, without the mark of changes

  // The plan.
  ChosenRow primary;
  ChosenRow final;
  PerGear<ChosenRow> pairs{};
  float tyreLength = 0;          // metres
  std::int16_t shiftNe = 0;      // rev/min
  float checkNe = 0;             // rev/min
  std::int16_t referenceNe = 0;  // rev/min
  PerGear<float> baseline{};     // km/h
  bool baselineShown = true;     // a first plan has one that nobody has asked for
  std::string remark;

  // The chart's ends, which follow the plan.
  std::int16_t maxSpeed = 0;  // km/h
  std::int16_t maxNe = 0;     // rev/min

  std::optional<RequestState> requests;

  friend bool operator==(const PlanState&, const PlanState&) = default;
};

/// The plan on the screen, or nothing while there is none. Raises nothing.
std::optional<PlanState> TakeState(const Program& program);

/// Whether two are the same work on the same machine, the stored speeds and what is requested aside.
bool SameChoice(const PlanState& a, const PlanState& b);

/// Whether `now` holds work that `before`, what stands on the disk, does not: also where requests that were
/// there before are no longer being entered, nothing is lost.
bool HoldsMore(const PlanState& now, const PlanState& before);

}  // namespace veldrin
