// The refresh that turns a plan into the columns of the main window.
#include "mainwin/refresh_display.h"

#include "simulated/simulated_machine.h"
#include "tests/calc/search_tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A main window on a machine at which gear g runs `kmh` at 5000 rev/min with its first row.
class Refresh : public testing::Test {
 protected:
  Refresh() {
    Workspace machine = HundredKmhMachine();
    machine.TitlePrefix = "Mr.Veldrin";
    machine.ChangedMark = " - Changed";
    machine.MaxSpeed = 340;
    machine.MaxNe = 15000;
    machine.CheckNe = 10000;
    machine.ReferenceNe = machine.ShiftNe;
    machine.PrimaryIndex = 1;
    machine.FinalIndex = 1;
    machine.GearRows = 10;
    program.workspace = machine;
    Plan({40, 60, 80, 100, 120, 140});
    program.form2.Caption = "Mr.Veldrin[HUNDRED]";
  }
  ~Refresh() override { simulated.windows.Forget(); }

  /// Gives the gears these speeds, to a hundredth.
  void Plan(const std::vector<double>& kmh) {
    for (int gear = 1; gear <= kGears; ++gear) {
      const double speed = kmh[static_cast<std::size_t>(gear - 1)];
      SetPair(program.workspace, gear, 1, "A", static_cast<int>(std::lround(100 * speed)), 10000);
      program.workspace.PlanIndex[gear] = 1;
    }
  }

  template <class Array>
  static std::vector<std::string> Captions(Array& labels, int count) {
    std::vector<std::string> captions;
    for (int k = 1; k <= count; ++k) captions.push_back(labels[k].Caption);
    return captions;
  }

  std::vector<Colour> PairColours() {
    std::vector<Colour> colours;
    for (int gear = 1; gear <= kGears; ++gear) colours.push_back(program.form2.Label12[gear].BackColor);
    return colours;
  }

  using Texts = std::vector<std::string>;
  using Colours = std::vector<Colour>;

  SimulatedMachine simulated;
  Program program{simulated.machine};
  Form2& form2 = program.form2;
  Workspace& workspace = program.workspace;
};

TEST_F(Refresh, FillsTheColumns) {
  RefreshDisplay(program);
  EXPECT_EQ(Captions(form2.Label9, 6), (Texts{" 40.0", " 60.0", " 80.0", "100.0", "120.0", "140.0"}));
  EXPECT_EQ(Captions(form2.Label40, 5), (Texts{"20.0", "20.0", "20.0", "20.0", "20.0"}));
  EXPECT_EQ(Captions(form2.Label11, 6), (Texts{"5000", "3333", "3750", "4000", "4167", "4286"}));
  EXPECT_EQ(workspace.SpeedNow[0], workspace.SpeedNow[1]);
  EXPECT_EQ(workspace.ShiftDropNe[1], 5000);
}

TEST_F(Refresh, FirstOneTakesTheBaselineFromTheSpeeds) {
  RefreshDisplay(program);
  for (int gear = 1; gear <= kGears; ++gear) {
    EXPECT_EQ(workspace.SpeedBaseline[gear], workspace.SpeedNow[gear]);
    EXPECT_EQ(form2.Label10[gear].Caption, "+-0");
    EXPECT_EQ(form2.Label_Dif[gear].Caption, "+-0") << "not the format's text with its blanks";
    EXPECT_EQ(form2.Label2[gear].Caption, "") << "the stored speeds' column is written by others";
  }
}

TEST_F(Refresh, CaptionsKeepTheirPointInPlaceButForShortNumbers) {
  Plan({1.5, 9, 12.3, 12, 123.4, 123});
  RefreshDisplay(program);
  EXPECT_EQ(Captions(form2.Label9, 6), (Texts{" 1.50", " 9.", " 12.3", " 12.0", "123.4", "123.0"}));
  // Steps 7.5, 3.3, -0.3, 111.4, -0.4.
  EXPECT_EQ(Captions(form2.Label40, 5), (Texts{" 7.5", " 3.3", " -.3", "111.4", " -.4"}));
}

