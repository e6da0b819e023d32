#include "dialogs/dropped_file.h"

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "simulated/simulated_machine.h"
#include "tests/desktop/sample_files.h"
#include "tests/dialogs/dialog_fixture.h"
#include "workspace/decision_panel/decision_panel.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

class DroppedFileTest : public ::testing::Test {
 protected:
  DroppedFileTest() {
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", kSampleList);
    std::string other = kSampleList;
    other.replace(other.find("NX4"), 3, "VT2");
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\VT2.RAT", other);
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\A.nx4", kSamplePlan);
    std::string plan = kSamplePlan;
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
  WatchedBoxes boxes{simulated.log};
  Machine machine = MachineWith(simulated, boxes);
  std::unique_ptr<Program> program = AssembleProgram(machine);
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
  boxes.boxAnswers.push_back(BoxAnswer::Cancel);
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(program->workspace.MachineKey, "nx4");
  EXPECT_EQ(program->workspace.DataChanged, dirty::kYes);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "Processing file's data is changed !\r\n\r\nNot save. Load ?");
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(program->workspace.MachineKey, "vt2");
}

/// What stands in the program beside the plan.
std::string StateOf(const Program& program) {
  const Workspace& workspace = program.workspace;
  return workspace.MachineName + "|" + workspace.MachineKey + "|" + workspace.ModeWord + "|" +
         workspace.DataChanged + "|" + workspace.PrimaryTable[1].Text + "|" + workspace.GearTable(6, 1) +
         "|" + workspace.OpenFile + "|" + workspace.CallerWord + "|" + program.form2.Caption.get() + "|" +
         program.form2.Text6.Text.get();
}

TEST_F(DroppedFileTest, PlanWhoseListCannotBeHadLeavesEverythingAsItWas) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  program->workspace.DataChanged = dirty::kYes;
  const std::string before = StateOf(*program);
  std::string plan = kSamplePlan;
  plan.replace(plan.find("NX4"), 3, "ZZZ");
  simulated.files.AddFile("C:\\VELDRIN\\DAT\\C.zzz", plan);
  Drop("C:\\VELDRIN\\DAT\\C.zzz");
  EXPECT_EQ(StateOf(*program), before);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "C:\\VELDRIN\\LIST\\ZZZ.RAT\r\n\r\nSelected File is not exist !!");

  // One that breaks off, and one of another machine.
  std::string half = kSampleList;
  half.replace(half.find("NX4"), 3, "ZZZ");
  half.resize(half.find("M34-ARRAY"));
  for (const std::string& list : {half, std::string(kSampleList), std::string("no list"), std::string()}) {
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\ZZZ.RAT", list);
    boxes.shown.clear();
    Drop("C:\\VELDRIN\\DAT\\C.zzz");
    EXPECT_EQ(StateOf(*program), before);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, "C:\\VELDRIN\\LIST\\ZZZ.RAT\r\n\r\nYou selected unknown file type.");
  }
}

TEST_F(DroppedFileTest, ListThatVanishesBehindTheQuestionLeavesTheMachine) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  program->workspace.DataChanged = dirty::kYes;
  boxes.onMessage = [this] { simulated.files.Remove("C:\\VELDRIN\\LIST\\VT2.RAT"); };
  Drop("C:\\VELDRIN\\DAT\\B.vt2");
  EXPECT_EQ(program->workspace.MachineName, "NX4");
  EXPECT_EQ(program->workspace.MachineKey, "nx4");
  EXPECT_EQ(program->workspace.DataChanged, dirty::kYes);
}

TEST_F(DroppedFileTest, ListThatBreaksOffLeavesEverythingAsItWas) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  const std::string before = StateOf(*program);
  std::string half = kSampleList;
  half.replace(half.find("NX4"), 3, "ZZZ");
  half.resize(half.find("M34-ARRAY"));
  simulated.files.AddFile("C:\\VELDRIN\\LIST\\ZZZ.RAT", half);
  Drop("C:\\VELDRIN\\LIST\\ZZZ.RAT");
  EXPECT_EQ(StateOf(*program), before);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "You selected unknown file type.");
}

TEST_F(DroppedFileTest, FileThatIsNotThereIsTold) {
  const std::string before = StateOf(*program);
  Drop("C:\\VELDRIN\\DAT\\gone.nx4");
  EXPECT_EQ(StateOf(*program), before);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "Selected File is not exist !!");
}

TEST_F(DroppedFileTest, NothingIsTakenWhileTheProgramAsksOrTheMenuOfFilesIsOff) {
  Drop("C:\\VELDRIN\\DAT\\A.nx4");
  ASSERT_TRUE(TakesDroppedFiles(*program));
  const std::string before = StateOf(*program);
  AskQuestion(*program, Question::QuitWithChanges);
  EXPECT_FALSE(TakesDroppedFiles(*program));
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  DropQuestion(*program);
  program->form2.menu_file.Enabled = false;
  EXPECT_FALSE(TakesDroppedFiles(*program));
  Drop("C:\\VELDRIN\\LIST\\VT2.RAT");
  EXPECT_EQ(StateOf(*program), before);
  EXPECT_TRUE(boxes.shown.empty());
  program->form2.menu_file.Enabled = true;
  EXPECT_TRUE(TakesDroppedFiles(*program));
}

TEST_F(DroppedFileTest, FileOfNoKnownKindIsTold) {
  Drop("C:\\VELDRIN\\DAT\\note.txt");
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "You selected unknown file type.");
  EXPECT_EQ(program->workspace.MachineKey, "nx4");
}

}  // namespace
}  // namespace veldrin
