#include "mainwin/chart.h"

#include "runtime/conversion.h"
#include "workspace/caller.h"

namespace veldrin {

namespace {

void GearRay(Program& program, double speed, Colour colour) {
  const Workspace& workspace = program.workspace;
  DrawRay(program.form2.Picture21.surface, workspace.MaxNe, speed, workspace.ShiftNe, colour);
}

/// The baseline's speeds belong to `ReferenceNe`, so its rays stay in place while `ShiftNe` moves.
void BaselineRay(Program& program, double speed, Colour colour) {
  const Workspace& workspace = program.workspace;
  DrawRay(program.form2.Picture21.surface, workspace.MaxNe, speed, workspace.ReferenceNe, colour);
}

bool BaselineShows(const Workspace& workspace) {
  return workspace.ModeWord != mode::kBasing && workspace.CallerWord != caller::kQuick;
}

void DrawBaseline(Program& program) {
  program.form2.Picture21.surface.drawStyle = kPenDotted;
  if (!BaselineShows(program.workspace)) return;
  for (int gear = 1; gear <= kGears; ++gear) {
    BaselineRay(program, program.workspace.SpeedBaseline[gear], program.workspace.GearColour[gear]);
  }
}

template <class Speeds>
void DrawRays(Program& program, const Speeds& speeds) {
  for (int gear = 1; gear <= kGears; ++gear)
    GearRay(program, speeds[gear], program.workspace.GearColour[gear]);
}

template <class Speeds>
void DrawTooth(Program& program, const Speeds& speeds) {
  const Workspace& workspace = program.workspace;
  Surface& surface = program.form2.Picture21.surface;
  surface.drawStyle = kPenSolid;
  const auto speed = [&](int gear) { return static_cast<double>(speeds[gear]); };
  DrawSawTooth(surface, SawToothOf(workspace.ShiftNe, workspace.MaxNe, speed), kWhite);
}

void SetScales(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  const float thousandNe = TwipsPerThousandNe(workspace);
  const float twentyKmh = TwipsPerTwentyKmh(workspace);
  PlaceTicks(form2, thousandNe, twentyKmh);
  form2.Picture21.surface.SetScale(ChartUnits(workspace));
  PlaceNumerals(form2, thousandNe, twentyKmh);
  form2.HScroll1.Max = workspace.MaxNe;
  form2.HScroll2.Max = workspace.MaxNe;
  form2.HScroll2.Value = ToInt16(workspace.CheckNe);
}

}  // namespace

void DrawRay(Surface& surface, double maxNe, double speed, double revolutions, Colour colour) {
  surface.Line(0, 0, maxNe, RayEnd(maxNe, speed, revolutions), colour);
}

void DrawMarkLine(Surface& surface, double revolutions, double maxSpeed, int style, Colour colour) {
  surface.drawStyle = style;
  surface.Line(revolutions, 0, revolutions, maxSpeed, colour);
}

void DrawSawTooth(Surface& surface, const SawTooth& tooth, Colour colour, const PointRunner& run) {
  const auto draw = [&](double x1, double y1, double x2, double y2) { surface.Line(x1, y1, x2, y2, colour); };
  WalkSawTooth(tooth, draw, run);
}

void ChartScale(Program& program) {
  Under(program, caller::kInit, [&] { SetScales(program); });
  program.machine.windows.Repaint(program.form2);
}

void ChartPlan(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord == caller::kInit) return;
  Surface& surface = program.form2.Picture21.surface;
  surface.Clear();
  DrawRays(program, workspace.SpeedNow);
  DrawBaseline(program);
  DrawMarkLine(surface, workspace.ShiftNe, workspace.MaxSpeed, kPenDashDot, kWhite);
  if (BaselineShows(workspace)) {
    DrawMarkLine(surface, workspace.CheckNe, workspace.MaxSpeed, kPenDashDotDot, kLightGrey);
  }
  DrawTooth(program, workspace.SpeedNow);
}

void ChartRequest(Program& program) {
  Workspace& workspace = program.workspace;
  Surface& surface = program.form2.Picture21.surface;
  surface.Clear();
  DrawRays(program, workspace.SpeedRequest);
  if (workspace.ReferenceNe == 0) workspace.ReferenceNe = workspace.ShiftNe;
  DrawBaseline(program);
  DrawMarkLine(surface, workspace.ShiftNe, workspace.MaxSpeed, kPenDashDot, kLightGrey);
  DrawMarkLine(surface, workspace.CheckNe, workspace.MaxSpeed, kPenDashDotDot, kLightGrey);
  DrawTooth(program, workspace.SpeedRequest);
}

}  // namespace veldrin
