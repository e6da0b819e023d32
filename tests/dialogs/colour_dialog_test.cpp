#include "dialogs/colour_dialog.h"

#include "tests/dialogs/dialog_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

/// The colour dialog before there is a plan, with a red of its own for each gear.
struct ColourDialog : DialogFixture {
  ColourDialog() {
    AttachColourDialog(program);
    program.workspace.ModeWord = mode::kBasing;
    for (int gear = 1; gear <= kGears; ++gear) program.workspace.GearColour[gear] = Rgb(gear, 0, 0);
    program.form9.Load();
  }
};

TEST_F(ColourDialog, OkStoresGearByGear) {
  program.form9->Command2.Click();
  EXPECT_EQ(registry.writes, (std::vector<std::string>{"Color_1=1", "Color_2=2", "Color_3=3", "Color_4=4",
                                                       "Color_5=5", "Color_6=6"}));
  EXPECT_FALSE(program.form9);
}

TEST_F(ColourDialog, EachGearIsShownAndStoredBeforeTheNext) {
  Form2& form2 = program.form2;
  const auto& colours = program.workspace.GearColour;
  int gear = 0;
  registry.onWrite = [&](const std::string& value) {
    ++gear;
    EXPECT_EQ(value, "Color_" + std::to_string(gear));
    EXPECT_EQ(form2.Label1[gear].ForeColor, colours[gear]);
    EXPECT_EQ(form2.Label44[gear].ForeColor, colours[gear]);
    if (gear == kGears) return;
    EXPECT_NE(form2.Label1[gear + 1].ForeColor.get(), colours[gear + 1]);
  };
  program.form9->Command2.Click();
  EXPECT_EQ(gear, kGears);
}

TEST_F(ColourDialog, ChartIsDrawnOnceBeforeTheDialogGoes) {
  Workspace& workspace = program.workspace;
  workspace.ModeWord = mode::kChange;
  workspace.ShiftNe = 12000;
  workspace.ReferenceNe = 12000;
  workspace.MaxNe = 15000;
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.SpeedNow[gear] = 80.0F + 10.0F * static_cast<float>(gear);
    workspace.SpeedBaseline[gear] = workspace.SpeedNow[gear];
  }
  const Picture& chart = program.form2.Picture21;
  int wiped = 0;
  windows.onContent = [&](const Control& control) {
    if (&control == &chart && chart.surface.Drawing().empty()) ++wiped;
  };
  bool unloaded = false;
  windows.onEvent["Form9.Unload"] = [&] {
    unloaded = true;
    // Six rays, six of the baseline, two upright lines and twelve lines of the saw-tooth.
    ASSERT_EQ(chart.surface.Drawing().size(), 26U);
    // 90 km/h at 12000 rev/min are 112.5 at 15000.
    EXPECT_EQ(Describe(chart.surface.Drawing()[0]), "line 0 0 15000 112.5 1,0,0 style=0 width=1");
  };
  program.form9->Command2.Click();
  EXPECT_TRUE(unloaded);
  EXPECT_EQ(wiped, 1);
}

TEST_F(ColourDialog, StoreThatRefusesGoesUnnoticed) {
  registry.refusesWrites = true;
  program.form9->Command4.Click();
  EXPECT_EQ(program.workspace.GearColour[1], PaletteColour(9));
  EXPECT_EQ(program.form2.Label9[6].ForeColor, PaletteColour(14));
  EXPECT_EQ(registry.writes.size(), 6U);
  EXPECT_FALSE(program.form9);
  EXPECT_TRUE(simulated.log.lines.empty());
}

// A negative number in the store is a colour of the system; it goes back as it came.
TEST_F(ColourDialog, NumbersBeyondTheColoursComeBackAsTheyWere) {
  program.form9->Label1[11].ForeColor = Colour{0x80000005};
  program.form9->Command2.Click();
  EXPECT_EQ(registry.writes[0], "Color_1=-2147483643");
}

TEST_F(ColourDialog, WithoutAMachineNothingIsDrawn) {
  program.workspace.ModeWord = "";
  EXPECT_EQ(Guarded([&] { program.form9->Command2.Click(); }), 0);
  EXPECT_TRUE(program.form2.Picture21.surface.Drawing().empty());
}

}  // namespace
}  // namespace veldrin
