#include "mainwin/report_page.h"

#include "mainwin/chart.h"
#include "mainwin/combination.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace veldrin {

namespace {

// Places of the texts, in the units of the page.
constexpr double kLeft = 4860;
constexpr double kValueLeft = 7100;
constexpr double kFiguresTop = 500;
constexpr double kFigureHeight = 300;
constexpr double kTableTop = 2500;
constexpr double kRowHeight = 250;
constexpr double kSpeedLeft = 5750;
constexpr double kStepLeft = 6500;
constexpr double kShiftLeft = 7100;
constexpr double kPlanLeft = 8000;
constexpr double kMainLeft = 8940;
constexpr double kCountLeft = 10140;
constexpr double kRemarkHeadTop = 4400;
constexpr double kRemarkTop = 4700;
constexpr double kRemarkLineHeight = 250;
constexpr double kRemarkEnd = 11201;  // a character that ends here or behind is the last of its line

// The chart, in revolutions over 10 and km/h.
constexpr double kNePerUnit = 10;
constexpr int kSpeedPerTick = 10;  // km/h
constexpr int kLastSpeedTick = 34;
constexpr int kSpeedTicksPerNumeral = 10;
constexpr int kNePerTick = 1000;  // rev/min
constexpr int kLastNeTick = 24;
constexpr int kNeTicksPerNumeral = 5;

struct Report {
  const Program& program;
  Surface& surface;
  const ReportStyle& style;
};

/// Runs one statement by the output's rule for faults. Only what can fail needs to go through here.
template <class Statement>
void Run(const Report& report, Statement statement) {
  if (report.style.skipsFaults) {
    Guarded(statement);
  } else {
    statement();
  }
}

/// Draws a text that may fail to come about.
template <class MakeText>
void PrintMade(const Report& report, double x, double y, MakeText text) {
  Run(report, [&] { report.surface.Print(x, y, text()); });
}

std::string PlanText(const Workspace& workspace, int gear) {
  return workspace.GearTable(gear, workspace.PlanIndex[gear]);
}

// ---- Remark ----

/// Every character alone, so that the text wraps at the page's right edge.
/// Kept: a word is cut where the line ends, and lines below the foot of the page are lost.
void DrawRemarkText(Surface& surface, const std::string& remark) {
  int line = 1;
  double x = kLeft;
  for (const std::string& character : Characters(remark)) {
    if (character == "\n") continue;
    if (character != "\r") {
      surface.Print(x, (line - 1) * kRemarkLineHeight + kRemarkTop, character);
      x = RoundHalfToEven(surface.CurrentX());
      if (x < kRemarkEnd) continue;
    }
    ++line;
    x = kLeft;
  }
}

/// Kept: bold and italic come behind the head, which has what the surface brought.
void DrawRemark(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  report.surface.Print(kLeft, kRemarkHeadTop, "Remark:");
  report.surface.font.bold = workspace.PrintFontBold;
  report.surface.font.italic = workspace.PrintFontItalic;
  DrawRemarkText(report.surface, report.program.form2.Text6.Text);
}

// ---- Figures ----

/// A line of the block, counted from 0: label, then value.
template <class MakeText>
void DrawFigure(const Report& report, int line, const char* label, MakeText value) {
  const double y = kFiguresTop + line * kFigureHeight;
  report.surface.Print(kLeft, y, label);
  PrintMade(report, kValueLeft, y, [&] { return ":" + value(); });
}

std::string MissionPlan(const Workspace& workspace) {
  std::string plan = PlanText(workspace, 1);
  for (int gear = 2; gear <= kGears; ++gear) plan += "-" + PlanText(workspace, gear);
  return plan;
}

void DrawFigures(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  DrawFigure(report, 0, "Machine", [&] { return UpperCase(workspace.MachineName); });
  // Kept: by this format a whole length ends in its point, "2.m".
  DrawFigure(report, 1, report.style.tyreLabel,
             [&] { return FormatSingle(workspace, workspace.TyreLength, "#.###") + "m"; });
  DrawFigure(report, 2, report.style.shiftLabel,
             [&] { return FormatSingle(workspace, workspace.ShiftNe, "#####") + " r.p.m"; });
  DrawFigure(report, 3, "Primary Ratio", [&] { return workspace.PrimaryTable[workspace.PrimaryIndex].Text; });
  DrawFigure(report, 4, "Final Ratio", [&] { return workspace.FinalTable[workspace.FinalIndex].Text; });
  DrawFigure(report, 5, "Mission Plan", [&] { return MissionPlan(workspace); });
}

// ---- Table ----

double RowTop(int gear) {
  return (kGears + 1 - gear) * kRowHeight + kTableTop;
}

void DrawRow(const Report& report, int gear) {
  const Form2& form2 = report.program.form2;
  Surface& surface = report.surface;
  const double y = RowTop(gear);
  surface.Print(kLeft, y, form2.Label1[gear].Caption);
  surface.Print(kSpeedLeft, y, form2.Label9[gear].Caption);
  if (gear > 1) surface.Print(kStepLeft, y + kRowHeight / 2, form2.Label40[gear - 1].Caption);
  surface.Print(kShiftLeft, y, form2.Label11[gear].Caption);
  PrintMade(report, kPlanLeft, y, [&] { return PlanText(report.program.workspace, gear); });
}

void DrawTable(const Report& report) {
  report.surface.Print(kLeft, kTableTop, "GEAR");
  report.surface.Print(kSpeedLeft, kTableTop, "SPEED");
  report.surface.Print(kShiftLeft, kTableTop, "SHIFT");
  report.surface.Print(kPlanLeft, kTableTop, "PLAN");
  for (int gear = kGears; gear >= 1; --gear) DrawRow(report, gear);
}

// ---- Parts of the shafts ----

/// The size at which a text fits into its cell, in whole points.
/// Kept: raises fault 11 for the empty text, that of a gear without a part.
float MainCellSize(const ReportStyle& style, const std::string& text) {
  const double fitting = std::floor(Divide(style.mainCellRoom, Length(text)));
  return static_cast<float>(std::min<double>(fitting, style.textSize));
}

/// Kept: the cell of 4th gear keeps the table's size, however long its text is. Where 3rd and 4th gear share
/// a part, it stands in the row of 3rd.
void DrawMainCell(const Report& report, int gear) {
  const Workspace& workspace = report.program.workspace;
  const std::string& text = report.program.form2.Label32[gear].Caption;
  if (gear == 4) {
    if (!HasSeparateParts(workspace)) return;
  } else {
    Run(report, [&] { report.surface.font.size = MainCellSize(report.style, text); });
  }
  report.surface.Print(kMainLeft, RowTop(gear), text);
}

/// Kept: captions as they stand, those left over from an earlier plan included.
void DrawParts(const Report& report) {
  Surface& surface = report.surface;
  surface.Print(kMainLeft, kTableTop, "MAIN");
  surface.Print(kCountLeft, kTableTop, "COUNT");
  for (int gear = kGears; gear >= 1; --gear) {
    DrawMainCell(report, gear);
    surface.font.size = report.style.textSize;
    surface.Print(kCountLeft, RowTop(gear), report.program.form2.Label33[gear].Caption);
  }
}

// ---- Chart ----

double ChartX(double revolutions) {
  return revolutions / kNePerUnit;
}

/// The origin lies a 20th of the surface from its left edge.
void SetChartScale(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  const double maxX = ChartX(workspace.MaxNe);
  const double maxSpeed = workspace.MaxSpeed;
  report.surface.SetScale({-0.15 * maxX, maxSpeed + 30, 3 * maxX, -report.style.chartHeight * maxSpeed});
  report.surface.drawWidth = report.style.chartLineWidth;
  report.surface.drawStyle = kPenSolid;
}

/// A number as the axes show it, with a blank where its sign would stand and one behind.
std::string Numeral(int number) {
  return " " + std::to_string(number) + " ";
}

void DrawAxes(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  report.surface.Line(0, 0, ChartX(workspace.MaxNe), 0, kBlack);
  report.surface.Line(0, 0, 0, workspace.MaxSpeed, kBlack);
}

/// Kept: the ticks end at 340 km/h, whatever the scale.
void DrawSpeedTicks(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  Surface& surface = report.surface;
  surface.font.size = report.style.speedNumeralSize;
  for (int i = 0; i <= kLastSpeedTick && i * kSpeedPerTick <= workspace.MaxSpeed; ++i) {
    const int speed = i * kSpeedPerTick;
    const bool hasNumeral = i % kSpeedTicksPerNumeral == 0;
    surface.Line(hasNumeral ? -50 : -25, speed, 0, speed, kBlack);
    if (hasNumeral) surface.Print(-0.015 * workspace.MaxNe, speed + 5, Numeral(speed));
  }
}

/// Kept: the ticks end at 24000 rev/min, whatever the scale.
void DrawNeTicks(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  Surface& surface = report.surface;
  surface.font.size = report.style.neNumeralSize;
  for (int i = 0; i <= kLastNeTick && i * kNePerTick <= workspace.MaxNe; ++i) {
    const double x = ChartX(i * kNePerTick);
    const bool hasNumeral = i != 0 && i % kNeTicksPerNumeral == 0;
    surface.Line(x, hasNumeral ? -10 : -5, x, 0, kBlack);
    if (hasNumeral) surface.Print(x - 90, -10, Numeral(i * kNePerTick));
  }
}

/// Kept: the colours are those of the palette; what the user chose for the gears does not reach the report.
void DrawRays(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  for (int gear = 1; gear <= kGears; ++gear) {
    Run(report, [&] {
      DrawRay(report.surface, ChartX(workspace.MaxNe), workspace.SpeedNow[gear], ChartX(workspace.ShiftNe),
              DesignedGearColour(gear));
    });
  }
}

/// The same line as on the main window's chart; here each of its parts may be left out.
void DrawTooth(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  const auto speed = [&](int gear) { return static_cast<double>(workspace.SpeedNow[gear]); };
  const SawTooth tooth = SawToothOf(ChartX(workspace.ShiftNe), ChartX(workspace.MaxNe), speed);
  DrawSawTooth(report.surface, tooth, kBlack, [&](const std::function<void()>& step) { Run(report, step); });
}

void DrawChart(const Report& report) {
  const Workspace& workspace = report.program.workspace;
  SetChartScale(report);
  DrawAxes(report);
  DrawSpeedTicks(report);
  DrawNeTicks(report);
  DrawRays(report);
  DrawTooth(report);
  report.surface.drawWidth = 1;
  DrawMarkLine(report.surface, ChartX(workspace.ShiftNe), workspace.MaxSpeed, kPenDotted, kBlack);
}

}  // namespace

void DrawReport(const Program& program, Surface& surface, const ReportStyle& style) {
  const Report report{program, surface, style};
  DrawRemark(report);
  surface.font.name = program.workspace.PrintFont;
  surface.font.size = style.textSize;
  DrawFigures(report);
  DrawTable(report);
  if (ShowsParts(program.form2)) DrawParts(report);
  DrawChart(report);
}

}  // namespace veldrin