TEST_F(Refresh, TallerPlanReadsNegativeInRevolutionsAndPositiveInSpeed) {
  for (int gear = 1; gear <= kGears; ++gear)
    workspace.SpeedBaseline[gear] = static_cast<float>(20 + 20 * gear);
  Plan({40.4, 59.4, 80, 100, 120, 140});
  RefreshDisplay(program);
  // (1 - 40.4/40) * 10000 = -100, (1 - 59.4/60) * 10000 = 100.
  EXPECT_EQ(Captions(form2.Label10, 6), (Texts{"-100", "+100", "+-0", "+-0", "+-0", "+-0"}));
  EXPECT_EQ(Captions(form2.Label_Dif, 6), (Texts{"+0.4", "-0.6", "  +-0", "  +-0", "  +-0", "  +-0"}));
}

TEST_F(Refresh, DeviationShowsFrom1Point5On) {
  const auto deviationOf = [&](float baseline, float now) {
    workspace.CallerWord = caller::kForm4Ok;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.SpeedBaseline[gear] = baseline;
      workspace.SpeedNow[gear] = now;
    }
    RefreshDisplay(program);
    return form2.Label10[1].Caption.get();
  };
  // In sixteenths the ratios are exact: (1 - 15/16) * CheckNe.
  workspace.CheckNe = 24;
  EXPECT_EQ(deviationOf(16, 15), "+2") << "exactly 1.5";
  EXPECT_EQ(deviationOf(16, 17), "-2") << "exactly -1.5";
  workspace.CheckNe = 23.9984F;
  EXPECT_EQ(deviationOf(16, 15), "+-0") << "1.4999";
  EXPECT_EQ(workspace.NeDeviation[1], 0);
  EXPECT_EQ(deviationOf(16, 17), "+-0") << "-1.4999";
}

TEST_F(Refresh, CheckRevolutionsAreAFactorOfTheDeviationAlone) {
  for (int gear = 1; gear <= kGears; ++gear)
    workspace.SpeedBaseline[gear] = static_cast<float>(20 + 20 * gear);
  Plan({40.4, 60, 80, 100, 120, 140});
  RefreshDisplay(program);
  const float speed = workspace.SpeedNow[1];
  EXPECT_EQ(form2.Label10[1].Caption, "-100");
  workspace.CheckNe = 5000;
  RefreshDisplay(program);
  EXPECT_EQ(form2.Label10[1].Caption, "-50");
  EXPECT_EQ(workspace.SpeedNow[1], speed);
}

TEST_F(Refresh, StepThatDoesNotRiseTurnsBothYellowAndBeepsOnEveryRefresh) {
  Plan({40, 60, 60, 100, 90, 140});
  RefreshDisplay(program);
  EXPECT_EQ(PairColours(), (Colours{kLightGrey, kYellow, kYellow, kYellow, kYellow, kLightGrey}));
  EXPECT_EQ(simulated.log.beeps, 2);
  EXPECT_EQ(form2.Label40[2].Caption, " .") << "a step of nothing";
  RefreshDisplay(program);
  EXPECT_EQ(simulated.log.beeps, 4);
}

TEST_F(Refresh, RisingStepGreysTheUpperGearButLeavesTheLowerYellow) {
  Plan({40, 60, 60, 100, 120, 140});
  RefreshDisplay(program);
  Plan({40, 60, 80, 100, 120, 140});
  RefreshDisplay(program);
  EXPECT_EQ(PairColours(), Colours(6, kLightGrey)) << "2 and 3 are the upper gears of steps";
  Plan({60, 60, 80, 100, 120, 140});
  RefreshDisplay(program);
  Plan({40, 60, 80, 100, 120, 140});
  RefreshDisplay(program);
  EXPECT_EQ(PairColours(), (Colours{kYellow, kLightGrey, kLightGrey, kLightGrey, kLightGrey, kLightGrey}));
}

