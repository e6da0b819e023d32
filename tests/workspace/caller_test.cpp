#include "workspace/caller.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

struct Caller : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  std::string& word = program.workspace.CallerWord;
};

TEST_F(Caller, TheWordStandsWhileTheActionRuns) {
  std::string seen;
  Under(program, caller::kScroll, [&] { seen = word; });
  EXPECT_EQ(seen, "HSCROLL");
  EXPECT_EQ(word, "");
}

TEST_F(Caller, AnInnerWordLeavesTheUsersToTheRestOfTheOuter) {
  std::string seen = "nothing";
  Under(program, caller::kModule1, [&] {
    Under(program, caller::kInit, [] {});
    seen = word;
  });
  EXPECT_EQ(seen, "");
  EXPECT_EQ(word, "");
}

TEST_F(Caller, AFaultPassesAndLeavesTheWord) {
  const int fault = Guarded([&] { Under(program, caller::kQuick, [] { Raise(kFaultOverflow); }); });
  EXPECT_EQ(fault, kFaultOverflow);
  EXPECT_EQ(word, "QUICK");
}

TEST_F(Caller, AWordThatStaysIsReplacedByTheNext) {
  StayUnder(program, caller::kForm3);
  EXPECT_EQ(word, "FORM3");
  Under(program, caller::kRead2, [] {});
  EXPECT_EQ(word, "");
}

}  // namespace
}  // namespace veldrin
