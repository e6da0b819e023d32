// The one way in for every file, and what the list reader does to the windows.
#include "workspace/files/machine_list.h"

#include "simulated/simulated_machine.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

constexpr char kListPath[] = "C:\\VELDRIN\\LIST\\TEST.RAT";
constexpr char kUnknown[] = "You selected unknown file type.";

std::string ListText(const std::string& tag = "LIST") {
  return tag +
         "\r\nTest\r\nFINAL-DRIVE\r\n15,16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n"
         "20,60\r\n19,63\r\n99\r\n-\r\n-\r\n"
         "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21\r\nM34-ARRAY\r\n0\r\n";
}

class OpenFile : public testing::Test {
 protected:
  OpenFile() {
    workspace.Language = "ENGLISH";
    LoadLanguage(program);
    workspace.TitlePrefix = "Mr.Veldrin";
    workspace.ListPath = "C:\\VELDRIN\\LIST";
    workspace.HistoryMax = 6;
    simulated.files.AddFile(kListPath, ListText());
  }
  ~OpenFile() override { simulated.windows.Forget(); }

  void Open(const std::string& path) { OpenAnyFile(program, path); }
  void Open(const std::string& path, const std::string& text) {
    simulated.files.AddFile(path, text);
    OpenAnyFile(program, path);
  }
  void ExpectUnknownKind() {
    EXPECT_EQ(workspace.ResultWord, "NG");
    EXPECT_EQ(form3.Label4.Caption, kUnknown);
    EXPECT_TRUE(form3.Label4.Visible);
    EXPECT_FALSE(form3.Command1.Enabled);
    EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
  }

  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Form3& form3 = program.form3;
};

TEST_F(OpenFile, ListIsReadAndSorted) {
  Open(kListPath);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.MachineKey, "test");
  EXPECT_EQ(workspace.PrimaryTable[1].Text, "19-63");
  EXPECT_EQ(workspace.FinalTable[2].Text, "16-40");
  EXPECT_EQ(workspace.FinalRow1Text, "15-40");
  EXPECT_EQ(workspace.FinalRow7Text, "     ");
  EXPECT_EQ(workspace.PrimaryIndex, 1);
  EXPECT_EQ(workspace.FinalIndex, 1);
  EXPECT_EQ(workspace.ModeWord, "BASING");
  EXPECT_EQ(workspace.DataChanged, "0");
  EXPECT_EQ(workspace.RemarkChanged, "NO");
  EXPECT_EQ(workspace.CallerWord, "MODULE1") << "it stays so";
  EXPECT_EQ(form2.Caption, "Mr.Veldrin[TEST]");
  EXPECT_EQ(form2.Label6.Caption, "19-63");
  EXPECT_EQ(form2.Label8.Caption, "15-40");
  EXPECT_FALSE(form3.Command3.Visible);
  EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
}

TEST_F(OpenFile, WhatStandsBehindTheTagIsIgnored) {
  Open("C:\\VELDRIN\\LIST\\A.RAT", ListText("LISTEN, she said"));
  // The rest of the line is a field of its own, and so the name; the next keyword fails.
  ExpectUnknownKind();
  Open("C:\\VELDRIN\\LIST\\B.RAT", ListText("LISTING OF A MACHINE"));
  EXPECT_EQ(workspace.ResultWord, "OK");
  Open("C:\\VELDRIN\\LIST\\C.RAT", ListText("\"LIST, quoted\""));
  EXPECT_EQ(workspace.ResultWord, "OK");
}

TEST_F(OpenFile, TagsAreComparedExactly) {
  for (const char* tag : {"list", "LIS", "", "PLAN", "FORM:TEST.RAT", "\x1A\x02"}) {
    workspace.ResultWord = "";
    form3.Label4.Visible = false;
    form3.Command1.Enabled = true;
    Open("C:\\VELDRIN\\LIST\\A.RAT", ListText(tag));
    ExpectUnknownKind();
  }
  EXPECT_EQ(workspace.MachineKey, "");
}

TEST_F(OpenFile, EmptyFileIsOfNoKnownKind) {
  Open("C:\\VELDRIN\\LIST\\A.RAT", "");
  ExpectUnknownKind();
}

TEST_F(OpenFile, ListWithAWrongKeywordKeepsTheMainWindow) {
  Open(kListPath);
  form2.Picture12.Visible = true;
  form2.Command5.Enabled = true;
  workspace.ModeWord = "CHANGE";
  std::string text = ListText();
  text.replace(text.find("PRIMARY"), 7, "SECOND");
  Open("C:\\VELDRIN\\LIST\\A.RAT", text);
  ExpectUnknownKind();
  EXPECT_TRUE(form2.Picture12.Visible);
  EXPECT_TRUE(form2.Command5.Enabled);
  EXPECT_EQ(workspace.ModeWord, "CHANGE");
  EXPECT_EQ(workspace.DataChanged, "NO") << "what comes before the fields has happened";
}

TEST_F(OpenFile, ListResetsTheBaselineAndTheRequests) {
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.SpeedBaseline[gear] = 100;
    form2.Label2[gear].Caption = "100.0";
    form2.Text1[gear].Text = "100";
  }
  for (int step = 1; step < kGears; ++step) {
    form2.Label39[step].Caption = "20.0";
    form2.Label25[step].Caption = "20";
  }
  Open(kListPath);
  for (int gear = 1; gear <= kGears; ++gear) {
    EXPECT_EQ(workspace.SpeedBaseline[gear], 0);
    EXPECT_EQ(form2.Label2[gear].Caption, "");
    EXPECT_EQ(form2.Text1[gear].Text, "");
  }
  for (int step = 1; step < kGears; ++step) {
    EXPECT_EQ(form2.Label39[step].Caption, "");
    EXPECT_EQ(form2.Label25[step].Caption, "");
  }
}

