#include "plan/tyre/tyre_output.h"

#include "calc/gear_names.h"
#include "plan/output/columns.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

namespace veldrin {

namespace {

std::string Metres(double length) {
  return FormatNumber(length, "0.0000");
}

}  // namespace

void WriteTyreTable(std::ostream& out, const TyreFit& fit) {
  const std::size_t count = fit.points.size();
  out << "\nTyre of " << count << (count == 1 ? " point: " : " points: ") << Metres(fit.length) << " m";
  if (count > 1) out << ", spread " << Metres(fit.spread);
  if (kTyreLimits.Holds(fit.length)) {
    out << "; type --tyre " << Metres(fit.length) << " for the plan on it\n";
  } else {
    out << ", out of range, " << kTyreLimits.lowest << " to " << kTyreLimits.highest << '\n';
  }
  out << "  gear    speed    rev/min    length     off\n";
  for (const FittedPoint& point : fit.points) {
    out << "  " << GearName(point.point.gear) << Before(FormatNumber(point.point.speed, "0.0"), 10)
        << Before(FormatNumber(point.point.ne, "0"), 11) << Before(Metres(point.length), 10)
        << Before(FormatNumber(point.off, "+#0.0;-#0.0;\\+-0"), 8) << (point.fits ? "" : "   does not fit")
        << '\n';
  }
}

void WriteTyreCsv(std::ostream& out, const TyreFit& fit) {
  out << "length,spread,speed,ne,gear,own_length,off,fits\n";
  for (const FittedPoint& point : fit.points) {
    out << ShortestText(fit.length) << ',' << (fit.points.size() > 1 ? ShortestText(fit.spread) : "") << ','
        << ShortestText(point.point.speed) << ',' << ShortestText(point.point.ne) << ',' << point.point.gear
        << ',' << ShortestText(point.length) << ',' << ShortestText(point.off) << ',' << (point.fits ? 1 : 0)
        << '\n';
  }
}

}  // namespace veldrin
