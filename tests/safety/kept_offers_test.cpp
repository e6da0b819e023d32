#include "safety/kept_offers.h"

#include "safety/reopen.h"
#include "tests/safety/netted_program.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr std::size_t kOpen = 0;
constexpr std::size_t kKeepAsFile = 1;
constexpr std::size_t kForget = 2;

/// A copy of the program that does something and is gone.
void LeaveBehind(MemoryKeepFolder& folder, const std::string& file,
                 const std::function<void(NettedProgram& p)>& work) {
  NettedProgram p(folder, file);
  work(p);
  p.net->Secure();
}

void StepTwo(NettedProgram& p) {
  p.Step(2);
  p.Step(6);
}

class KeptOffersTest : public ::testing::Test {
 protected:
  MemoryKeepFolder folder;
};

TEST_F(KeptOffersTest, NothingKeptIsNothingTold) {
  NettedProgram p(folder, "");
  p.offers->Begin();
  EXPECT_EQ(p.Told(), 0U);
}

TEST_F(KeptOffersTest, OfferNamesMachineAndTime) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.offers->Begin();
  ASSERT_EQ(p.Told(), 1U);
  EXPECT_EQ(p.Last().text.english, "A plan of NX4 from 21:04 was not saved.");
  EXPECT_EQ(p.Last().text.japanese, "21:04 の NX4 のプランは保存されていません。");
  ASSERT_EQ(p.Last().actions.size(), 3U);
  EXPECT_EQ(p.Last().actions[0].caption.english, "Open");
  EXPECT_EQ(p.Last().actions[1].caption.english, "Keep as file");
  EXPECT_EQ(p.Last().actions[2].caption.english, "Forget");
}

TEST_F(KeptOffersTest, TimeOfAnotherDayHasItsDate) {
  EXPECT_EQ(SpokenTime("2026-11-22T21:04:05", "2026-11-22T23:59:59"), "21:04");
  EXPECT_EQ(SpokenTime("2026-11-21T21:04:05", "2026-11-22T00:00:00"), "2026-11-21 21:04");
  EXPECT_EQ(SpokenTime("yesterday", "2026-11-22T00:00:00"), "yesterday");
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

TEST_F(KeptOffersTest, OpenAsksBeforeItIsClosed) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.Act(kOpen);
  p.Close();
  EXPECT_FALSE(p.program->ended);
  EXPECT_EQ(p.Main().Label17.Caption.get(), "Processed file's data was changed !");
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

TEST_F(KeptOffersTest, KeepAsFileTakesANameThatNothingBears) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.simulated.files.AddFile("C:\\VELDRIN\\DAT\\A-1.nx4", "mine");
  p.offers->Begin();
  p.Act(kKeepAsFile);
  EXPECT_EQ(p.Last().text.english, "Saved as C:\\VELDRIN\\DAT\\A-2.nx4");
  EXPECT_EQ(p.simulated.files.Text("C:\\VELDRIN\\DAT\\A-1.nx4"), "mine");
  const std::string text = p.simulated.files.Text("C:\\VELDRIN\\DAT\\A-2.nx4").value_or("");
  EXPECT_TRUE(text.starts_with("FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n")) << text;
  EXPECT_TRUE(text.find("1A-2B-3A-4A-5A-6B\r\n") != std::string::npos);
  EXPECT_TRUE(folder.files.empty());
}

TEST_F(KeptOffersTest, KeepAsFileThatFailsOffersAgain) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.simulated.files.SetReadOnly("C:\\VELDRIN\\DAT");
  p.Act(kKeepAsFile);
  ASSERT_EQ(p.Told(), 3U);
  EXPECT_EQ(p.simulated.notices.told[1].severity, Severity::Failure);
  EXPECT_EQ(p.Last().actions.size(), 3U);
  EXPECT_EQ(folder.KeptNames().size(), 1U);
}

