// The chart that the console draws against the canvas of the window: the same lines, to the last bit.
#include "mainwin/chart.h"
#include "plan/page/chart_drawing.h"
#include "plan/page/page_output.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

struct NoMetrics : TextMetrics {
  TextSize Measure(const Font&, const std::string&) const override { return {0, 0}; }
};

/// A program with the plan of a file in the window, and the same plan as the console has it.
struct ChartPage : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  PlanSheet sheet;
  NoMetrics metrics;
  Surface surface{metrics};

  ChartPage() {
    Workspace& workspace = program.workspace;
    workspace.ModeWord = mode::kChange;
    workspace.MachineKey = "nx4";
    workspace.ShiftNe = 12800;
    workspace.ReferenceNe = 12500;
    workspace.CheckNe = 9500;
    workspace.MaxNe = 14000;
    workspace.MaxSpeed = 280;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.GearColour[gear] = PaletteColour(8 + gear);
      workspace.SpeedNow[gear] = 60.3F + 31.7F * static_cast<float>(gear);
      workspace.SpeedBaseline[gear] = 58.1F + 30.9F * static_cast<float>(gear);
      SheetGear& of = sheet.gears[static_cast<std::size_t>(gear - 1)];
      of.speed = workspace.SpeedNow[gear];
      of.stored = workspace.SpeedBaseline[gear];
    }
    sheet.title = "A<B";
    sheet.shiftNe = 12800;
    sheet.referenceNe = 12500;
    sheet.checkNe = 9500;
    sheet.maxNe = 14000;
    sheet.maxSpeed = 280;
    sheet.hasStored = true;
  }
  ~ChartPage() override { simulated.windows.Forget(); }

  void ExpectTheWindowsLines() {
    ChartScale(program);
    ChartPlan(program);
    DrawPlans(surface, {sheet});
    const std::vector<Primitive>& window = program.form2.Picture21.surface.Drawing();
    const std::vector<Primitive>& drawn = surface.Drawing();
    ASSERT_EQ(drawn.size(), window.size());
    for (std::size_t k = 0; k < drawn.size(); ++k) {
      EXPECT_TRUE(drawn[k].shape == window[k].shape)
          << "expected " << Describe(window[k]) << "\nfound    " << Describe(drawn[k]);
      EXPECT_TRUE(drawn[k].scale == window[k].scale) << k;
    }
  }
};

TEST_F(ChartPage, DrawsAPlanLineByLineAsTheWindow) {
  ExpectTheWindowsLines();
  EXPECT_EQ(surface.Drawing().size(), 26U) << "6 and 6 rays, 2 marks, 12 lines of the saw-tooth";
}

TEST_F(ChartPage, DrawsAPlanWithoutStoredSpeedsAsTheWindowDrawsOneOnItself) {
  sheet.hasStored = false;
  DrawPlans(surface, {sheet});
  EXPECT_EQ(surface.Drawing().size(), 20U);
}

TEST_F(ChartPage, StandsInTheSvgAtTheWindowsPlaces) {
  std::ostringstream out;
  WriteSvg(out, EnglishWords(), {sheet}, nullptr);
  // The shift line: 12800 of 14000 rev/min of a plot that begins at 490 and is 3975 twips wide and 5525 high.
  EXPECT_NE(out.str().find("<line x1=\"4124.29\" y1=\"5525\" x2=\"4124.29\" y2=\"0\" stroke=\"#ffffff\" "),
            std::string::npos)
      << out.str();
  // 2nd gear's climb ends at 123.7 of 280 km/h: 5525 less 123.7 times 5525 over 280.
  EXPECT_NE(out.str().find("x2=\"4124.29\" y2=\"3084.13\" stroke=\"#ffffff\"/>"), std::string::npos)
      << out.str();
  EXPECT_NE(out.str().find(">A&lt;B</text>"), std::string::npos);
}

TEST_F(ChartPage, HasTicksAndNumeralsAtTheirValues) {
  std::ostringstream out;
  WriteSvg(out, EnglishWords(), {sheet}, nullptr);
  // 5000 of 14000 rev/min of 3975 twips that begin at 490, 100 of 280 km/h of 5525.
  EXPECT_NE(out.str().find("<line x1=\"1909.64\" y1=\"5525\" x2=\"1909.64\" "), std::string::npos)
      << out.str();
  EXPECT_NE(out.str().find("<text x=\"1909.64\" "), std::string::npos) << out.str();
  EXPECT_NE(out.str().find("y1=\"3551.79\" x2=\"490\" y2=\"3551.79\" "), std::string::npos) << out.str();
  EXPECT_NE(out.str().find(">5</text>"), std::string::npos);
  EXPECT_NE(out.str().find(">100</text>"), std::string::npos);
}

TEST_F(ChartPage, NamesAsManyPlansAsThereAreColours) {
  std::ostringstream out;
  WriteSvg(out, EnglishWords(), std::vector<PlanSheet>(11, sheet), nullptr);
  int named = 0;
  for (std::size_t at = out.str().find(">A&lt;B</text>"); at != std::string::npos; ++named) {
    at = out.str().find(">A&lt;B</text>", at + 1);
  }
  EXPECT_EQ(named, 8);
  EXPECT_NE(out.str().find(">+ 3</text>"), std::string::npos);
}

TEST_F(ChartPage, LaysPlansOverEachOtherOnAScaleThatHoldsAll) {
  PlanSheet other = sheet;
  other.maxNe = 16000;
  other.maxSpeed = 300;
  other.shiftNe = 13000;
  DrawPlans(surface, {sheet, other});
  // 6 and 6 rays, 2 shift lines, the check line, 12 and 12 lines of the saw-teeth.
  EXPECT_EQ(surface.Drawing().size(), 39U);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 300, 16000, -300}));
  EXPECT_EQ(std::get<LinePrimitive>(surface.Drawing().back().shape).colour, PaletteColour(14));
  EXPECT_EQ(std::get<LinePrimitive>(surface.Drawing()[6].shape).style, kPenDotted);
}

}  // namespace
}  // namespace veldrin
