#include "dialogs/file_chooser.h"

#include "program/assemble.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "view/user_input.h"

#include <gtest/gtest.h>

#include <memory>
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

std::string PlanOfNx4() {
  return "FROM:NX4.RAT\r\n1.9\r\n13000\r\n92.6\r\n123.5\r\n154.4\r\n185.3\r\n231."
         "6\r\n247\r\n20\r\n40\r\n15\r\n"
         "30\r\n1A-2A-3A-4A-5A-6A\r\ndry\r\n";
}

std::string ListOfNx4() {
  return "LIST\r\nNX4\r\nFINAL-DRIVE\r\n15,99\r\nFINAL-DRIVEN\r\n30,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-"
         "\r\n-\r\n"
         "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
}

/// A disk that takes plans no more once it is full; the working file lies on another one.
struct FillingFiles : SimulatedFiles {
  bool full = false;

  struct FullWriter : FileWriter {
    void Write(const std::string& /*text*/) override { Raise(kFaultDiskFull); }
    void Close() override { Raise(kFaultDiskFull); }
  };

  std::unique_ptr<FileWriter> OpenForWriting(const std::string& path) override {
    if (full && path.ends_with(".nx4")) return std::make_unique<FullWriter>();
    return SimulatedFiles::OpenForWriting(path);
  }
};

TEST(FileChooser, TellsThatTheDiskIsFull) {
  SimulatedMachine simulated;
  FillingFiles files;
  files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", ListOfNx4());
  files.AddFile("C:\\VELDRIN\\DAT\\DRY.nx4", PlanOfNx4());
  Machine machine = MachineWith(simulated, files);
  for (const int country : {1, 81}) {
    files.full = false;
    simulated.profile.iCountry = std::to_string(country);
    const auto program = AssembleProgram(machine);
    program->workspace.CommandFile = "C:\\VELDRIN\\DAT\\DRY.nx4";
    program->form1.LoadWindow();
    program->form1.Timer1.Timer();
    program->form1.Timer1.Timer();
    ASSERT_EQ(program->workspace.ModeWord, mode::kChange);
    simulated.windows.modalLoop = [](Window&) {};  // the chooser stays up
    program->form2.Command5.Click();
    program->form3.Combo1.Text = "NEW";
    files.full = true;
    program->form3.Command1.Click();
    EXPECT_EQ(program->form3.Label4.Caption.get(),
              country == 81 ? "ディスクに空きがありません" : "There is no room left on the disk.");
    EXPECT_TRUE(program->form3.Label4.Visible);
    EXPECT_TRUE(program->form3.Visible);
    EXPECT_EQ(program->workspace.DataChanged, dirty::kYes);
    EXPECT_TRUE(program->form2.Command7.Enabled);
    EXPECT_FALSE(files.FileExists("C:\\VELDRIN\\DAT\\NEW.nx4"));
    // With room again the same OK saves.
    files.full = false;
    program->form3.Combo1.KeyDown(13);
    EXPECT_TRUE(files.FileExists("C:\\VELDRIN\\DAT\\NEW.nx4"));
    EXPECT_FALSE(program->form3.Visible);
    files.Delete("C:\\VELDRIN\\DAT\\NEW.nx4");
    simulated.windows.modalLoop = nullptr;
    simulated.windows.Forget();
  }
}

}  // namespace
}  // namespace veldrin
