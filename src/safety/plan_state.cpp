#include "safety/plan_state.h"

#include "mainwin/search.h"
#include "runtime/fault.h"
#include "workspace/control_states.h"
#include "workspace/mode.h"
#include "workspace/title.h"

namespace veldrin {

namespace {

RequestState TakeRequests(const Program& program) {
  const Workspace& workspace = program.workspace;
  const Form2& form2 = program.form2;
  RequestState state;
  state.byRevolutions = ModeOnShow(program) == mode::kRpm;
  state.mainGear = static_cast<std::int16_t>(MainGear(program));
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::size_t place = Place(gear);
    state.texts[place] = form2.Text1[gear].Text;
    state.speeds[place] = workspace.SpeedRequest[gear];
    state.manual[place] = IsManual(form2, gear);
    state.minus[place] = workspace.ToleranceMinus[gear];
    state.plus[place] = workspace.TolerancePlus[gear];
    state.baseNe[place] = workspace.BaseNe[gear];
    state.requestNe[place] = workspace.RequestNe[gear];
  }
  return state;
}

PlanState TakePlan(const Program& program) {
  const Workspace& workspace = program.workspace;
  PlanState state;
  state.machine = workspace.LoadedMachine;
  state.key = workspace.MachineKey;
  state.list = workspace.LoadedList;
  state.file = workspace.DataFile;
  state.title = UnmarkedTitle(program);
  state.primary = {workspace.PrimaryIndex, workspace.PrimaryTable[workspace.PrimaryIndex].Text};
  state.final = {workspace.FinalIndex, workspace.FinalTable[workspace.FinalIndex].Text};
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::int16_t row = workspace.PlanIndex[gear];
    state.pairs[Place(gear)] = {row, workspace.GearTable(gear, row)};
    state.baseline[Place(gear)] = workspace.SpeedBaseline[gear];
  }
  state.baselineShown = !program.form2.Label2[kGears].Caption.get().empty();
  state.tyreLength = workspace.TyreLength;
  state.shiftNe = workspace.ShiftNe;
  state.checkNe = workspace.CheckNe;
  state.referenceNe = workspace.ReferenceNe;
  state.remark = program.form2.Text6.Text;
  state.maxSpeed = workspace.MaxSpeed;
  state.maxNe = workspace.MaxNe;
  if (ShowsRequests(program)) state.requests = TakeRequests(program);
  return state;
}

/// A request entry that is closed keeps its speeds, but not as something that anybody waits for.
PlanState WithoutRequests(PlanState state) {
  state.requests.reset();
  return state;
}

PlanState WithoutPlace(PlanState state) {
  state.file.clear();
  state.title.clear();
  state.maxSpeed = 0;
  state.maxNe = 0;
  return state;
}

}  // namespace

std::optional<PlanState> TakeState(const Program& program) {
  const Workspace& workspace = program.workspace;
  const bool shown = program.form2.loaded && !workspace.LoadedMachine.empty() && HasPlanOnShow(workspace);
  if (!shown) return std::nullopt;
  std::optional<PlanState> state;
  // Speeds from a reference file stand in the place of a plan whose rows are no rows yet.
  Guarded([&] { state = TakePlan(program); });
  return state;
}

bool SameChoice(const PlanState& a, const PlanState& b) {
  PlanState first = WithoutPlace(WithoutRequests(a));
  PlanState second = WithoutPlace(WithoutRequests(b));
  first.baseline = second.baseline = {};
  first.referenceNe = second.referenceNe = 0;
  return first == second;
}

bool HoldsMore(const PlanState& now, const PlanState& before) {
  if (now.requests && now.requests != before.requests) return true;
  return WithoutPlace(WithoutRequests(now)) != WithoutPlace(WithoutRequests(before));
}

}  // namespace veldrin
