#include "desktop/dropped_file.h"

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "script/simulated_machine.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr char kList[] =
    "LIST\r\nNX4\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-\r\n-"
    "\r\n"
    "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
constexpr char kPlan[] =
    "FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n80\r\n100\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n"
    "1A-2A-3A-4A-5A-6A\r\nremark\r\n";

class DroppedFileTest : public ::testing::Test {
 protected:
  DroppedFileTest() {
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", kList);
    std::string other = kList;
    other.replace(other.find("NX4"), 3, "VT2");
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\VT2.RAT", other);
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\A.nx4", kPlan);
    std::string plan = kPlan;
    plan.replace(plan.find("NX4"), 3, "VT2");
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\B.vt2", plan);
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\note.txt", "no plan");
    StartProgram(*program, "");
    simulated.clock.Advance(100, [&](TimerControl& timer) { RunEvent(*program, [&] { timer.Timer(); }); });
  }
  ~DroppedFileTest() override { simulated.windows.Forget(); }

  void Drop(const std::string& path) {
    RunEvent(*program, [&] { OpenDroppedFile(*program, path); });
  }

  SimulatedMachine simulated;
  std::unique_ptr<Program> program = AssembleProgram(simulated.machine);
};

TEST_F(DroppedFileTest, PlanOfTheMachineIsRead) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  EXPECT_EQ(program->workspace.ModeWord, mode::kChange);
  EXPECT_EQ(program->form2.Text6.Text.get(), "remark");
  EXPECT_EQ(program->workspace.CallerWord, "");
}

TEST_F(DroppedFileTest, PlanOfAnotherMachineBringsItsList) {
  Drop("C:\\VELDRIN\\DAT\\B.vt2");
  EXPECT_EQ(program->workspace.MachineKey, "vt2");
  EXPECT_EQ(program->workspace.ModeWord, mode::kChange);
}

TEST_F(DroppedFileTest, ListChangesTheMachine) {
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(program->workspace.MachineKey, "vt2");
  EXPECT_EQ(program->workspace.ModeWord, mode::kBasing);
}

TEST_F(DroppedFileTest, UnsavedChangesAreAskedAbout) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  program->workspace.DataChanged = dirty::kYes;
  simulated.boxes.boxAnswers.push_back(BoxAnswer::Cancel);
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(program->workspace.MachineKey, "nx4");
  EXPECT_EQ(program->workspace.DataChanged, dirty::kYes);
  ASSERT_EQ(simulated.boxes.shown.size(), 1U);
  EXPECT_EQ(simulated.boxes.shown[0].text, "Processing file's data is changed !\r\n\r\nNot save. Load ?");
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(program->workspace.MachineKey, "vt2");
}

TEST_F(DroppedFileTest, FileOfNoKnownKindIsTold) {
  Drop("C:\\VELDRIN\\DAT\\note.txt");
  ASSERT_EQ(simulated.boxes.shown.size(), 1U);
  EXPECT_EQ(simulated.boxes.shown[0].text, "You selected unknown file type.");
  EXPECT_EQ(program->workspace.MachineKey, "nx4");
}

}  // namespace
}  // namespace veldrin
