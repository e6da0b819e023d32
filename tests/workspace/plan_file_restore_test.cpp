// Restore, which reads the working file.
#include "tests/workspace/plan_program.h"
#include "workspace/files/plan_file.h"

namespace veldrin {
namespace {

TEST_F(PlanFile, RestoreReadsTheWorkingFileBack) {
  Open(PlanLines());
  workspace.PlanIndex[1] = 2;
  workspace.FinalIndex = 1;
  workspace.ShiftNe = 9000;
  form2.Text6.Text = "other";
  RestorePlan(program);
  EXPECT_EQ(workspace.PlanIndex[1], 1);
  EXPECT_EQ(workspace.FinalIndex, 2);
  EXPECT_EQ(workspace.ShiftNe, 10000);
  EXPECT_EQ(form2.Text6.Text.get(), "Rain");
  EXPECT_EQ(form2.Label12[1].Caption.get(), "1.A");
  EXPECT_EQ(workspace.DataChanged, "1");
  EXPECT_EQ(workspace.CallerWord, "");
}

TEST_F(PlanFile, RestoreClearsTheMarkAndDisablesItself) {
  Open(PlanLines());
  form2.Caption = form2.Caption + workspace.ChangedMark;
  form2.Command7.Enabled = true;
  form2.f_rest.Enabled = true;
  RestorePlan(program);
  EXPECT_EQ(form2.Caption.get(), "Mr.Veldrin[T1] - [DAT] - [A.t1]");
  EXPECT_FALSE(form2.Command7.Enabled);
  EXPECT_FALSE(form2.f_rest.Enabled);
}

TEST_F(PlanFile, RestoreLeavesFileHistoryAndChooserAlone) {
  Open(PlanLines());
  workspace.DataFile = "C:\\VELDRIN\\DAT\\Z.t1";
  program.form3.Visible = true;
  RestorePlan(program);
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\Z.t1");
  EXPECT_EQ(workspace.HistoryCount, 1);
  EXPECT_TRUE(program.form3.Visible);
}

TEST_F(PlanFile, RestoreKeepsTheScales) {
  Open(PlanLines());
  Lines lines = PlanLines();
  lines[2] = "15000";
  lines[8] = "300";
  simulated.files.AddFile(kWorkPath, Joined(lines));
  RestorePlan(program);
  EXPECT_EQ(workspace.MaxNe, 14000);
  EXPECT_EQ(workspace.MaxSpeed, 180);
  EXPECT_EQ(form2.HScroll1.Max.get(), 14000);
  EXPECT_EQ(form2.HScroll1.Value.get(), 15000);
}

TEST_F(PlanFile, RestoreDoesNotAskAboutSpeedsNorRewriteItsFile) {
  Open(PlanLines());
  Lines lines = PlanLines();
  lines[5] = "101";
  simulated.files.AddFile(kWorkPath, Joined(lines));
  workspace.WorkFileStale = true;
  RestorePlan(program);
  EXPECT_EQ(workspace.ResultWord, "DIFF");
  EXPECT_FALSE(form2.Picture20.Visible);
  EXPECT_TRUE(form2.Command11.Enabled);
  EXPECT_EQ(WorkFileText(), Joined(lines));
  EXPECT_TRUE(workspace.WorkFileStale);
}

TEST_F(PlanFile, RestoreKeepsTheModeWordDataAlone) {
  Open(PlanLines());
  for (const char* word : {"BASING", "SPEED", "RPM", "REF_QR", "LIST", "QR", "REF"}) {
    workspace.ModeWord = word;
    RestorePlan(program);
    EXPECT_EQ(workspace.ModeWord, "CHANGE") << word;
  }
  workspace.ModeWord = mode::kData;
  RestorePlan(program);
  EXPECT_EQ(workspace.ModeWord, "DATA");
}

TEST_F(PlanFile, WithoutAPlanOfTheLoadedMachineNothingIsRestored) {
  Open(PlanLines());
  Lines other = PlanLines();
  other[1] = "1.5";
  for (const char* firstLine : {"", "FROM:T2.RAT", "FROM:T1", "FROM:T1.RAT ", "T1.RAT", "LIST"}) {
    other[0] = firstLine;
    simulated.files.AddFile(kWorkPath, Joined(other));
    workspace.DataChanged = dirty::kYes;
    workspace.ResultWord = "before";
    EXPECT_FALSE(RestorePlan(program)) << firstLine;
    EXPECT_EQ(workspace.TyreLength, 2.0F) << firstLine;
    EXPECT_EQ(workspace.DataChanged, "YES") << firstLine;
    EXPECT_EQ(workspace.ResultWord, "before") << firstLine;
  }
  simulated.files.AddFile(kWorkPath, "");
  EXPECT_FALSE(RestorePlan(program));
  simulated.files.Remove(kWorkPath);
  EXPECT_EQ(Guarded([&] { RestorePlan(program); }), kFaultFileNotFound);
}

TEST_F(PlanFile, TheMachineOfTheWorkingFileIsToldWithoutRegardToCase) {
  Open(PlanLines());
  Lines lines = PlanLines();
  lines[0] = "From:t1.rat";
  lines[1] = "1.5";
  simulated.files.AddFile(kWorkPath, Joined(lines));
  EXPECT_TRUE(RestorePlan(program));
  EXPECT_EQ(workspace.TyreLength, 1.5F);
}

}  // namespace
}  // namespace veldrin
