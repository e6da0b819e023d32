#include "program/event_boundary.h"

#include "runtime/fault.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace veldrin {
namespace {

struct EventBoundary : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
};

TEST_F(EventBoundary, FaultEndsTheProgram) {
  RunEvent(program, [] { Raise(kFaultDivisionByZero); });
  EXPECT_TRUE(program.ended);
  EXPECT_EQ(program.endFault, 11);
  EXPECT_EQ(program.eventDepth, 0);
}

TEST_F(EventBoundary, ExceptionsOfTheLibraryEndTheProgramAsFaultsDo) {
  RunEvent(program, [] { throw std::length_error("text"); });
  EXPECT_TRUE(program.ended);
  EXPECT_EQ(program.endFault, 51);
  EXPECT_EQ(program.eventDepth, 0);
}

TEST_F(EventBoundary, MemoryThatCannotBeHadIsFaultSeven) {
  RunEvent(program, [] { throw std::bad_alloc(); });
  EXPECT_TRUE(program.ended);
  EXPECT_EQ(program.endFault, 7);
  EXPECT_EQ(program.eventDepth, 0);
}

TEST_F(EventBoundary, EndInsideOfAnotherEventEndsThatAsWell) {
  bool wentOn = false;
  RunEvent(program, [&] {
    RunEvent(program, [] { throw std::length_error("text"); });
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_TRUE(program.ended);
  EXPECT_EQ(program.endFault, 51);
  EXPECT_EQ(program.eventDepth, 0);
}

TEST_F(EventBoundary, NothingRunsAfterTheEnd) {
  RunEvent(program, [] { throw EndOfProgram{}; });
  EXPECT_EQ(program.endFault, 0);
  bool ran = false;
  RunEvent(program, [&] { ran = true; });
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace veldrin
