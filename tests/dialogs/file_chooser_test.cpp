#include "dialogs/file_chooser.h"

#include "program/assemble.h"
#include "simulated/simulated_machine.h"
#include "view/user_input.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(FileChooser, ListsTenThousandFilesAndPicksTheLast) {
  SimulatedMachine machine;
  for (int i = 0; i < 10000; ++i) {
    machine.files.AddFile("C:\\VELDRIN\\DAT\\P" + std::to_string(10000 + i) + ".nx4", "x");
  }
  const auto program = AssembleProgram(machine.machine);
  program->workspace.MaxNe = 15000;
  program->workspace.MaxSpeed = 340;
  program->form3.LoadWindow();
  program->form3.Show();
  program->form3.File1.Pattern = "*.nx4";
  program->form3.File1.Path = "C:\\VELDRIN\\DAT";
  ASSERT_EQ(program->form3.File1.entries.size(), 10000U);
  program->form3.File1.ListIndex = 9999;
  EXPECT_EQ(program->form3.Combo1.Text.get(), "P19999.nx4");
  EXPECT_TRUE(program->form3.Command1.Enabled);
  machine.windows.Forget();
}

}  // namespace
}  // namespace veldrin
