// The chart's drawing belongs to the mode and to the numbers in force.
#include "tests/monkey/oracle/oracle.h"

#include <algorithm>
#include <cmath>

namespace veldrin::monkey {

namespace {

constexpr Colour kWhiteLine = Rgb(255, 255, 255);
constexpr Colour kGreyLine = Rgb(192, 192, 192);

using Drawing = std::vector<LinePrimitive>;

/// The picture of six speeds: rays, baseline rays, shift-up line, check line, saw-tooth.
class ExpectedChart {
 public:
  explicit ExpectedChart(const Workspace& theWorkspace) : workspace(theWorkspace) {}

  const Workspace& workspace;
  Drawing lines;

  template <class SpeedTable>
  void Draw(const SpeedTable& speeds, bool baseline, bool checkLine, Colour shiftColour) {
    for (int gear = 1; gear <= kGears; ++gear) Ray(speeds[gear], workspace.ShiftNe, gear, 0);
    for (int gear = 1; gear <= kGears && baseline; ++gear) {
      Ray(workspace.SpeedBaseline[gear], workspace.ReferenceNe, gear, 2);
    }
    Add(workspace.ShiftNe, 0, workspace.ShiftNe, workspace.MaxSpeed, shiftColour, 3);
    if (checkLine) Add(workspace.CheckNe, 0, workspace.CheckNe, workspace.MaxSpeed, kGreyLine, 4);
    Tooth(speeds);
  }

 private:
  void Add(double x1, double y1, double x2, double y2, Colour colour, int style) {
    lines.push_back({x1, y1, x2, y2, colour, style, 1});
  }

  void Ray(double speed, double revolutions, int gear, int style) {
    const double maxNe = workspace.MaxNe;
    Add(0, 0, maxNe, maxNe * speed / revolutions, workspace.GearColour[gear], style);
  }

  template <class SpeedTable>
  void Tooth(const SpeedTable& speeds) {
    const double shift = workspace.ShiftNe;
    double x = 0;
    double y = 0;
    const auto to = [&](double nextX, double nextY) {
      Add(x, y, nextX, nextY, kWhiteLine, 0);
      x = nextX;
      y = nextY;
    };
    to(shift, speeds[1]);
    for (int gear = 2; gear <= kGears; ++gear) {
      to(shift * speeds[gear - 1] / speeds[gear], speeds[gear - 1]);
      to(shift, speeds[gear]);
    }
    to(workspace.MaxNe, workspace.MaxNe * static_cast<double>(speeds[kGears]) / shift);
  }
};

bool Near(double a, double b) {
  return std::fabs(a - b) <= 1e-6 * std::max({1.0, std::fabs(a), std::fabs(b)});
}

bool SameLine(const Primitive& drawn, const LinePrimitive& expected) {
  const auto* const line = std::get_if<LinePrimitive>(&drawn.shape);
  return line != nullptr && Near(line->x1, expected.x1) && Near(line->y1, expected.y1) &&
         Near(line->x2, expected.x2) && Near(line->y2, expected.y2) && line->colour == expected.colour &&
         line->style == expected.style;
}

/// Nothing where the two are the same, else the first difference.
std::string Difference(const std::vector<Primitive>& drawn, const Drawing& expected) {
  for (std::size_t i = 0; i < std::min(drawn.size(), expected.size()); ++i) {
    if (SameLine(drawn[i], expected[i])) continue;
    return "the chart's line " + std::to_string(i + 1) + " is " + Describe(drawn[i]) + ", not " +
           Describe({expected[i], {}});
  }
  if (drawn.size() == expected.size()) return "";
  return "the chart has " + std::to_string(drawn.size()) + " lines, not " + std::to_string(expected.size());
}

class ChartRule : public Rule {
 public:
  const char* Name() const override { return "chart"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    const std::string& word = look.memory.mode;
    const bool atRest = !look.now.ended && !look.now.chooserUp && program.form2.loaded &&
                        !program.workspace.MachineKey.empty();
    if (!atRest || look.memory.entryNotOpened) return "";
    if (word == mode::kBasing) return JudgeEmpty(program);
    if (word == mode::kReferenceInForce || word.empty()) return "";
    const std::string wrong = JudgeLegend(program, IsRequestMode(word));
    return wrong.empty() ? JudgeDrawing(look, IsRequestMode(word)) : wrong;
  }

 private:
  static std::string JudgeEmpty(const Program& program) {
    const std::size_t lines = program.form2.Picture21.surface.Drawing().size();
    return lines == 0 ? "" : "a machine without a plan has a chart of " + std::to_string(lines) + " lines";
  }

  static std::string JudgeLegend(const Program& program, bool requests) {
    if (program.form2.Label38.Visible != requests) {
      return requests ? "\"Request Mode\" is missing" : "\"Request Mode\" stands over the plan";
    }
    const std::string expected = requests ? "REQ" : "CHG";
    const std::string& legend = program.form2.Label43.Caption;
    return legend == expected ? "" : "the legend reads \"" + legend + "\", not \"" + expected + "\"";
  }

  static std::string JudgeDrawing(const Look& look, bool requests) {
    const Workspace& workspace = look.program.workspace;
    const std::vector<Primitive>& drawn = look.program.form2.Picture21.surface.Drawing();
    ExpectedChart expected(workspace);
    if (requests) {
      if (look.memory.requestTyped) return "";
      expected.Draw(workspace.SpeedRequest, true, true, kGreyLine);
      return Difference(drawn, expected.lines);
    }
    expected.Draw(workspace.SpeedNow, true, true, kWhiteLine);
    const std::string difference = Difference(drawn, expected.lines);
    if (difference.empty() || !look.memory.firstPlan) return difference;
    ExpectedChart bare(workspace);
    bare.Draw(workspace.SpeedNow, false, false, kWhiteLine);
    return Difference(drawn, bare.lines).empty() ? "" : difference;
  }
};

}  // namespace

std::unique_ptr<Rule> ChartShowsTheMode() {
  return std::make_unique<ChartRule>();
}

}  // namespace veldrin::monkey
