#include "plan/tyre/tyre_fit.h"

#include "calc/gear_speed.h"
#include "plan/files/bad_input.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr double kUsualDistances = 3 * 1.4826;  // of a point that fits, in median distances
constexpr double kSurelyFits = 0.01;            // of the middle length

/// Metres that the machine rolls for each turn of the engine and metre of length, in km/h for a rev/min.
double SpeedPerMetre(const Workspace& workspace, const TyrePoint& point) {
  const int row = workspace.PlanIndex[point.gear];
  const double driven = workspace.GearDrivenTeeth(point.gear, row);
  const double ratio =
      workspace.PrimaryTable[workspace.PrimaryIndex].Ratio * workspace.FinalTable[workspace.FinalIndex].Ratio;
  const double speed =
      driven == 0 ? 0 : GearSpeedOf(point.ne * ratio, workspace.GearDriveTeeth(point.gear, row), driven);
  if (speed == 0) throw BadInput{point.where + ": the plan has no ratio in this gear"};
  return speed;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void FindThoseThatFit(std::vector<FittedPoint>& points) {
  std::vector<double> lengths;
  for (const FittedPoint& point : points) lengths.push_back(point.length);
  const double middle = Median(lengths);
  for (double& length : lengths) length = std::fabs(length - middle);
  const double reach = std::max(kUsualDistances * Median(lengths), kSurelyFits * middle);
  for (FittedPoint& point : points) point.fits = std::fabs(point.length - middle) <= reach;
}

double SpreadOf(const TyreFit& fit) {
  double squares = 0;
  int count = 0;
  for (const FittedPoint& point : fit.points) {
    if (!point.fits) continue;
    squares += (point.length - fit.length) * (point.length - fit.length);
    ++count;
  }
  return count < 2 ? 0 : std::sqrt(squares / (count - 1));
}

}  // namespace

TyreFit FitTyre(const Workspace& workspace, const std::vector<TyrePoint>& points) {
  TyreFit fit;
  for (const TyrePoint& point : points) {
    fit.points.push_back({point, point.speed / SpeedPerMetre(workspace, point), 0, true});
  }
  FindThoseThatFit(fit.points);
  double products = 0;
  double squares = 0;
  for (const FittedPoint& point : fit.points) {
    if (!point.fits) continue;
    const double perMetre = SpeedPerMetre(workspace, point.point);
    products += perMetre * point.point.speed;
    squares += perMetre * perMetre;
  }
  fit.length = products / squares;
  for (FittedPoint& point : fit.points) {
    point.off = point.point.speed - SpeedPerMetre(workspace, point.point) * fit.length;
  }
  fit.spread = SpreadOf(fit);
  return fit;
}

}  // namespace veldrin
