// Opening an entry of the history once the program has started.
#include "workspace/history_reopen.h"

#include "tests/dialogs/starting_program.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct Reopen : Startup {
  Reopen() {
    AddPlan("C:\\VELDRIN\\DAT\\A.nx4", Plan("NX4"));
    AddPlan("C:\\VELDRIN\\DAT\\B.nx4", Plan("NX4"));
    Start();
    Tick();
    form3.File1.DblClick.Bind([this](int) { doubleClicks.push_back(workspace.CallerWord); });
    AddToHistory(program, "C:\\VELDRIN\\DAT\\B.nx4");
    AddToHistory(program, "C:\\VELDRIN\\DAT\\A.nx4");
  }

  /// `CallerWord` at every double click on the file box.
  std::vector<std::string> doubleClicks;
};

TEST_F(Reopen, OutsideTheDataRoleTheFileBoxIsMovedWithoutTheGuard) {
  form3.Caption = Message(workspace, kListTitleMessage);
  form2.menu_files[2].Click();
  EXPECT_EQ(form3.Caption.get(), "Load Data File Select");
  EXPECT_EQ(form3.File1.Path.get(), "C:\\VELDRIN\\DAT");
  EXPECT_EQ(form3.File1.FileName.get(), "B.nx4");
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{""}));
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, OutsideTheDataRoleASelectedEntryFiresAllTheSame) {
  form3.Caption = Message(workspace, kSaveTitleMessage);
  form3.File1.Path = "C:\\VELDRIN\\DAT";
  form3.File1.FileName = "B.nx4";
  doubleClicks.clear();
  form2.menu_files[2].Click();
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{""}));
}

TEST_F(Reopen, InTheDataRoleAnotherEntryIsOpenedUnderTheGuard) {
  form3.Caption = Message(workspace, kDataTitleMessage);
  form2.menu_files[2].Click();
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{"CLOSE_OPEN"}));
  EXPECT_EQ(form3.File1.FileName.get(), "B.nx4");
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
  EXPECT_EQ(workspace.CallerWord, "");
  EXPECT_EQ(form2.menu_files[1].Caption.get(), "C:\\VELDRIN\\DAT\\B.nx4");
  EXPECT_TRUE(modalWords.empty());
}

TEST_F(Reopen, InTheDataRoleTheSelectedEntryIsOpenedDirectly) {
  form3.Caption = Message(workspace, kDataTitleMessage);
  form3.File1.Path = "C:\\VELDRIN\\DAT";
  form3.File1.FileName = "A.nx4";
  doubleClicks.clear();
  form2.menu_files[1].Click();
  EXPECT_TRUE(doubleClicks.empty());
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\A.nx4");
}

TEST_F(Reopen, AVanishedEntryDropsOutAndShowsTheChooser) {
  for (const int role : {kDataTitleMessage, kListTitleMessage}) {
    AddPlan("C:\\VELDRIN\\DAT\\C.nx4", Plan("NX4"));
    AddToHistory(program, "C:\\VELDRIN\\DAT\\C.nx4");
    simulated.files.Remove("C:\\VELDRIN\\DAT\\C.nx4");
    form3.Caption = Message(workspace, role);
    form2.menu_files[1].Click();
    EXPECT_EQ(modalWords, (std::vector<std::string>{""}));
    EXPECT_EQ(workspace.CallerWord, "");
    EXPECT_EQ(form3.Caption.get(), "Load Data File Select");
    EXPECT_TRUE(form3.Label4.Visible);
    EXPECT_EQ(form3.Label4.Caption.get(), "Selected File is not exist !!");
    EXPECT_EQ(workspace.HistoryCount, 2);
    modalWords.clear();
  }
}

TEST_F(Reopen, AFileInTheRootIsFoundThere) {
  AddPlan("D:\\R.nx4", Plan("NX4"));
  AddToHistory(program, "D:\\R.nx4");
  form3.Caption = Message(workspace, kDataTitleMessage);
  form2.menu_files[1].Click();
  EXPECT_EQ(form3.File1.Path.get(), "D:\\");
  EXPECT_EQ(workspace.DataFile, "D:\\R.nx4");
  EXPECT_EQ(workspace.DataPath, "D:");
  // And is then known as the selected one.
  doubleClicks.clear();
  form2.menu_files[1].Click();
  EXPECT_TRUE(doubleClicks.empty());
  EXPECT_EQ(workspace.ResultWord, "OK");
}

TEST_F(Reopen, UnsavedChangesAskFirst) {
  form2.Show();
  workspace.DataChanged = dirty::kYes;
  form2.menu_files[2].Click();
  EXPECT_TRUE(form2.Picture20.Visible);
  EXPECT_EQ(form2.Picture20.ZOrder(), 0);
  EXPECT_EQ(form2.Label17.Caption.get(), "Processing file's data is changed ! ");
  EXPECT_EQ(form2.Command8.Caption.get(), "Save and Load");
  EXPECT_EQ(form2.Command9.Caption.get(), "Not save. Load");
  EXPECT_EQ(form2.focus, &form2.Command9);
  EXPECT_EQ(workspace.PendingHistoryIndex, 2);
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, OtherWordsThanYesDoNotAsk) {
  form3.Caption = Message(workspace, kDataTitleMessage);
  for (const char* word : {"NO", "0", "1"}) {
    workspace.DataFile.clear();
    workspace.DataChanged = word;
    form2.menu_files[2].Click();
    EXPECT_FALSE(form2.Picture20.Visible) << word;
    EXPECT_NE(workspace.DataFile, "") << word;
  }
}

TEST_F(Reopen, QuickQuitDoesNotAsk) {
  workspace.QuickQuit = kYesWord;
  workspace.DataChanged = dirty::kYes;
  form3.Caption = Message(workspace, kDataTitleMessage);
  form2.menu_files[2].Click();
  EXPECT_FALSE(form2.Picture20.Visible);
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
}

TEST_F(Reopen, AForbiddenPairOnShowDoesNotAsk) {
  workspace.DataChanged = dirty::kYes;
  form2.Label12[3].BackColor = kRed;
  form3.Caption = Message(workspace, kDataTitleMessage);
  form2.menu_files[2].Click();
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
}

TEST_F(Reopen, TheSeparatorOnlyTestsForTheForbiddenPair) {
  workspace.DataChanged = dirty::kYes;
  ReopenFromHistory(program, 0);
  EXPECT_FALSE(form2.Picture20.Visible);
  EXPECT_EQ(workspace.DataChanged, "YES");
  form2.Label12[3].BackColor = kRed;
  ReopenFromHistory(program, 0);
  EXPECT_EQ(workspace.DataChanged, "NO");
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, AnEntryThatIsNotThereOpensNothing) {
  program.workspace.DataChanged = dirty::kYes;
  EXPECT_EQ(Guarded([&] { ReopenFromHistory(program, 9); }), 0);
  EXPECT_EQ(program.workspace.PendingHistoryIndex, 0);
  EXPECT_FALSE(program.form2.Picture20.Visible);
}

}  // namespace
}  // namespace veldrin
