// Where the chart's points lie, as numbers: the scale, rays and the saw-tooth. Drawing them is left to those
// who have a surface, the axes to view/forms/chart_axes.h.
#pragma once

#include "model/workspace.h"
#include "platform/canvas.h"

#include <functional>

namespace veldrin {

/// What a saw-tooth climbs and where it drops to, by gear.
struct SawTooth {
  double shiftNe;                          // rev/min
  double maxNe;                            // rev/min
  std::function<double(int gear)> speed;   // km/h of gears 1..6
  std::function<double(int gear)> dropNe;  // rev/min after changing up into gears 2..6
};

/// The saw-tooth of the speeds at `shiftNe`: changing up there leads to the revolutions at which the next
/// gear runs as fast. The drop raises fault 11 for a speed of 0 (6 when that of the gear below is 0 too).
SawTooth SawToothOf(double shiftNe, double maxNe, const std::function<double(int gear)>& speed);

/// Takes a side of a saw-tooth, from one point to the next.
using SideTaker = std::function<void(double x1, double y1, double x2, double y2)>;

/// Runs the step to one point.
using PointRunner = std::function<void(const std::function<void()>& step)>;

/// The runner that lets faults pass.
void RunStep(const std::function<void()>& step);

/// Walks the saw-tooth's sides, one connected line: from the origin up the first ray, for every further gear
/// the drop and the climb, and on along top gear to the edge of the scale. Speeds and drops are asked for
/// point by point, so that whoever draws has drawn all before the one that fails; a runner may skip that one,
/// and the next side begins where the last one ended. Raises fault 11 for a `shiftNe` of 0.
void WalkSawTooth(const SawTooth& tooth, const SideTaker& side, const PointRunner& run = RunStep);

/// Height in km/h of a ray through `speed` at `revolutions` where it reaches `maxNe`. Raises fault 11 for
/// revolutions of 0 (6 when the speed is 0 too).
double RayEnd(double maxNe, double speed, double revolutions);

/// Twips for 1000 rev/min on the chart's frame, as a 32-bit float. Raises fault 11 for a scale of 0.
float TwipsPerThousandNe(const Workspace& workspace);

/// Twips for 20 km/h.
float TwipsPerTwentyKmh(const Workspace& workspace);

/// The chart's scale for a surface.
Scale ChartUnits(const Workspace& workspace);

}  // namespace veldrin
