#include "plan/check/list_remarks.h"
#include "plan/csv/csv_reader.h"
#include "plan/files/bad_input.h"
#include "plan/tyre/tyre_fit.h"
#include "runtime/fault.h"

#include <cmath>

namespace veldrin {

namespace {

double Field(const std::string& path, const CsvRecord& record, std::size_t k, const char* name,
             const Limits& limits) {
  double value = 0;
  if (Guarded([&] { value = CsvNumber(record.fields[k]); }) != 0) {
    RefuseLine(path, record.line, std::string(name) + ", " + Quoted(record.fields[k]) + ", is no number");
  }
  if (!limits.Holds(value)) {
    RefuseLine(path, record.line,
               std::string(name) + ", " + record.fields[k] + ", is out of range, " +
                   std::to_string(limits.lowest) + " to " + std::to_string(limits.highest));
  }
  return value;
}

/// A line of names stands for itself where no field of it is a number.
bool IsHeading(const CsvRecord& record) {
  for (const std::string& field : record.fields) {
    if (Guarded([&] { CsvNumber(field); }) == 0) return false;
  }
  return true;
}

}  // namespace

std::vector<TyrePoint> ReadTyrePoints(const std::string& path, const std::string& text) {
  std::vector<TyrePoint> points;
  bool isFirst = true;
  for (const CsvRecord& record : ReadCsv(path, text)) {
    const bool isHeading = isFirst && IsHeading(record);
    isFirst = false;
    if (isHeading) continue;
    if (record.fields.size() != 3) {
      RefuseLine(path, record.line,
                 "a point has the three fields speed, revolutions, gear, found " +
                     std::to_string(record.fields.size()));
    }
    TyrePoint point;
    point.where = path + ':' + std::to_string(record.line);
    point.speed = Field(path, record, 0, "the speed", kMeasuredSpeedLimits);
    point.ne = Field(path, record, 1, "the revolutions", kMeasuredNeLimits);
    const double gear = Field(path, record, 2, "the gear", Limits{1, kGears});
    if (gear != std::floor(gear))
      RefuseLine(path, record.line, "the gear, " + record.fields[2] + ", is not whole");
    point.gear = static_cast<int>(gear);
    points.push_back(point);
  }
  if (points.empty()) RefuseFile(path, "there is no point in it");
  return points;
}

}  // namespace veldrin
