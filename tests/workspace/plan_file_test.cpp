// Plans as they are read: into the workspace, to the main window, onto the chart; and what is refused.
#include "workspace/files/plan_file.h"

#include "tests/workspace/plan_program.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

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
