#include "machine/real_machine.h"

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "simulated/simulated_machine.h"
#include "tests/desktop/program_folders.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace veldrin {
namespace {

/// The program on the real machine, with the simulated one's windows and clock, in folders of its own.
class RealMachineTest : public ::testing::Test, protected ProgramFolders {
 protected:
  void TearDown() override {
    simulated.windows.Forget();
    program.reset();
    real.reset();
  }

  void Start(const QString& commandLine) {
    real = std::make_unique<RealMachine>(simulated.windows, simulated.metrics);
    program = AssembleProgram(real->machine);
    StartProgram(*program, commandLine.toStdString());
    simulated.clock.Advance(3000,
                            [this](TimerControl& timer) { RunEvent(*program, [&] { timer.Timer(); }); });
  }

  void End() {
    RunEvent(*program, [this] { program->form2.UnloadWindow(); });
  }

  SimulatedMachine simulated;
  std::unique_ptr<RealMachine> real;
  std::unique_ptr<Program> program;
};

TEST_F(RealMachineTest, TheFirstRunTakesTheCurrentFolderAndReadsTheDefaultList) {
  Start("");
  EXPECT_EQ(program->endFault, 0);
  EXPECT_TRUE(program->form2.Visible);
  EXPECT_EQ(program->workspace.AppPath, PathOf("program"));
  EXPECT_EQ(program->workspace.MachineName, "NX4");
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, kSettings, "App Path"), PathOf("program"));
  EXPECT_EQ(TempFiles(), QStringList("VELD000.TMP"));
}

TEST_F(RealMachineTest, APlanOfTheCommandLineIsInTheHistoryAfterwards) {
  Start(QString::fromStdString(PathOf("PROGRAM/dat/DRY.NX4")));
  EXPECT_EQ(program->workspace.CommandFile, PlanFile());
  EXPECT_EQ(program->workspace.DataFile, PlanFile());
  EXPECT_EQ(program->form2.Text6.Text, "remark");
  EXPECT_GT(QFile(In("temp/VELD000.TMP")).size(), 50);
  RunEvent(*program, [this] { program->workspace.DataChanged = "NO"; });
  End();
  EXPECT_TRUE(program->ended);
  EXPECT_EQ(program->endFault, 0);
  EXPECT_EQ(TempFiles(), QStringList());
  const std::string history = std::string(kSettings) + "\\Ext\\Sub";
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, history, "0"), "1");
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, history, "1"), PlanFile());
}

TEST_F(RealMachineTest, TheProgramGoesOnWhereSettingsCannotBeStored) {
  // A file where the folder should be.
  Put("config", "");
  Start("");
  EXPECT_EQ(program->endFault, 0);
  EXPECT_FALSE(program->ended);
  EXPECT_TRUE(program->form2.Visible);
  EXPECT_EQ(program->workspace.MachineName, "NX4");
  End();
  EXPECT_TRUE(program->ended);
  EXPECT_EQ(program->endFault, 0);
}

TEST_F(RealMachineTest, ASecondCopyTakesTheNextWorkingFile) {
  Start("");
  RealMachine other(simulated.windows, simulated.metrics);
  EXPECT_EQ(other.instances.Others(), 1);
  const std::unique_ptr<Program> second = AssembleProgram(other.machine);
  StartProgram(*second, "");
  EXPECT_FALSE(second->workspace.FirstInstance);
  EXPECT_EQ(TempFiles(), (QStringList{"VELD000.TMP", "VELD001.TMP"}));
  simulated.windows.Forget();
}

TEST_F(RealMachineTest, LeftoversOfACrashGoAway) {
  Put("temp/VELD000.TMP", "left");
  Put("temp/veld007.tmp", "left");
  Start("");
  EXPECT_TRUE(program->workspace.TempCleaned);
  EXPECT_EQ(TempFiles(), QStringList("VELD000.TMP"));
}

}  // namespace
}  // namespace veldrin
