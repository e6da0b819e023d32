#include "dialogs/colour_dialog.h"

#include "script/simulated_machine.h"
#include "workspace/settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct RecordingRegistry : SimulatedRegistry {
  std::vector<std::string> writes;

  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override {
    EXPECT_EQ(root, RegistryRoot::CurrentUser);
    EXPECT_EQ(key, kSettingsKey);
    writes.push_back(value + "=" + text);
    return SimulatedRegistry::Write(root, key, value, text);
  }
};

struct ColourDialog : testing::Test {
  SimulatedMachine simulated;
  RecordingRegistry registry;
  Machine machine{simulated.files,     registry,          simulated.profile,  simulated.environment,
                  simulated.instances, simulated.screen,  simulated.windows,  simulated.boxes,
                  simulated.metrics,   simulated.printer, simulated.pictures, simulated.shell,
                  simulated.sound,     simulated.figures};
  Program program{machine};

  ColourDialog() {
    AttachColourDialog(program);
    program.workspace.ModeWord = mode::kBasing;
    for (int gear = 1; gear <= kGears; ++gear) program.workspace.GearColour[gear] = Rgb(gear, 0, 0);
    program.form9.Load();
  }
  ~ColourDialog() override { simulated.windows.Forget(); }
};

TEST_F(ColourDialog, OkStoresGearByGear) {
  program.form9->Command2.Click();
  EXPECT_EQ(registry.writes, (std::vector<std::string>{"Color_1=1", "Color_2=2", "Color_3=3", "Color_4=4",
                                                       "Color_5=5", "Color_6=6"}));
  EXPECT_FALSE(program.form9);
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
