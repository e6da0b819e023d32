#include "workspace/files/plan_file.h"

#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "runtime/text.h"
#include "simulated/simulated_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

// With revolutions 10000, tyre 2, primary 20-40 and final 16-40 the speeds of row 1 are whole:
// 10000 * 2 * 0.5 * 0.4 * 0.06 = 240 km/h times the pair's ratio.
constexpr char kList[] =
    "LIST\r\nT1\r\nFINAL-DRIVE\r\n15,16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,2,PRIMARY\r\n20,50\r\n20,"
    "40\r\n99\r\n"
    "-\r\n-\r\n"
    "1.A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\n"
    "1.B,10,50,2B,10,32,3B,10,25,4B,12,25,5B,10,17,6B,10,12\r\n"
    "M34-ARRAY\r\n0,0\r\n0,0\r\n"
    "TYRE_L=1.5\r\nSHIFT_NE=9000\r\nCHECK_NE=9000\r\nMAX_SPEED=180\r\nMAX_NE=14000\r\n";

constexpr char kListPath[] = "C:\\VELDRIN\\LIST\\T1.RAT";
constexpr char kPlanPath[] = "C:\\VELDRIN\\DAT\\A.t1";
constexpr char kWorkPath[] = "C:\\TEMP\\VELD000.TMP";

using Lines = std::vector<std::string>;

Lines PlanLines() {
  return {"FROM:T1.RAT", "2",   "10000", "60", "80", "100", "120",
          "150",         "160", "20",    "40", "16", "40",  "1.A-2A-3A-4A-5A-6A",
          "Rain"};
}

std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

struct PlanFile : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;

  PlanFile() {
    program.hooks.RefreshDisplay = [this] { RefreshDisplay(program); };
    program.hooks.ChartScale = [this] { ChartScale(program); };
    workspace.Language = kEnglish;
    LoadLanguage(program);
    workspace.TitlePrefix = "Mr.Veldrin";
    workspace.ChangedMark = " - Changed";
    workspace.HistoryMax = 6;
    workspace.WorkFile = kWorkPath;
    simulated.files.AddFile(kListPath, kList);
    OpenAnyFile(program, kListPath);
  }
  ~PlanFile() override { simulated.windows.Forget(); }

  void Open(const std::string& text) {
    simulated.files.AddFile(kPlanPath, text);
    OpenAnyFile(program, kPlanPath);
  }
  void Open(const Lines& lines) { Open(Joined(lines)); }

  std::string Save() {
    program.files.OpenOutput(Handle::Plan, "C:\\VELDRIN\\DAT\\B.t1");
    SavePlanFile(program);
    program.files.Close(Handle::Plan);
    return simulated.files.Text("C:\\VELDRIN\\DAT\\B.t1").value_or("(no file)");
  }

  std::string WorkFileText() { return simulated.files.Text(kWorkPath).value_or("(no file)"); }
};

TEST_F(PlanFile, ReadsIntoTheWorkspace) {
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.TyreLength, 2.0F);
  EXPECT_EQ(workspace.ShiftNe, 10000);
  EXPECT_EQ(workspace.ReferenceNe, 10000);
  const float speeds[] = {60, 80, 100, 120, 150, 160};
  for (int gear = 1; gear <= kGears; ++gear) {
    EXPECT_EQ(workspace.SpeedBaseline[gear], speeds[gear - 1]);
    EXPECT_EQ(workspace.SpeedNow[gear], speeds[gear - 1]);
    EXPECT_EQ(workspace.PlanIndex[gear], 1);
  }
  EXPECT_EQ(workspace.SpeedStepBaseline[1], 20.0F);
  EXPECT_EQ(workspace.SpeedStepBaseline[5], 10.0F);
  EXPECT_EQ(workspace.PrimaryIndex, 2);
  EXPECT_EQ(workspace.FinalIndex, 2);
  EXPECT_EQ(workspace.PlanLine, "1.A-2A-3A-4A-5A-6A");
  EXPECT_EQ(workspace.ModeWord, "CHANGE");
  EXPECT_EQ(workspace.CallerWord, "");
  EXPECT_EQ(workspace.DataChanged, "1");
  EXPECT_EQ(workspace.RemarkChanged, "NO");
  EXPECT_EQ(workspace.DataFile, kPlanPath);
  EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
}