TEST_F(OpenFile, ListInADataLoadIsAskedAboutAndStaysOpen) {
  workspace.CallerWord = "FORM3_2";
  Open(kListPath);
  EXPECT_EQ(workspace.ResultWord, "ANOTHER_LIST");
  EXPECT_EQ(form3.Label4.Caption, "RAT file will be changed. Are you sure?");
  EXPECT_TRUE(form3.Label4.Visible);
  EXPECT_TRUE(form2.Timer2.Enabled);
  EXPECT_TRUE(program.files.IsOpen(Handle::Reader));
  EXPECT_EQ(workspace.MachineKey, "");
  ReadMachineList(program);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.MachineKey, "test");
}

TEST_F(OpenFile, ReaderWithoutAWaitingFileRefuses) {
  ReadMachineList(program);
  ExpectUnknownKind();
}

TEST_F(OpenFile, SecondOpenWhileAListWaitsIsRefusedAndClosesIt) {
  workspace.CallerWord = "FORM3_2";
  Open(kListPath);
  Open(kListPath);
  ExpectUnknownKind();
}

TEST_F(OpenFile, PlanWithoutAMachineNamesIt) {
  Open("C:\\VELDRIN\\DAT\\RAIN.nx4", "FROM:Nx4.RAT\r\n1.9\r\n");
  EXPECT_EQ(workspace.ResultWord, "DATA");
  EXPECT_EQ(workspace.MachineName, "NX4");
  EXPECT_EQ(workspace.MachineKey, "nx4");
  EXPECT_EQ(workspace.OpenFile, "C:\\VELDRIN\\DAT\\RAIN.nx4");
  EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
}

TEST_F(OpenFile, PlanOfAnotherMachineNamesItAsWritten) {
  Open(kListPath);
  Open("C:\\VELDRIN\\DAT\\RAIN.nx4", "FROM:Nx4.RAT\r\n1.9\r\n");
  EXPECT_EQ(workspace.ResultWord, "ANOTHER");
  EXPECT_EQ(workspace.MachineName, "Nx4");
  EXPECT_EQ(workspace.MachineKey, "test");
  EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
}

TEST_F(OpenFile, PlanWithoutAPeriodInItsTagIsOfNoKnownKind) {
  Open("C:\\VELDRIN\\DAT\\RAIN.nx4", "FROM:NX4\r\n1.9\r\n");
  ExpectUnknownKind();
}

TEST_F(OpenFile, MissingFileOnTheCommandLineIsToldInABox) {
  workspace.CallerWord = "FORM1";
  form3.Command1.Enabled = true;
  Open("C:\\VELDRIN\\NONE.RAT");
  ASSERT_EQ(simulated.boxes.shown.size(), 1U);
  EXPECT_EQ(simulated.boxes.shown[0].icon, "exclamation");
  EXPECT_EQ(simulated.boxes.shown[0].title, "Veldrin");
  EXPECT_EQ(simulated.boxes.shown[0].text, "Bad Command-line Option or Bad File-name or File-type.");
  EXPECT_EQ(workspace.ResultWord, "NG");
  EXPECT_TRUE(form3.Command1.Enabled) << "the chooser is left alone";
}

TEST_F(OpenFile, MissingFileOfTheListChooserIsToldThere) {
  workspace.CallerWord = "FORM3";
  form3.Label4.Visible = false;
  Open("C:\\NOWHERE\\NONE.RAT");
  EXPECT_EQ(form3.Label4.Caption, "Selected File is not exist !!");
  EXPECT_TRUE(form3.Label4.Visible);
  EXPECT_EQ(workspace.ResultWord, "NG");
  EXPECT_TRUE(simulated.boxes.shown.empty());
}

TEST_F(OpenFile, MissingFileElsewhereIsOfNoKnownKind) {
  workspace.CallerWord = "";
  Open("C:\\VELDRIN\\NONE.RAT");
  ExpectUnknownKind();
  EXPECT_TRUE(simulated.boxes.shown.empty());
}

TEST_F(OpenFile, DriveThatIsNotReadyIsNoMissingFile) {
  workspace.CallerWord = "FORM1";
  Open("A:\\NONE.RAT");
  ExpectUnknownKind();
  EXPECT_TRUE(simulated.boxes.shown.empty());
}

TEST_F(OpenFile, RefusedFileLeavesTheHistory) {
  form2.menu_files[0].Visible = true;
  for (int k = 1; k <= 2; ++k) {
    form2.menu_files.Load(k).Caption = "C:\\VELDRIN\\DAT\\P" + std::to_string(k) + ".nx4";
  }
  workspace.HistoryCount = 2;
  Open("C:\\VELDRIN\\DAT\\P1.nx4");
  EXPECT_EQ(workspace.HistoryCount, 1);
  EXPECT_EQ(form2.menu_files[1].Caption, "C:\\VELDRIN\\DAT\\P2.nx4");
  Open("C:\\VELDRIN\\DAT\\p2.NX4");
  EXPECT_EQ(workspace.HistoryCount, 1) << "entries are compared exactly";
  Open("C:\\VELDRIN\\DAT\\P2.nx4");
  EXPECT_EQ(workspace.HistoryCount, 0);
  EXPECT_FALSE(form2.menu_files[0].Visible);
}

TEST_F(OpenFile, TyreOfAListShowsInItsBox) {
  Open("C:\\VELDRIN\\LIST\\A.RAT", ListText() + "TYRE_L=2.05\r\n");
  EXPECT_EQ(form2.Text3.Text, "2.05");
  EXPECT_EQ(workspace.TyreLength, 2.05F);
}

}  // namespace
}  // namespace veldrin