TEST_F(KeptOffersTest, ForgetForgets) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, "");
  p.offers->Begin();
  p.Act(kForget);
  EXPECT_TRUE(folder.files.empty());
  EXPECT_EQ(p.Told(), 1U);
  EXPECT_FALSE(folder.IsClaimed("id1"));
}

TEST_F(KeptOffersTest, SeveralAreOfferedOneAfterTheOtherTheNewestFirst) {
  for (const char* time : {"2026-11-22T20:00:00", "2026-11-22T22:00:00", "2026-11-22T21:00:00"}) {
    folder.now = time;
    LeaveBehind(folder, kPlanPath, StepTwo);
  }
  NettedProgram p(folder, "");
  p.offers->Begin();
  ASSERT_EQ(p.Told(), 1U);
  EXPECT_EQ(p.Last().text.english, "A plan of NX4 from 22:00 was not saved.");
  p.Act(kForget);
  EXPECT_EQ(p.Last().text.english, "A plan of NX4 from 21:00 was not saved.");
  p.Act(kForget);
  EXPECT_EQ(p.Last().text.english, "A plan of NX4 from 20:00 was not saved.");
  EXPECT_EQ(folder.KeptNames().size(), 1U);
}

TEST_F(KeptOffersTest, WhatOneCopyOffersNoOtherDoes) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram first(folder, "");
  first.offers->Begin();
  NettedProgram second(folder, "");
  second.offers->Begin();
  EXPECT_EQ(first.Told(), 1U);
  EXPECT_EQ(second.Told(), 0U);
}

TEST_F(KeptOffersTest, WhatAnotherCopyEditsIsNotOffered) {
  NettedProgram first(folder, kPlanPath);
  StepTwo(first);
  first.net->Secure();
  NettedProgram second(folder, "");
  second.offers->Begin();
  EXPECT_EQ(second.Told(), 0U);
}

TEST_F(KeptOffersTest, DamagedAndNewerOnesAreToldAndStay) {
  folder.files["a.kept"] = "veldrin kept plan 1\nmachine=NX4\n";
  folder.files["b.kept"] = "veldrin kept plan 7\n";
  NettedProgram p(folder, "");
  p.offers->Begin();
  ASSERT_EQ(p.Told(), 2U);
  EXPECT_EQ(p.simulated.notices.told[0].text.english,
            "/state/b.kept was kept by a newer version of the program; it stays there.");
  EXPECT_EQ(p.simulated.notices.told[1].text.english,
            "/state/a.kept is a kept plan that is damaged; it stays there.");
  EXPECT_EQ(folder.files.size(), 2U);
  EXPECT_FALSE(folder.IsClaimed("a"));
}

TEST_F(KeptOffersTest, OpenWaitsForAQuestion) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  NettedProgram p(folder, kPlanPath);
  p.offers->Begin();
  p.Main().Enabled = false;
  p.Act(kOpen);
  EXPECT_EQ(p.Told(), 2U);
  EXPECT_EQ(p.Main().Label12[6].Caption, "6A");
  p.Main().Enabled = true;
  p.Act(kOpen);
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
}

TEST_F(KeptOffersTest, StartAgainOpensTheNamedOneUnasked) {
  LeaveBehind(folder, kPlanPath, StepTwo);
  LeaveBehind(folder, kPlanPath, [](NettedProgram& p) { p.Step(1); });
  NettedProgram p(folder, "");
  EXPECT_TRUE(p.net != std::nullopt);
  p.Do([&] { EXPECT_TRUE(p.offers->OpenAtOnce("id1")); });
  EXPECT_EQ(p.Main().Label12[6].Caption, "6B");
  EXPECT_EQ(p.Told(), 0U);
  p.offers->Begin();
  EXPECT_EQ(p.Told(), 1U);
  EXPECT_FALSE(p.offers->OpenAtOnce("id9"));
}

}  // namespace
}  // namespace veldrin