TEST_F(PlanFile, ShowsThePlan) {
  Open(PlanLines());
  EXPECT_EQ(form2.Caption.get(), "Mr.Veldrin[T1] - [DAT] - [A.t1]");
  EXPECT_EQ(form2.Label6.Caption.get(), "20-40");
  EXPECT_EQ(form2.Label8.Caption.get(), "16-40");
  EXPECT_EQ(form2.Label2[1].Caption.get(), " 60.0");
  EXPECT_EQ(form2.Label2[6].Caption.get(), "160.0");
  EXPECT_EQ(form2.Label39[1].Caption.get(), "20.0");
  EXPECT_EQ(form2.Label39[5].Caption.get(), "10.0");
  EXPECT_EQ(form2.Label12[1].Caption.get(), "1.A");
  EXPECT_EQ(form2.Label12[6].Caption.get(), "6A");
  EXPECT_EQ(form2.Text3.Text.get(), "2");
  EXPECT_EQ(form2.Text4.Text.get(), "10000");
  EXPECT_EQ(form2.Text6.Text.get(), "Rain");
  EXPECT_EQ(form2.HScroll1.Value.get(), 10000);
  EXPECT_EQ(form2.Label43.Caption.get(), "CHG");
}

TEST_F(PlanFile, SetsTheControlsOfAPlan) {
  form2.Picture1.Visible = true;
  form2.Picture4.Visible = true;
  form2.Picture9.Visible = true;
  form2.Picture30.Visible = true;
  form2.Label38.Visible = true;
  form2.Command7.Enabled = true;
  form2.f_rest.Enabled = true;
  form2.f_calc.Enabled = true;
  Open(PlanLines());
  for (const Control* shown : std::initializer_list<const Control*>{
           &form2.Text6, &form2.Label13, &form2.Picture2, &form2.Picture3, &form2.Picture12, &form2.Picture14,
           &form2.Picture15, &form2.Picture29, &form2.Picture31, &form2.HScroll1, &form2.HScroll2}) {
    EXPECT_TRUE(shown->Visible) << shown->FullName();
  }
  for (const Control* hidden :
       std::initializer_list<const Control*>{&form2.Picture1, &form2.Picture4, &form2.Picture9,
                                             &form2.Picture30, &form2.Picture20, &form2.Label38}) {
    EXPECT_FALSE(hidden->Visible) << hidden->FullName();
  }
  for (const Control* on : std::initializer_list<const Control*>{
           &form2.Label6, &form2.Label8, &form2.Command11, &form2.Command5, &form2.menu_save,
           &form2.menu_print, &form2.menu_comb, &form2.menu_edit, &form2.HScroll1, &form2.HScroll2,
           &form2.Spin4, &form2.Spin5, &form2.Command4, &form2.f_comp}) {
    EXPECT_TRUE(on->Enabled) << on->FullName();
  }
  for (const Control* off :
       std::initializer_list<const Control*>{&form2.f_calc, &form2.Command7, &form2.f_rest}) {
    EXPECT_FALSE(off->Enabled) << off->FullName();
  }
  EXPECT_EQ(form2.Spin4.ForeColor.get(), kBlack);
  EXPECT_EQ(form2.Spin5.ForeColor.get(), kBlack);
  EXPECT_EQ(form2.Picture28.MousePointer.get(), kPointerDefault);
  EXPECT_EQ(form2.Picture3.ZOrder(), 0);
}

TEST_F(PlanFile, ASinglePrimaryRowLeavesItsArrowsDisabled) {
  workspace.PrimaryCount = 1;
  Open(PlanLines());
  EXPECT_FALSE(form2.Spin4.Enabled);
  EXPECT_EQ(form2.Spin4.ForeColor.get(), kLightGrey);
  EXPECT_TRUE(form2.Spin5.Enabled);
}

TEST_F(PlanFile, SixthGearAtTheTopLeavesTheScaleAlone) {
  Lines lines = PlanLines();
  lines[8] = "180";
  Open(lines);
  EXPECT_EQ(workspace.MaxSpeed, 180);
}

