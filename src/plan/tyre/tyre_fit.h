// The rolling length of the tyre from measured points.
//
// A point's speed is its revolutions times the gear's overall ratio times the length. The length of several
// points is the one with the least squares of what their speeds are off. Points that do not fit are named and
// left out: those whose own length lies further from the middle one than three times the usual distance, and
// more than 1 percent.
#pragma once

#include "model/workspace.h"
#include "plan/tyre/tyre_point.h"

#include <string>
#include <vector>

namespace veldrin {

struct FittedPoint {
  TyrePoint point;
  double length = 0;  // metres, from this point alone
  double off = 0;     // km/h, measured less what the fitted length gives
  bool fits = true;
};

struct TyreFit {
  double length = 0;  // metres
  double spread = 0;  // metres, standard deviation of the lengths of the points that fit; 0 for a single one
  std::vector<FittedPoint> points;
};

/// The length that the points give with the plan that `workspace` holds. There is at least one point. Throws
/// BadInput, with the point's place, for a gear in which the plan has no ratio.
TyreFit FitTyre(const Workspace& workspace, const std::vector<TyrePoint>& points);

/// The points of a table of speed, revolutions and gear, with or without a line of names. Throws BadInput for
/// a line that is no point.
std::vector<TyrePoint> ReadTyrePoints(const std::string& path, const std::string& text);

}  // namespace veldrin
