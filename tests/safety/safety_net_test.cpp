#include "safety/safety_net.h"

#include "tests/safety/netted_program.h"
#include "workspace/failure_texts.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

class SafetyNetTest : public ::testing::Test {
 protected:
  /// What is kept on the disk now.
  std::vector<KeptPlan> Kept() {
    p.net->Secure();
    return OnDisk();
  }
  std::vector<KeptPlan> OnDisk() const {
    std::vector<KeptPlan> all;
    for (const std::string& name : folder.KeptNames()) all.push_back(ParseKept(*folder.Read(name)).kept);
    return all;
  }

  MemoryKeepFolder folder;
  NettedProgram p{folder, kPlanPath};
};

TEST_F(SafetyNetTest, PlanAsLoadedIsNotKept) {
  EXPECT_EQ(p.Work().ModeWord, mode::kChange);
  EXPECT_TRUE(Kept().empty());
  EXPECT_TRUE(folder.files.empty());
}

TEST_F(SafetyNetTest, ChangeIsKeptWithAllThatItIs) {
  p.Step(1);
  EXPECT_TRUE(p.net->IsDue());
  const std::vector<KeptPlan> kept = Kept();
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].plan.machine, "NX4");
  EXPECT_EQ(kept[0].plan.list, kListPath);
  EXPECT_EQ(kept[0].plan.file, kPlanPath);
  EXPECT_EQ(kept[0].plan.pairs[0].row, p.Work().PlanIndex[1]);
  EXPECT_EQ(kept[0].plan.remark, "remark");
  EXPECT_EQ(kept[0].when, folder.now);
  ASSERT_TRUE(folder.Read(kept[0].planFile));
  EXPECT_TRUE(folder.Read(kept[0].planFile)->starts_with("FROM:NX4.RAT\r\n"));
  EXPECT_TRUE(folder.IsClaimed("id1"));
}

TEST_F(SafetyNetTest, LaterChangeTakesThePlaceOfTheEarlier) {
  p.Step(1);
  Kept();
  p.Step(6);
  const std::vector<KeptPlan> kept = Kept();
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(kept[0].plan.pairs[5].row, p.Work().PlanIndex[6]);
  EXPECT_EQ(folder.files.size(), 2U);  // the kept plan and its plan file
}

TEST_F(SafetyNetTest, WhatStandsIsNotWrittenAgain) {
  p.Step(1);
  Kept();
  const int before = folder.replaced;
  p.Do([] {});
  Kept();
  EXPECT_EQ(folder.replaced, before);
}

TEST_F(SafetyNetTest, ChangeTakenBackIsForgotten) {
  p.Step(1);
  Kept();
  p.Step(1, false);
  EXPECT_TRUE(Kept().empty());
  EXPECT_TRUE(folder.files.empty());
  EXPECT_FALSE(folder.IsClaimed("id1"));
}

TEST_F(SafetyNetTest, EveryPartOfThePlanIsWatched) {
  const auto expectKept = [&](const char* what, const std::function<void()>& change) {
    SCOPED_TRACE(what);
    p.Do(change);
    EXPECT_EQ(Kept().size(), 1U);
    p.Click(p.Main().Command7);
    p.net->Adopt(TakeState(*p.program));
  };
  expectKept("remark", [&] { user::EnterText(p.Main().Text6, "other"); });
  expectKept("final", [&] { user::Spin(p.Main().Spin5, true); });
  expectKept("shift revolutions", [&] { user::ScrollTo(p.Main().HScroll1, 11000); });
  expectKept("check revolutions", [&] { user::ScrollTo(p.Main().HScroll2, 7000); });
  expectKept("tyre", [&] {
    user::EnterText(p.Main().Text3, "1.85");
    user::PressKey(p.Main().Text3, kKeyEnter);
  });
}

TEST_F(SafetyNetTest, SaveForgets) {
  p.Step(1);
  Kept();
  p.Do([&] { p.program->hooks.Saved(); });
  EXPECT_TRUE(Kept().empty());
  p.Do([] {});
  EXPECT_TRUE(Kept().empty());
  p.Step(1, false);
  EXPECT_EQ(Kept().size(), 1U);
}

