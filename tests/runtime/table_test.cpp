// Tables and their bounds.
#include "runtime/table.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace veldrin {
namespace {

TEST(Table, HasItsOwnSubscripts) {
  Table<int, 1, 3> fromOne;
  for (int k = 1; k <= 3; ++k) fromOne[k] = 10 * k;
  EXPECT_EQ(fromOne[1], 10);
  EXPECT_EQ(fromOne[3], 30);
  Table<int, 0, 1> fromNought;
  fromNought[0] = 7;
  EXPECT_EQ(fromNought[0], 7);
  EXPECT_EQ(fromNought[1], 0);
}

TEST(Table, SubscriptsOutsideAreFault9) {
  Table<int, 1, 3> table;
  const Table<int, 1, 3>& read = table;
  for (const int index : {0, -1, 4, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(Guarded([&] { table[index] = 1; }), kFaultSubscript) << index;
    EXPECT_EQ(Guarded([&] { static_cast<void>(read[index]); }), kFaultSubscript) << index;
  }
}

TEST(Table, ClearMakesElementsUntouched) {
  Table<std::string, 1, 2> texts;
  texts[1] = "99";
  texts.Clear();
  EXPECT_EQ(texts[1], "");
  Table<float, 0, 6> speeds;
  speeds[6] = 1;
  speeds.Clear();
  EXPECT_EQ(speeds[6], 0);
}

TEST(Grid2D, BothSubscriptsAreChecked) {
  Grid2D<int, 6, 10> grid;
  grid(6, 10) = 5;
  EXPECT_EQ(grid(6, 10), 5);
  EXPECT_EQ(grid(1, 1), 0);
  EXPECT_EQ(Guarded([&] { grid(0, 1) = 1; }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { grid(7, 1) = 1; }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { grid(1, 0) = 1; }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { grid(1, 11) = 1; }), kFaultSubscript);
  grid.Clear();
  EXPECT_EQ(grid(6, 10), 0);
}

TEST(Guarded, SkipsTheRestOfTheStatementThatFails) {
  int reached = 0;
  EXPECT_EQ(Guarded([&] { reached = 1; }), 0);
  EXPECT_EQ(Guarded([&] {
              Raise(kFaultTypeMismatch);
              reached = 2;
            }),
            kFaultTypeMismatch);
  EXPECT_EQ(reached, 1);
}

TEST(Guarded, LetsTheEndOfTheProgramThrough) {
  EXPECT_THROW(Guarded([] { throw EndOfProgram{}; }), EndOfProgram);
}

}  // namespace
}  // namespace veldrin