TEST_F(PlanFile, SixthGearAboveTheTopRaisesTheScale) {
  struct Case {
    const char* speed;
    int maxSpeed;
  };
  const Case cases[] = {{"180.1", 200}, {"187.3", 200}, {"190", 210}, {"319.9", 330},
                        {"320", 340},   {"330", 340},   {"400", 340}, {"99999", 340}};
  for (const Case& c : cases) {
    workspace.MaxSpeed = 180;
    Lines lines = PlanLines();
    lines[8] = c.speed;
    Open(lines);
    EXPECT_EQ(workspace.MaxSpeed, c.maxSpeed) << c.speed;
    EXPECT_EQ(form2.Picture21.surface.UserScale().top, c.maxSpeed) << c.speed;
  }
}

TEST_F(PlanFile, ShiftRevolutionsBeyondTheScaleWidenIt) {
  struct Case {
    const char* shiftNe;
    int maxNe;
  };
  for (const Case& c :
       {Case{"14000", 14000}, Case{"14001", 15001}, Case{"15000", 16000}, Case{"31767", 32767}}) {
    workspace.MaxNe = 14000;
    Lines lines = PlanLines();
    lines[2] = c.shiftNe;
    Open(lines);
    EXPECT_EQ(workspace.MaxNe, c.maxNe) << c.shiftNe;
    EXPECT_EQ(form2.HScroll1.Max.get(), c.maxNe) << c.shiftNe;
    EXPECT_NE(workspace.ResultWord, "NG") << c.shiftNe;
  }
}

TEST_F(PlanFile, ShiftRevolutionsMayHaveDecimals) {
  struct Case {
    const char* text;
    int shiftNe;
  };
  for (const Case& c : {Case{"10000.5", 10000}, Case{"10001.5", 10002}, Case{"10001,5", 10002},
                        Case{"1E4", 10000}, Case{" 9999.4 ", 9999}}) {
    Lines lines = PlanLines();
    lines[2] = c.text;
    Open(lines);
    EXPECT_EQ(workspace.ShiftNe, c.shiftNe) << c.text;
  }
}

TEST_F(PlanFile, LinesThatAreNoNumbersAreRefused) {
  for (const int line : {1, 2, 3, 8, 9, 12}) {
    for (const char* text : {"", "x", "1.2.3", "12a", "-", "1E99", "99999999999"}) {
      Lines lines = PlanLines();
      lines[static_cast<std::size_t>(line)] = text;
      if (std::string(text) == "99999999999" && line != 2 && line < 9) continue;  // a float, if a large one
      Open(lines);
      EXPECT_EQ(workspace.ResultWord, "NG") << "line " << line + 1 << ": " << text;
      EXPECT_FALSE(program.files.IsOpen(Handle::Reader));
      EXPECT_EQ(program.form3.Label4.Caption.get(), "You selected unknown file type.");
      EXPECT_EQ(workspace.HistoryCount, 0);
    }
  }
}

TEST_F(PlanFile, WhatWasReadBeforeAFaultStays) {
  Lines lines = PlanLines();
  lines[5] = "fast";
  Open(lines);
  EXPECT_EQ(workspace.TyreLength, 2.0F);
  EXPECT_EQ(workspace.ShiftNe, 10000);
  EXPECT_EQ(workspace.SpeedBaseline[2], 80.0F);
  EXPECT_EQ(workspace.SpeedBaseline[3], 0.0F);
  EXPECT_EQ(workspace.DataFile, "");
  EXPECT_EQ(workspace.ModeWord, "BASING");
  EXPECT_EQ(form2.Caption.get(), "Mr.Veldrin[T1]");
}

TEST_F(PlanFile, AFileCutAnywhereNeverDoesMoreThanReadOrRefuse) {
  const std::string whole = Joined(PlanLines());
  const std::size_t remark = whole.find("Rain");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    Open(whole.substr(0, length));
    EXPECT_FALSE(program.files.IsOpen(Handle::Reader)) << length;
    EXPECT_FALSE(program.files.IsOpen(Handle::WorkFile)) << length;
    if (length <= remark) {
      EXPECT_EQ(workspace.ResultWord, "NG") << length;
    } else {
      EXPECT_EQ(workspace.ResultWord, "OK") << length;
    }
  }
}

TEST_F(PlanFile, AnEmptyLineFifteenIsAnEmptyRemark) {
  Lines lines = PlanLines();
  lines[14] = "";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(form2.Text6.Text.get(), "");
  EXPECT_EQ(WorkFileText(), Joined(lines));
}

