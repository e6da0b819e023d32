// Plans as they are written, and writing that fails.
#include "tests/workspace/plan_program.h"
#include "workspace/files/plan_file.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(PlanFile, WritesTheLinesInTheirOrder) {
  Open(PlanLines());
  workspace.TyreLength = 1.95F;
  workspace.ShiftNe = 9750;
  workspace.SpeedNow[1] = 58.5F;
  workspace.PrimaryIndex = 1;
  workspace.FinalIndex = 1;
  workspace.PlanIndex[2] = 2;
  form2.Text6.Text = "two\r\nlines";
  const std::string text = Joined({"FROM:T1.RAT", "1.95", "9750", "58.5", "80", "100", "120", "150", "160",
                                   "20", "50", "15", "40", "1.A-2B-3A-4A-5A-6A", "two", "lines"});
  EXPECT_EQ(Save(), text);
  EXPECT_EQ(WorkFileText(), text);
}

TEST_F(PlanFile, WritesDecimalsWithTheSystemsSeparator) {
  Open(PlanLines());
  workspace.DecimalSep = ",";
  workspace.TyreLength = 1.95F;
  workspace.SpeedNow[1] = 58.5F;
  const std::string text = Save();
  EXPECT_TRUE(text.starts_with("FROM:T1.RAT\r\n1,95\r\n10000\r\n58,5\r\n80\r\n")) << text;
}

// Teeth of one digit, or of three, do not fit two characters.
TEST_F(PlanFile, TeethOutsideTwoDigitsAreCutToTheirColumns) {
  Open(PlanLines());
  workspace.PrimaryTable[2].Text = RatioText(20, 9);
  workspace.FinalTable[2].Text = RatioText(13, 100);
  const std::string text = Save();
  EXPECT_NE(text.find("\r\n20\r\n9 \r\n13\r\n10\r\n"), std::string::npos) << text;
  Open(text);
  EXPECT_EQ(workspace.FilePrimaryDriven, 9);
  EXPECT_EQ(workspace.FileFinalDriven, 10);
}

TEST_F(PlanFile, SavingLeavesThePlanUnchangedAndRestoreReady) {
  Open(PlanLines());
  workspace.DataChanged = dirty::kYes;
  workspace.WorkFileStale = true;
  Save();
  EXPECT_EQ(workspace.DataChanged, "NO");
  EXPECT_FALSE(workspace.WorkFileStale);
  EXPECT_TRUE(form2.Command7.Enabled);
  EXPECT_TRUE(form2.f_rest.Enabled);
}

TEST_F(PlanFile, SavingNeedsTheOpenHandle) {
  Open(PlanLines());
  EXPECT_EQ(Guarded([&] { SavePlanFile(program); }), kFaultBadFileName);
}

TEST_F(PlanFile, AReadOnlyTargetStopsTheWriting) {
  Open(PlanLines());
  simulated.files.AddFile("C:\\VELDRIN\\DAT\\B.t1", "old");
  simulated.files.SetReadOnly("C:\\VELDRIN\\DAT\\B.t1");
  EXPECT_EQ(Guarded([&] { Save(); }), kFaultPermissionDenied);
  EXPECT_EQ(simulated.files.Text("C:\\VELDRIN\\DAT\\B.t1"), "old");
  EXPECT_FALSE(program.files.IsOpen(Handle::Plan));
}

TEST_F(PlanFile, AFullDiskLeavesTheOldPlanWhole) {
  Open(PlanLines());
  simulated.files.AddFile("C:\\VELDRIN\\DAT\\B.t1", "old");
  program.files.OpenOutput(Handle::Plan, "C:\\VELDRIN\\DAT\\B.t1");
  simulated.files.SetDiskFull(true);
  EXPECT_EQ(Guarded([&] { SavePlanFile(program); }), kFaultDiskFull);
  EXPECT_EQ(Guarded([&] { program.files.Close(Handle::Plan); }), kFaultDiskFull);
  EXPECT_EQ(simulated.files.Text("C:\\VELDRIN\\DAT\\B.t1"), "old");
}

TEST_F(PlanFile, AWorkFileThatCannotBeWrittenRefusesThePlan) {
  simulated.files.SetReadOnly("C:\\TEMP");
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "NG");
  EXPECT_FALSE(program.files.IsOpen(Handle::WorkFile));
  simulated.files.SetReadOnly("C:\\TEMP", false);
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "OK");
}

TEST_F(PlanFile, AFullDiskLeavesNoHandleOpen) {
  Open(PlanLines());
  simulated.files.SetDiskFull(true);
  EXPECT_EQ(Guarded([&] { WriteWorkFile(program); }), kFaultDiskFull);
  EXPECT_FALSE(program.files.IsOpen(Handle::WorkFile));
  simulated.files.SetDiskFull(false);
  EXPECT_EQ(Guarded([&] { WriteWorkFile(program); }), 0);
}

TEST_F(PlanFile, AWorkingFileThatCouldNotBeWrittenIsGoneAndStale) {
  Open(PlanLines());
  simulated.files.SetDiskFull(true);
  EXPECT_EQ(Guarded([&] { WriteWorkFile(program); }), kFaultDiskFull);
  EXPECT_TRUE(workspace.WorkFileStale);
  EXPECT_EQ(WorkFileText(), "(no file)");
  EXPECT_FALSE(program.files.IsOpen(Handle::WorkFile));
  simulated.files.SetDiskFull(false);
  WriteWorkFile(program);
  EXPECT_FALSE(workspace.WorkFileStale);
  EXPECT_EQ(WorkFileText(), Joined(PlanLines()));
}

TEST_F(PlanFile, APlanWhoseWorkingFileCouldNotBeWrittenCountsAsChanged) {
  simulated.files.SetDiskFull(true);
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "NG");
  EXPECT_EQ(workspace.ModeWord, "CHANGE");
  EXPECT_EQ(workspace.DataChanged, "YES");
}

}  // namespace
}  // namespace veldrin
