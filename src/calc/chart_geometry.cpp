#include "calc/chart_geometry.h"

#include "runtime/conversion.h"

namespace veldrin {

namespace {

constexpr double kPlotWidthPerNe = 3960000;   // twips times rev/min over 1000
constexpr double kPlotHeightPerKmh = 110400;  // twips times km/h over 20

}  // namespace

void RunStep(const std::function<void()>& step) {
  step();
}

SawTooth SawToothOf(double shiftNe, double maxNe, const std::function<double(int gear)>& speed) {
  return {shiftNe, maxNe, speed,
          [shiftNe, speed](int gear) { return Divide(shiftNe * speed(gear - 1), speed(gear)); }};
}

void WalkSawTooth(const SawTooth& tooth, const SideTaker& side, const PointRunner& run) {
  double fromX = 0;
  double fromY = 0;
  const auto to = [&](double x, double y) {
    side(fromX, fromY, x, y);
    fromX = x;
    fromY = y;
  };
  run([&] { to(tooth.shiftNe, tooth.speed(1)); });
  for (int gear = 2; gear <= kGears; ++gear) {
    run([&] { to(tooth.dropNe(gear), tooth.speed(gear - 1)); });
    run([&] { to(tooth.shiftNe, tooth.speed(gear)); });
  }
  run([&] { to(tooth.maxNe, Divide(tooth.maxNe * tooth.speed(kGears), tooth.shiftNe)); });
}

double RayEnd(double maxNe, double speed, double revolutions) {
  return Divide(maxNe * speed, revolutions);
}

float TwipsPerThousandNe(const Workspace& workspace) {
  return ToSingle(Divide(kPlotWidthPerNe, workspace.MaxNe));
}

float TwipsPerTwentyKmh(const Workspace& workspace) {
  return ToSingle(Divide(kPlotHeightPerKmh, workspace.MaxSpeed));
}

Scale ChartUnits(const Workspace& workspace) {
  const double maxSpeed = workspace.MaxSpeed;
  return {0, maxSpeed, static_cast<double>(workspace.MaxNe), -maxSpeed};
}

}  // namespace veldrin