TEST_F(SafetyNetTest, WhatCannotBeTakenAwayStaysWhole) {
  p.Step(1);
  const std::vector<KeptPlan> kept = Kept();
  folder.keeps.insert("id1.kept");
  p.Do([&] { p.program->hooks.Saved(); });
  Kept();
  EXPECT_EQ(folder.files.count(kept.at(0).planFile), 1U);
}

TEST_F(SafetyNetTest, RestoreForgets) {
  p.Step(1);
  Kept();
  p.Click(p.Main().Command7);
  EXPECT_NE(p.Work().DataChanged, dirty::kYes);
  EXPECT_TRUE(Kept().empty());
}

TEST_F(SafetyNetTest, RestoreToABaselineTakenMeanwhileIsStillAChange) {
  p.Step(1);
  p.Do([&] { p.Main().Command11.Click(); });
  Kept();
  EXPECT_EQ(Kept().size(), 1U);
}

TEST_F(SafetyNetTest, LoadWithTheUsersWordForgets) {
  p.Step(1);
  Kept();
  p.Do([&] {
    p.program->hooks.GivenUp();
    p.program->hooks.Loaded();
  });
  EXPECT_TRUE(Kept().empty());
}

TEST_F(SafetyNetTest, WordThatComesToNothingForgetsNothing) {
  p.Step(1);
  Kept();
  p.Do([&] { p.program->hooks.GivenUp(); });
  p.Do([&] { p.program->hooks.Loaded(); });
  EXPECT_EQ(OnDisk().size(), 1U);
  EXPECT_FALSE(folder.IsClaimed("id1"));  // whoever starts next may have it
}

TEST_F(SafetyNetTest, LoadUnaskedLeavesTheCopyAndBeginsANewOne) {
  p.Do([&] { user::ScrollTo(p.Main().HScroll1, 11000); });
  p.Do([&] { p.program->hooks.Loaded(); });
  ASSERT_EQ(OnDisk().size(), 1U);
  EXPECT_EQ(OnDisk()[0].plan.shiftNe, 11000);
  p.Step(1);
  EXPECT_EQ(Kept().size(), 2U);
}

TEST_F(SafetyNetTest, QuitWithTheUsersWordForgets) {
  p.Step(1);
  Kept();
  p.Close();
  ASSERT_FALSE(p.program->ended);
  p.Click(p.Main().Command9);
  ASSERT_TRUE(p.program->ended);
  p.net->End();
  EXPECT_TRUE(folder.files.empty());
}

TEST_F(SafetyNetTest, CloseUnaskedKeeps) {
  p.Work().QuickQuit = kYesWord;
  p.Step(1);
  p.Close();
  ASSERT_TRUE(p.program->ended);
  p.net->End();
  EXPECT_EQ(OnDisk().size(), 1U);
  EXPECT_FALSE(folder.IsClaimed("id1"));
}

TEST_F(SafetyNetTest, FaultKeepsWhatStoodBeforeIt) {
  p.Step(1);
  const std::int16_t row = p.Work().PlanIndex[1];
  p.Do([&] {
    p.Work().PlanIndex[1] = 6;
    Raise(kFaultDivisionByZero);
  });
  ASSERT_TRUE(p.program->ended);
  p.net->End();
  ASSERT_EQ(OnDisk().size(), 1U);
  EXPECT_EQ(OnDisk()[0].plan.pairs[0].row, row);
}

TEST_F(SafetyNetTest, ProcessThatIsGoneHasKeptWhatWasWritten) {
  p.Step(1);
  p.net->Write();
  p.net->Writer().Finish();
  EXPECT_EQ(OnDisk().size(), 1U);
}

