// What the next start offers of what was kept, and what becomes of the offers.
#include "safety/kept_offers.h"

#include "safety/reopen.h"
#include "tests/safety/kept_offers.h"

#include <optional>
#include <string>

namespace veldrin {
namespace {

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
  EXPECT_EQ(p.Last().actions[0].caption.japanese, "開く");
  EXPECT_EQ(p.Last().actions[1].caption.japanese, "ファイルに残す");
  EXPECT_EQ(p.Last().actions[2].caption.japanese, "破棄");
}

TEST_F(KeptOffersTest, TimeOfAnotherDayHasItsDate) {
  EXPECT_EQ(SpokenTime("2026-11-22T21:04:05", "2026-11-22T23:59:59"), "21:04");
  EXPECT_EQ(SpokenTime("2026-11-21T21:04:05", "2026-11-22T00:00:00"), "2026-11-21 21:04");
  EXPECT_EQ(SpokenTime("yesterday", "2026-11-22T00:00:00"), "yesterday");
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
  EXPECT_EQ(p.simulated.notices.told[0].text.japanese,
            "/state/b.kept は新しいバージョンのプログラムが保管したデータです。そのまま残します。");
  EXPECT_EQ(p.simulated.notices.told[1].text.japanese,
            "/state/a.kept は保管データですが壊れています。そのまま残します。");
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
