#include "mainwin/combination.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A program with a plan of row 1 in every gear, not started.
struct Combination : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};

  Combination() {
    Workspace& workspace = program.workspace;
    workspace.ModeWord = mode::kChange;
    workspace.MachineName = "NX4";
    workspace.MachineKey = "nx4";
    workspace.Separate34 = "nv0";
    workspace.ListPath = "C:\\VELDRIN\\LIST";
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.PlanIndex[gear] = 1;
      workspace.GearTable(gear, 1) = std::to_string(gear) + "A";
    }
    AttachCombination(program);
  }
  ~Combination() override { simulated.windows.Forget(); }

  void Fill(const std::string& text) { simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.CMB", text); }
};

TEST_F(Combination, ClaimsItsMenuEntryAlone) {
  Form2& form2 = program.form2;
  std::vector<const Control*> controls(form2.controls.begin(), form2.controls.end());
  controls.push_back(&form2);
  for (const Control* control : controls) {
    for (const Event* event : control->events) {
      EXPECT_EQ(event->Claims(), event == &form2.menu_comb.Click ? 1 : 0)
          << control->FullName() << '.' << event->Name();
    }
  }
}

TEST_F(Combination, ReadsAHundredThousandRecordsToTheLast) {
  std::string text;
  for (int record = 1; record <= 50000; ++record) {
    const std::string number = std::to_string(record);
    text += "1,\"1A\",\"M" + number + "\",\"C" + number + "\"\r\n";
    text += "3,\"3A\",4,\"4A\",\"J" + number + "\",\"D" + number + "\",\"E" + number + "\"\r\n";
  }
  Fill(text);
  program.form2.menu_comb.Click();
  EXPECT_TRUE(program.form2.Picture9.Visible);
  EXPECT_EQ(program.form2.Label32[1].Caption, "M50000");
  EXPECT_EQ(program.form2.Label33[1].Caption, "C50000");
  EXPECT_EQ(program.form2.Label32[3].Caption, "J50000");
  EXPECT_EQ(program.form2.Label33[4].Caption, "E50000");
  EXPECT_FALSE(program.files.IsOpen(Handle::Combination));
}

TEST_F(Combination, LeavesTheFileOpenAtTheHundredThousandthRecordThatIsShort) {
  std::string text;
  for (int record = 1; record < 100000; ++record) text += "2,2A,M2,C2\r\n";
  Fill(text + "2,2A,M3\r\n");
  program.form2.menu_comb.Click();
  EXPECT_FALSE(program.form2.Picture9.Visible);
  EXPECT_EQ(program.form2.Label32[2].Caption, "M2");
  EXPECT_TRUE(program.files.IsOpen(Handle::Combination));
}

TEST_F(Combination, ClosesAFileThatItReadToTheEnd) {
  Fill("1,1A,M1,C1\r\n");
  program.form2.menu_comb.Click();
  EXPECT_TRUE(program.form2.Picture9.Visible);
  EXPECT_FALSE(program.files.IsOpen(Handle::Combination));
}

TEST_F(Combination, KeepsCaptionsOfAClosedPanel) {
  Fill("1,1A,M1,C1\r\n");
  program.form2.menu_comb.Click();
  program.form2.menu_comb.Click();
  EXPECT_FALSE(program.form2.Picture9.Visible);
  EXPECT_EQ(program.form2.Label32[1].Caption, "M1");
}

TEST_F(Combination, RefillsUnderItsWordAndNoOther) {
  Fill("1,1A,M1,C1\r\n");
  program.form2.Picture9.Visible = true;
  program.workspace.CallerWord = caller::kCombination;
  program.form2.menu_comb.Click();
  EXPECT_TRUE(program.form2.Picture9.Visible);
  EXPECT_EQ(program.form2.Label32[1].Caption, "M1");
  program.workspace.CallerWord = "comb";
  program.form2.menu_comb.Click();
  EXPECT_FALSE(program.form2.Picture9.Visible);
}

TEST(JointPart, GetsSmallerLettersWithALongerName) {
  struct Case {
    int length;
    int size;
  };
  const Case cases[] = {
      {1, 11}, {8, 11}, {9, 11}, {10, 10}, {11, 9}, {12, 8}, {13, 7}, {15, 7}, {16, 6}, {18, 6},
      {19, 5}, {22, 5}, {23, 4}, {30, 4},  {31, 3}, {45, 3}, {46, 2}, {90, 2}, {91, 1}, {1000, 1},
  };
  for (const Case& c : cases) {
    const std::string name(static_cast<std::size_t>(c.length), 'x');
    EXPECT_EQ(JointPartFontSize(name), c.size) << c.length;
  }
}

TEST(JointPart, CountsCharactersOfItsName) {
  EXPECT_EQ(JointPartFontSize("主軸部品一二三四五六"), 10);
  EXPECT_EQ(JointPartFontSize("主軸"), 11);
}

TEST(JointPart, WithoutANameHasNoSize) {
  EXPECT_EQ(Guarded([] { JointPartFontSize(""); }), kFaultDivisionByZero);
}

TEST(SeparateParts, AreForMachinesWhoseKeyOccurs) {
  struct Case {
    const char* separate;
    const char* key;
    bool expected;
  };
  const Case cases[] = {
      {"nv0", "nv0", true},        {"NV0", "nv0", true},
      {"nv0", "nv", true},         {"nv0", "nv01", false},
      {"nx4 nv0,tz", "nv0", true}, {"nx4nv0", "4n", true},
      {"nx4, nv0", "x4,n", false}, {"", "nv0", false},
      {"nv0", "", true},           {"", "", true},
  };
  for (const Case& c : cases) {
    Workspace workspace;
    workspace.Separate34 = c.separate;
    workspace.MachineKey = c.key;
    EXPECT_EQ(HasSeparateParts(workspace), c.expected) << c.separate << " / " << c.key;
  }
}

}  // namespace
}  // namespace veldrin
