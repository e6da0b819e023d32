// Kept plans as they come back to the screen.
#include "safety/reopen.h"

#include "tests/safety/kept_offers.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST_F(KeptOffersTest, WhatIsOpenedStaysKeptWhereItCannotBeKeptAnew) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  const auto files = folder.files;
  NettedProgram p(folder, "");
  p.offers->Begin();
  folder.fault = kFaultDiskFull;
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[2].Caption, "2B");
  EXPECT_EQ(folder.files, files);
}

TEST_F(KeptOffersTest, OpenBringsAllBackChangedAndUnsaved) {
  LeaveBehind(folder, kPlanPath, [](NettedProgram& p) {
    StepTwo(p);
    p.Do([&] { user::Spin(p.Main().Spin4, true); });
    p.Do([&] { user::ScrollTo(p.Main().HScroll1, 11000); });
    p.Do([&] { user::EnterText(p.Main().Text6, "wet\r\ncold"); });
  });
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.Act(kOpen);
  ASSERT_FALSE(p.program->ended);
  EXPECT_EQ(p.Work().MachineName, "NX4");
  EXPECT_EQ(p.Work().ModeWord, mode::kChange);
  EXPECT_EQ(p.Main().Label12[2].Caption, "2B");
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
  EXPECT_EQ(p.Main().Label12[1].Caption, "1A");
  EXPECT_EQ(p.Main().Label6.Caption, "21-40");
  EXPECT_EQ(p.Work().ShiftNe, 11000);
  EXPECT_EQ(p.Main().HScroll1.Value, 11000);
  EXPECT_EQ(p.Main().Text6.Text, "wet\r\ncold");
  // 2 m x 11000 / 60 x 3.6 km/h x 21/40 x 16/40 x 11/15
  EXPECT_NEAR(p.Work().SpeedNow[6], 1320.0F * 21 / 40 * 16 / 40 * 11 / 15, 0.01);
  EXPECT_EQ(p.Work().SpeedBaseline[6], 160.0F);
  EXPECT_EQ(p.Work().DataChanged, dirty::kYes);
  EXPECT_EQ(p.Work().DataFile, kPlanPath);
  EXPECT_TRUE(p.Main().Caption.get().ends_with("[A.nx4]" + p.Work().ChangedMark)) << p.Main().Caption.get();
  // The copy is this program's own by now, and the old one is gone.
  EXPECT_EQ(folder.KeptNames(), std::vector<std::string>{p.net->KeptId() + ".kept"});
  EXPECT_EQ(folder.files.size(), 2U);
  // Restore leads back to the file.
  ASSERT_TRUE(p.Main().Command7.Enabled);
  p.Click(p.Main().Command7);
  EXPECT_EQ(p.Main().Label12[2].Caption, "2A");
  EXPECT_EQ(p.Work().ShiftNe, 10000);
  p.net->Secure();
  EXPECT_TRUE(folder.files.empty());
}

TEST_F(KeptOffersTest, RequestsComeBackWithTheirModes) {
  std::int16_t tolerance = 0;
  LeaveBehind(folder, kPlanPath, [&](NettedProgram& p) {
    p.Click(p.Main().Command2);
    p.Do([&] { user::EnterText(p.Main().Text1[6], "222"); });
    p.Do([&] { user::EnterText(p.Main().Text1[5], "199"); });
    p.Click(p.Main().Command1[3]);
    p.Do([&] { user::Spin(p.Main().Spin3[3], true); });
    tolerance = p.Work().TolerancePlus[3];
  });
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Work().ModeWord, mode::kSpeed);
  EXPECT_EQ(p.Main().Text1[6].Text, "222");
  EXPECT_EQ(p.Work().SpeedRequest[6], 222.0F);
  EXPECT_EQ(p.Main().Text1[5].Text, "199");
  EXPECT_EQ(p.Main().Text1[4].Text, "120");
  EXPECT_EQ(p.Main().Command1[3].Caption, kManual);
  EXPECT_EQ(p.Main().Command1[4].Caption, kAuto);
  EXPECT_EQ(p.Work().TolerancePlus[3], tolerance);
  EXPECT_NE(tolerance, p.Work().TolerancePlus[4]);
  EXPECT_EQ(p.Main().Label15[3].Caption, std::to_string(tolerance));
  EXPECT_EQ(p.Main().Label43.Caption, kRequestsShown);
}

