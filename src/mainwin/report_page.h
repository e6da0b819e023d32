// The report's page: a block of figures, the table by gear, the remark, and a chart of speed against
// revolutions, laid out once for every output. Where pages go stands in report.h.
//
// Texts stand at fixed places in the units that the surface has when the drawing begins. Then the chart's
// scale is laid over the same surface: x is revolutions over 10, y is km/h, upward.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// What differs between the outputs.
struct ReportStyle {
  const char* tyreLabel;
  const char* shiftLabel;
  float textSize;          // points; block and table
  float speedNumeralSize;  // points
  float neNumeralSize;     // points
  double mainCellRoom;     // points times characters that fit into a cell of "MAIN"
  double chartHeight;      // height of the surface in lengths of the speed axis
  int chartLineWidth;      // pixels
  bool skipsFaults;        // a statement that fails is left out and the next one runs
};

/// Draws the plan as the main window shows it at this moment. The surface brings the font of the remark.
/// Unless faults are skipped, raises fault 9 for a row outside the tables, 11 (or 6) for a divisor of 0 among
/// the speeds and `ShiftNe`, and 11 for a cell of "MAIN" without a text.
void DrawReport(const Program& program, Surface& surface, const ReportStyle& style);

}  // namespace veldrin