TEST_F(Refresh, RedIsNeverRecoloured) {
  form2.Label12[3].BackColor = kRed;
  form2.Label12[4].BackColor = kRed;
  RefreshDisplay(program);
  EXPECT_EQ(PairColours(), (Colours{kLightGrey, kLightGrey, kRed, kRed, kLightGrey, kLightGrey}));
  Plan({40, 60, 50, 45, 30, 140});
  RefreshDisplay(program);
  EXPECT_EQ(PairColours(), (Colours{kLightGrey, kYellow, kRed, kRed, kYellow, kLightGrey}));
}

TEST_F(Refresh, WithoutAMachineOnlyTheFlagMoves) {
  workspace.MachineKey = "";
  workspace.DataChanged = dirty::kZero;
  RefreshDisplay(program);
  EXPECT_EQ(form2.Label9[1].Caption, "");
  EXPECT_EQ(workspace.SpeedNow[1], 0);
  EXPECT_EQ(form2.Picture21.surface.Drawing().size(), 0U);
  EXPECT_EQ(workspace.DataChanged, dirty::kOne);
}

TEST_F(Refresh, FlagGoesFrom0To1ToYesAndBack) {
  workspace.DataChanged = dirty::kZero;
  RefreshDisplay(program);
  EXPECT_EQ(workspace.DataChanged, dirty::kOne);
  RefreshDisplay(program);
  EXPECT_EQ(workspace.DataChanged, dirty::kYes);
  EXPECT_EQ(form2.Caption, "Mr.Veldrin[HUNDRED] - Changed");
  EXPECT_TRUE(form2.Command7.Enabled);
  EXPECT_TRUE(form2.f_rest.Enabled);
  RefreshDisplay(program);
  EXPECT_EQ(workspace.DataChanged, dirty::kNo) << "all deviations read +-0";
  EXPECT_EQ(form2.Caption, "Mr.Veldrin[HUNDRED]");
  EXPECT_FALSE(form2.Command7.Enabled);
  EXPECT_FALSE(form2.f_rest.Enabled);
}

TEST_F(Refresh, FlagStaysForScrollBarsTheBaselineCommandAndAStaleWorkingFile) {
  for (const char* word : {caller::kScroll, caller::kTakeBaseline}) {
    workspace.DataChanged = dirty::kNo;
    workspace.CallerWord = word;
    RefreshDisplay(program);
    EXPECT_EQ(workspace.DataChanged, dirty::kNo) << word;
  }
  workspace.CallerWord = caller::kUser;
  workspace.WorkFileStale = true;
  RefreshDisplay(program);
  EXPECT_EQ(workspace.DataChanged, dirty::kNo);
  EXPECT_EQ(form2.Caption, "Mr.Veldrin[HUNDRED]");
}

TEST_F(Refresh, NoughtAsDivisorIsAFault) {
  workspace.ShiftNe = 0;
  EXPECT_EQ(Guarded([&] { RefreshDisplay(program); }), kFaultOverflow) << "speeds and divisor are 0";
  workspace.ShiftNe = 5000;
  Plan({40, 0, 80, 100, 120, 140});
  EXPECT_EQ(Guarded([&] { RefreshDisplay(program); }), kFaultDivisionByZero);
  SetPair(program.workspace, 1, 1, "A", 1, 0);
  EXPECT_EQ(Guarded([&] { RefreshDisplay(program); }), kFaultDivisionByZero);
}

TEST_F(Refresh, RefreshThatFailsLeavesNoChartOfThePlanBefore) {
  RefreshDisplay(program);
  ASSERT_FALSE(form2.Picture21.surface.Drawing().empty());
  Plan({40, 0, 80, 100, 120, 140});
  EXPECT_EQ(Guarded([&] { RefreshDisplay(program); }), kFaultDivisionByZero);
  EXPECT_TRUE(form2.Picture21.surface.Drawing().empty());
}

}  // namespace
}  // namespace veldrin