TEST_F(PlanFile, ARemarkKeepsItsLineBreaks) {
  for (const char* remark :
       {"", "one", "one\r\ntwo", "one\r\n", "\r\n", "\r\n\r\nthree\r\n\r\n", " blanks, \"quotes\" "}) {
    Open(PlanLines());
    form2.Text6.Text = remark;
    const std::string saved = Save();
    form2.Text6.Text = "other";
    Open(saved);
    EXPECT_EQ(form2.Text6.Text.get(), remark);
    EXPECT_EQ(Save(), saved);
  }
}

TEST_F(PlanFile, AHugeRemarkIsReadAndWritten) {
  std::string remark = "first";
  for (int line = 2; line <= 200000; ++line) remark += "\r\nline " + std::to_string(line);
  Lines lines = PlanLines();
  lines[14] = remark;
  Open(lines);
  EXPECT_EQ(form2.Text6.Text.get(), remark);
  EXPECT_EQ(WorkFileText(), Joined(lines));
}

TEST_F(PlanFile, TextsThatTheMachineDoesNotHaveLeaveTheRow) {
  struct Case {
    int line;
    const char* text;
  };
  for (const Case& c :
       {Case{9, "21"}, Case{10, "41"}, Case{11, "17"}, Case{12, "39"}, Case{13, "1.C-2-3-4-5-6"}}) {
    Open(PlanLines());
    Lines lines = PlanLines();
    lines[static_cast<std::size_t>(c.line)] = c.text;
    Open(lines);
    EXPECT_EQ(workspace.ResultWord, "OK") << c.text;
    EXPECT_EQ(workspace.PrimaryIndex, 2);
    EXPECT_EQ(workspace.FinalIndex, 2);
    EXPECT_EQ(workspace.PlanIndex[1], 1);
    EXPECT_EQ(workspace.PlanIndex[6], 1);
  }
}

TEST_F(PlanFile, PlanLinesWithTooFewOrTooManyPieces) {
  struct Case {
    const char* line;
    int rows[kGears];
  };
  const Case cases[] = {
      {"1.B-2B-3B-4B-5B-6B", {2, 2, 2, 2, 2, 2}},
      {"1.B-2B", {2, 2, 1, 1, 1, 1}},
      {"", {1, 1, 1, 1, 1, 1}},
      {"-----", {1, 1, 1, 1, 1, 1}},
      {"1.B-2B-3B-4B-5B-6B-1.A-2A", {2, 2, 2, 2, 2, 2}},
      {"-1.B-2B-3B-4B-5B-6B", {1, 1, 1, 1, 1, 1}},
      {"--3B---6B", {1, 1, 2, 1, 1, 2}},
      {"1.b-2B -3B", {1, 1, 2, 1, 1, 1}},
      {"99-99-99-99-99-99", {1, 1, 1, 1, 1, 1}},
  };
  for (const Case& c : cases) {
    Open(PlanLines());
    Lines lines = PlanLines();
    lines[13] = c.line;
    Open(lines);
    for (int gear = 1; gear <= kGears; ++gear) {
      EXPECT_EQ(workspace.PlanIndex[gear], c.rows[gear - 1]) << c.line << " gear " << gear;
    }
  }
}

TEST_F(PlanFile, OfEqualTextsTheFirstRowIsTaken) {
  workspace.GearTable(1, 1) = "1.B";
  Lines lines = PlanLines();
  lines[13] = "1.B-2A-3A-4A-5A-6A";
  Open(lines);
  EXPECT_EQ(workspace.PlanIndex[1], 1);
}

TEST_F(PlanFile, AListOfMoreRowsThanTheTablesHoldRefusesAnUnknownPair) {
  workspace.GearRows = 11;
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "OK");
  Lines lines = PlanLines();
  lines[13] = "1.A-2A-3A-4A-5A-nowhere";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "NG");
}

