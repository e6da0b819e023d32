// The program ends tidily by signals, which Windows does not send: there the session tells of its end by a
// message.
#include "tests/desktop/ended_program.h"

#include <csignal>

namespace veldrin {
namespace {

TEST_F(DesktopProgramTest, ASignalEndsItAsTheEndOfTheSessionDoes) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    TearDown();
    std::signal(signal, SIG_DFL);  // the tests may have been started with it ignored, as by nohup
    SetUp();
    const int status = Run(PlanFile(), [&] {
      SetChanged(dirty::kNo);
      MoveTo(1500, 900);
      raise(signal);
    });
    EXPECT_EQ(status, 0) << signal;
    ExpectStoredAndTidy();
  }
}

TEST_F(DesktopProgramTest, ASignalLosesWhatNobodyCanBeAskedAboutAndNoMore) {
  const int status = Run(PlanFile(), [&] {
    SetChanged(dirty::kYes);
    MoveTo(1500, 900);
    raise(SIGTERM);
    raise(SIGHUP);
  });
  EXPECT_EQ(status, 0);
  ExpectStoredAndTidy();
}

TEST_F(DesktopProgramTest, ASignalEndsItBehindAnOpenBoxToo) {
  ExpectEndBehindAnOpenBox([] { raise(SIGTERM); });
}

TEST_F(DesktopProgramTest, ASignalClosesTheBoxOfAFault) {
  When([] { return OpenBox() != nullptr; }, [] { raise(SIGTERM); });
  const int status = Run("", [&] { Desktop().stage.input.Do([]() -> bool { throw RuntimeFault{11}; }); });
  EXPECT_EQ(status, 1);
}

TEST_F(DesktopProgramTest, ASignalDuringTheSplashLeavesTheStoredHistoryAlone) {
  Desktop().machine.registry.Write(RegistryRoot::CurrentUser, kHistory, "0", "7");
  When([this] { return !TempFiles().isEmpty() && !Main().form2.loaded; }, [] { raise(SIGTERM); });
  EXPECT_EQ(Finish(""), 0);
  EXPECT_TRUE(Main().ended);
  EXPECT_EQ(TempFiles(), QStringList());
  EXPECT_EQ(Setting(kHistory, "0"), "7");
}

TEST_F(DesktopProgramTest, WhatWasIgnoredStaysIgnored) {
  TearDown();
  signal(SIGHUP, SIG_IGN);
  SetUp();
  bool wentOn = false;
  Run("", [&] {
    raise(SIGHUP);
    When([] { return true; },
         [&] {
           wentOn = !Main().ended;
           raise(SIGTERM);
         });
  });
  EXPECT_TRUE(wentOn);
  TearDown();  // which puts back what it found
  signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace veldrin