TEST_F(SafetyNetTest, FirstPlanIsKeptFromItsFirstStepOn) {
  NettedProgram fresh(folder, "");
  fresh.Click(fresh.Main().Command2);
  ASSERT_EQ(fresh.Work().ModeWord, mode::kChange);
  fresh.net->Secure();
  EXPECT_TRUE(folder.files.empty());  // one key makes it again
  fresh.Step(6);
  fresh.net->Secure();
  ASSERT_EQ(OnDisk().size(), 1U);
  EXPECT_EQ(OnDisk()[0].plan.file, "");
  fresh.Close();
  ASSERT_TRUE(fresh.program->ended);  // by the rules there is nothing to ask about
  fresh.net->End();
  EXPECT_EQ(OnDisk().size(), 1U);
}

TEST_F(SafetyNetTest, RequestsAreKeptWhileTheyAreEntered) {
  p.Click(p.Main().Command2);
  ASSERT_EQ(p.Work().ModeWord, mode::kSpeed);
  EXPECT_TRUE(Kept().empty());  // as the entry offers them
  p.Do([&] { user::EnterText(p.Main().Text1[6], "222"); });
  ASSERT_EQ(Kept().size(), 1U);
  ASSERT_TRUE(Kept()[0].plan.requests);
  EXPECT_EQ(Kept()[0].plan.requests->texts[5], "222");
  p.Click(p.Main().Command1[3]);
  EXPECT_TRUE(Kept()[0].plan.requests->manual[2]);
  p.Click(p.Main().Command2);
  EXPECT_TRUE(Kept().empty());  // nobody waits for them any more
}

TEST_F(SafetyNetTest, RequestsAreKeptWhileASearchForThemWaits) {
  p.Click(p.Main().Command2);
  p.Do([&] { user::EnterText(p.Main().Text1[6], "222"); });
  p.Click(p.Main().Command1[6]);
  p.Click(p.Main().Command6);
  ASSERT_TRUE(p.Main().Timer1.Enabled);
  ASSERT_EQ(Kept().size(), 1U);
  EXPECT_TRUE(Kept()[0].plan.requests);
  p.Do([&] { p.Main().Timer1.Timer(); });
  ASSERT_EQ(p.Work().ResultWord, result::kNoPlan);
  ASSERT_EQ(Kept().size(), 1U);
  ASSERT_TRUE(Kept()[0].plan.requests);
  EXPECT_EQ(Kept()[0].plan.requests->texts[5], "222");
}

TEST_F(SafetyNetTest, RequestsAreKeptWhileAQuestionForALoadWaits) {
  p.Step(6);
  p.Click(p.Main().Command2);
  p.Click(p.Main().Command2, kRightButton);
  p.Do([&] { user::Spin(p.Main().SpinButton2[4], true); });
  p.Click(p.Main().Command3);
  ASSERT_EQ(p.Work().ModeWord, mode::kData);
  ASSERT_EQ(Kept().size(), 1U);
  ASSERT_TRUE(Kept()[0].plan.requests);
  EXPECT_TRUE(Kept()[0].plan.requests->byRevolutions);
}

TEST_F(SafetyNetTest, DiskThatRefusesIsToldOnceAndTriedAgain) {
  folder.fault = kFaultDiskFull;
  p.Step(1);
  p.net->Secure();
  p.Step(6);
  p.net->Secure();
  p.net->Secure();
  ASSERT_EQ(p.Told(), 1U);
  EXPECT_EQ(p.Last().severity, Severity::Failure);
  EXPECT_EQ(p.Last().text.english,
            "Unsaved plans cannot be kept in /state/: There is no room left on the disk.");
  EXPECT_EQ(p.Last().text.japanese,
            "保存前のデータを /state/ に保管できません: " + FailureCause(kFaultDiskFull).japanese);
  EXPECT_TRUE(OnDisk().empty());
  folder.fault = 0;
  EXPECT_EQ(Kept().size(), 1U);
}

TEST_F(SafetyNetTest, NothingDependsOnTheNet) {
  p.Step(1);
  p.net.reset();
  RunEvent(*p.program, [&] { user::Spin(p.Main().Spin6[1], false); });
  EXPECT_FALSE(p.program->ended);
  EXPECT_EQ(p.Work().DataChanged, dirty::kNo);
  p.offers.reset();
}

}  // namespace
}  // namespace veldrin