TEST_F(PlanFile, SpeedsThatDifferAskWhatToBelieve) {
  Lines lines = PlanLines();
  lines[5] = "101";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "DIFF");
  EXPECT_TRUE(form2.Picture20.Visible);
  EXPECT_EQ(form2.Picture20.ZOrder(), 0);
  EXPECT_EQ(form2.Label17.Caption.get(), "Data file's value is not correct!");
  EXPECT_EQ(form2.Command8.Caption.get(), "Recalc by SPEED");
  EXPECT_EQ(form2.Command9.Caption.get(), "Read Mission Plan");
  for (const Control* off :
       std::initializer_list<const Control*>{&form2.Command11, &form2.Text2, &form2.Text3, &form2.Text4,
                                             &form2.Text6, &form2.HScroll1, &form2.HScroll2}) {
    EXPECT_FALSE(off->Enabled) << off->FullName();
  }
  for (int gear = 1; gear <= kGears; ++gear) {
    EXPECT_FALSE(form2.Label12[gear].Enabled);
    EXPECT_FALSE(form2.Spin6[gear].Enabled);
  }
  EXPECT_TRUE(form2.Label12[0].Enabled);
  EXPECT_EQ(workspace.SpeedBaseline[3], 101.0F);
  EXPECT_EQ(workspace.SpeedNow[3], 100.0F);
  EXPECT_EQ(workspace.DataChanged, "1");
}

// (1 - 100 / s) * 9000 lies inside +-1.5 for s between 99.98334 and 100.01667.
TEST_F(PlanFile, ADeviationInsideTheBandIsNone) {
  struct Case {
    const char* speed;
    const char* result;
  };
  for (const Case& c :
       {Case{"99.983", "DIFF"}, Case{"99.984", "OK"}, Case{"100.016", "OK"}, Case{"100.017", "DIFF"}}) {
    Lines lines = PlanLines();
    lines[5] = c.speed;
    Open(lines);
    EXPECT_EQ(workspace.ResultWord, c.result) << c.speed;
  }
}

TEST_F(PlanFile, CommaDecimalsReadOnAPeriodSystem) {
  Lines lines = PlanLines();
  lines[1] = "2,0";
  lines[3] = "60,004";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.SpeedBaseline[1], 60.004F);
  EXPECT_EQ(form2.Label2[1].Caption.get(), " 60.0");
}

TEST_F(PlanFile, PeriodDecimalsReadOnACommaSystem) {
  workspace.DecimalSep = ",";
  Lines lines = PlanLines();
  lines[1] = "2.0";
  lines[3] = "60.004";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.SpeedBaseline[1], 60.004F);
  EXPECT_EQ(form2.Label2[1].Caption.get(), " 60,0");
}

TEST_F(PlanFile, APeriodInAGearTextIsNoDecimalSeparator) {
  workspace.DecimalSep = ",";
  Lines lines = PlanLines();
  lines[13] = "1.B-2A-3A-4A-5A-6A";
  Open(lines);
  EXPECT_EQ(workspace.PlanIndex[1], 2);
  EXPECT_EQ(form2.Label12[1].Caption.get(), "1.B");
}

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

// The scroll bar tells its change to whoever listens: who was writing is what the listener goes by.
TEST_F(PlanFile, TheScrollBarMovesUnderTheWordsOfItsReaders) {
  std::vector<std::string> words;
  form2.HScroll1.Change.Bind([&](int) { words.push_back(workspace.CallerWord); });
  form2.HScroll1.Value = 9000;
  words.clear();
  workspace.CallerWord = caller::kForm3DataLoad;
  Open(PlanLines());
  EXPECT_EQ(words, (std::vector<std::string>{"FORM3_2"}));
  words.clear();
  form2.HScroll1.Value = 9000;
  words.clear();
  RestorePlan(program);
  EXPECT_EQ(words, (std::vector<std::string>{"ORIGINAL"}));
}

TEST_F(PlanFile, LabelsAndRemarkChangeUnderModule1) {
  std::vector<std::string> words;
  const auto note = [&](int) { words.push_back(workspace.CallerWord); };
  form2.Label6.Change.Bind(note);
  form2.Label8.Change.Bind(note);
  form2.Text6.Change.Bind(note);
  for (int gear = 1; gear <= kGears; ++gear) form2.Label12[gear].Change.Bind(note);
  Lines lines = PlanLines();
  lines.push_back("second line");
  Open(lines);
  // The remark's first and further lines, both rows, six gears.
  EXPECT_EQ(words, std::vector<std::string>(10, "MODULE1"));
}

}  // namespace
}  // namespace veldrin
