#include "dialogs/compare_window.h"

#include "model/gear_pairs.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Pairs = std::array<std::string, kGears>;

Pairs Split(const std::string& line) {
  Table<std::string, 1, kGears> table;
  for (int gear = 1; gear <= kGears; ++gear) table[gear] = "before";
  SplitPairs(line, table);
  Pairs pairs;
  for (int gear = 1; gear <= kGears; ++gear) pairs[static_cast<std::size_t>(gear - 1)] = table[gear];
  return pairs;
}

TEST(SplitPairs, CutsAtTheHyphens) {
  struct Case {
    const char* line;
    Pairs pairs;
  };
  const Case cases[] = {
      {"1A-2A-3A-4A-5A-6A", {"1A", "2A", "3A", "4A", "5A", "6A"}},
      {"14.29-17.26-19.24-22.24-20.20-21.19", {"14.29", "17.26", "19.24", "22.24", "20.20", "21.19"}},
      // The last takes the rest of the line.
      {"1-2-3-4-5-6-7-8", {"1", "2", "3", "4", "5", "6-7-8"}},
      {"1-2-3-4-5-6-", {"1", "2", "3", "4", "5", "6-"}},
      // Too few: what stands last runs to the line's end, and nothing is left for the others.
      {"1-2", {"1", "2", "", "", "", ""}},
      {"1-2-", {"1", "2", "", "", "", ""}},
      {"one", {"one", "", "", "", "", ""}},
      {"", {"", "", "", "", "", ""}},
      {"-", {"", "", "", "", "", ""}},
      {"-----", {"", "", "", "", "", ""}},
      {"------", {"", "", "", "", "", "-"}},
      {"1--3-4-5-6", {"1", "", "3", "4", "5", "6"}},
      {" 1 -\t2-3-4-5- 6 ", {" 1 ", "\t2", "3", "4", "5", " 6 "}},
      {"一-二-三-四-五-六", {"一", "二", "三", "四", "五", "六"}},
  };
  for (const Case& c : cases) EXPECT_EQ(Split(c.line), c.pairs) << c.line;
}

/// A program with a plan of one row in every gear, not started.
struct CompareWindow : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};

  CompareWindow() {
    Workspace& workspace = program.workspace;
    workspace.MachineKey = "nx4";
    workspace.DataPath = "C:\\VELDRIN\\DAT";
    workspace.MaxNe = 15000;
    workspace.MaxSpeed = 300;
    workspace.ShiftNe = 12000;
    workspace.PrimaryIndex = 1;
    workspace.FinalIndex = 1;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.PlanIndex[gear] = 1;
      workspace.SpeedNow[gear] = 40.0F * static_cast<float>(gear);
    }
    AttachCompareWindow(program);
  }
  ~CompareWindow() override { simulated.windows.Forget(); }

  /// Appends a file of this text.
  void Append(const std::string& text) {
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\FILE.nx4", text);
    program.form5->Command1.Click();
    program.form5->File1.ListIndex = 0;
    program.form5->Command4.Click();
  }
};

TEST_F(CompareWindow, ClaimsEachOfItsEventsOnce) {
  Form5 form5(program.desk);
  program.form5.attach(form5);
  const std::vector<const Event*> claimed = {
      &form5.Load,           &form5.Unload,         &form5.Spin1.SpinDown, &form5.Spin1.SpinUp,
      &form5.Command1.Click, &form5.Command2.Click, &form5.Command4.Click, &form5.Command5.Click,
      &form5.Drive1.Change,  &form5.Dir1.Change,    &form5.File1.Click,    &form5.File1.DblClick,
      &form5.Combo1.Change,
  };
  std::vector<const Control*> controls(form5.controls.begin(), form5.controls.end());
  controls.push_back(&form5);
  for (const Control* control : controls) {
    for (const Event* event : control->events) {
      const bool mine = std::find(claimed.begin(), claimed.end(), event) != claimed.end();
      EXPECT_EQ(event->Claims(), mine ? 1 : 0) << control->FullName() << '.' << event->Name();
    }
  }
}

/// Every beginning of a plan file, as if the disk had been full while it was written.
TEST_F(CompareWindow, TakesEveryBeginningOfAFile) {
  const std::string whole =
      "FROM:NX4.RAT\r\n1.9\r\n10000\r\n80\r\n120\r\n160\r\n200\r\n220\r\n250\r\n20\r\n40\r\n16\r\n31\r\n"
      "1X-2X-3X-4X-5X-6X\r\nremark\r\n";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    program.form5.Load();
    Append(whole.substr(0, length));
    EXPECT_EQ(program.compare.CompareCount, 2) << length;
    EXPECT_EQ(program.compare.CompareSlot[1].Filename, "FILE.NX4") << length;
    EXPECT_FALSE(program.files.IsOpen(Handle::Compare)) << length;
    if (length == whole.size()) {
      EXPECT_EQ(program.compare.CompareSlot[1].Title, "remark");
    }
    program.form5->Command2.Click();
  }
}

TEST_F(CompareWindow, TakesFilesThatAreNoPlans) {
  const std::string texts[] = {
      std::string(1000, '\0'),
      std::string(100000, '-'),
      std::string(100000, '"'),
      std::string(1000, '\n'),
      "FROM:NX4.RAT\r\n-1E40\r\n1E400\r\n3E38\r\n-3E38\r\n1E-45\r\n0\r\n-0\r\nNAN\r\n,\r\n,\r\n,\r\n,\r\n",
      "FROM:NX4.RAT\r\n-2\r\n-10000\r\n-80\r\n-120\r\n-160\r\n-200\r\n-220\r\n-250\r\n",
  };
  for (const std::string& text : texts) {
    program.form5.Load();
    Append(text);
    EXPECT_EQ(program.compare.CompareCount, 2);
    EXPECT_EQ(program.compare.CompareIndex, 1);
    EXPECT_EQ(program.form5->Label2.Caption, "FILE.NX4");
    program.form5->Command2.Click();
  }
}

/// 3E38 and -3E38 are 32-bit floats, and their difference is none.
TEST_F(CompareWindow, StepTooLargeForItsWidthIsAFaultOfFlipping) {
  program.form5.Load();
  Append("FROM:NX4.RAT\r\n2\r\n10000\r\n-3E38\r\n3E38\r\n");
  EXPECT_EQ(program.compare.CompareCount, 2);
  program.form5->Spin1.SpinUp();
  EXPECT_EQ(Guarded([&] { program.form5->Spin1.SpinUp(); }), kFaultOverflow);
}

TEST_F(CompareWindow, ErasesTheSlotsWhenItUnloads) {
  program.form5.Load();
  Append("FROM:NX4.RAT\r\n");
  program.form5->UnloadWindow();
  EXPECT_EQ(program.compare.CompareCount, 0);
  EXPECT_EQ(program.compare.CompareSlot[0].Filename, "");
  EXPECT_EQ(program.compare.CompareSlot[1].Filename, "");
}

}  // namespace
}  // namespace veldrin