TEST_F(KeptOffersTest, RequestsByRevolutionsComeBack) {
  LeaveBehind(folder, kPlanPath, [](NettedProgram& p) {
    p.Click(p.Main().Command2);
    p.Click(p.Main().Command2, kRightButton);
    p.Do([&] { user::Spin(p.Main().SpinButton2[4], true); });
  });
  NettedProgram p(folder, "");
  p.offers->Begin();
  const std::int16_t base = p.Work().BaseNe[4];
  EXPECT_EQ(base, 0);
  p.Act(kOpen);
  EXPECT_EQ(p.Work().ModeWord, mode::kRpm);
  EXPECT_TRUE(p.Main().Picture30.Visible);
  EXPECT_EQ(p.Work().RequestNe[4], p.Work().BaseNe[4] + 50);
  EXPECT_EQ(p.Main().Label35[4].Caption, std::to_string(p.Work().RequestNe[4]));
  EXPECT_EQ(p.Main().Label35[3].Caption, std::to_string(p.Work().BaseNe[3]));
}

TEST_F(KeptOffersTest, PlanWithoutAFileComesBackOverAFirstPlan) {
  LeaveBehind(folder, "", [](NettedProgram& p) {
    p.Click(p.Main().Command2);
    StepTwo(p);
  });
  NettedProgram p(folder, kPlanPath);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[2].Caption, "2B");
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
  EXPECT_EQ(p.Work().DataFile, "");
  EXPECT_EQ(p.Main().Label2[6].Caption, "");
  EXPECT_EQ(p.Work().DataChanged, dirty::kYes);
}

TEST_F(KeptOffersTest, PlanWhoseFileIsGoneComesBack) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.simulated.files.Remove(kPlanPath);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
  EXPECT_TRUE(p.Main().Caption.get().ends_with("[A.nx4]" + p.Work().ChangedMark));
  EXPECT_EQ(p.Work().DataFile, kPlanPath);
}

TEST_F(KeptOffersTest, OpenBringsTheListAlong) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "C:\\VELDRIN\\LIST\\VT2.RAT");
  ASSERT_EQ(p.Work().MachineName, "VT2");
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Work().MachineName, "NX4");
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
}

TEST_F(KeptOffersTest, ForbiddenPairComesBackRed) {
  LeaveBehind(folder, kPlanPath, [](NettedProgram& p) {
    p.Step(3);
    p.Step(4);
  });
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[3].BackColor, kRed);
  EXPECT_FALSE(p.Main().Command5.Enabled);
}

TEST_F(KeptOffersTest, PlanOnTheScreenIsKeptWhenAnotherIsOpened) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, kPlanPath);
  p.Step(1);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(folder.KeptNames().size(), 2U);
  EXPECT_EQ(p.Main().Label12[1].Caption, "1A");
}

TEST_F(KeptOffersTest, ListThatIsGoneIsToldAndThePlanStays) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "C:\\VELDRIN\\LIST\\VT2.RAT");
  p.simulated.files.Remove(kListPath);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Last().severity, Severity::Failure);
  EXPECT_EQ(
      p.Last().text.english,
      "A plan of NX4 from 21:04 was not opened: its list C:\\VELDRIN\\LIST\\NX4.RAT is gone or cannot be "
      "read. It stays as /state/id1-1.nx4");
  EXPECT_EQ(
      p.Last().text.japanese,
      "21:04 の NX4 のプランは開けません。機種ファイル C:\\VELDRIN\\LIST\\NX4.RAT がないか、読めません。 "
      "/state/id1-1.nx4 に残します。");
  EXPECT_EQ(folder.KeptNames().size(), 1U);
  EXPECT_EQ(p.Work().MachineName, "VT2");
}

TEST_F(KeptOffersTest, ListWithoutAPartIsToldAndThePlanStays) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "C:\\VELDRIN\\LIST\\VT2.RAT");
  std::string list = kTwoRowList;
  list.replace(list.find("6B"), 2, "6C");
  p.simulated.files.AddFile(kListPath, list);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Last().severity, Severity::Failure);
  EXPECT_EQ(
      p.Last().text.english,
      "A plan of NX4 from 21:04 was not opened: the list C:\\VELDRIN\\LIST\\NX4.RAT no longer has all of its "
      "parts. It stays as /state/id1-1.nx4");
  EXPECT_EQ(p.Last().text.japanese,
            "21:04 の NX4 のプランは開けません。機種ファイル C:\\VELDRIN\\LIST\\NX4.RAT "
            "に、この部品がなくなっています。 /state/id1-1.nx4 に残します。");
  EXPECT_EQ(folder.KeptNames().size(), 1U);
}

TEST_F(KeptOffersTest, RowThatMovedIsFoundByItsText) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "C:\\VELDRIN\\LIST\\VT2.RAT");
  std::string list = kTwoRowList;
  list.replace(list.find("6A,10,15"), 8, "6B,11,15");
  list.replace(list.rfind("6B,11,15"), 8, "6A,10,15");
  p.simulated.files.AddFile(kListPath, list);
  p.offers->Begin();
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
  EXPECT_EQ(p.Work().PlanIndex[6], 1);
}

}  // namespace
}  // namespace veldrin
