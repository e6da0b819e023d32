#include "dialogs/about_window.h"

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

/// Windows that count how often one is to be dragged, and tell what is written to a control or to them.
struct CountingWindows : SimulatedWindows {
  using SimulatedWindows::SimulatedWindows;
  std::vector<Window*> dragged;
  std::function<void(const std::string& name)> onWrite;

  void StartDrag(Window& window) override { dragged.push_back(&window); }
  void SlotWritten(Control& control, const char* slot, bool changed) override {
    SimulatedWindows::SlotWritten(control, slot, changed);
    if (onWrite) onWrite(control.FullName() + "." + slot);
  }
};

/// Figures of the machine that tell when they are asked for, and for which drive.
struct TellingFigures : SimulatedFigures {
  std::function<void(const std::string& question)> onQuestion;

  MemoryFigures Memory() const override {
    if (onQuestion) onQuestion("memory");
    return SimulatedFigures::Memory();
  }
  DiskFigures Disk(const std::string& root) const override {
    if (onQuestion) onQuestion("disk " + root);
    return SimulatedFigures::Disk(root);
  }
};

/// A sound that tells what it is to play.
struct TellingSound : SimulatedSound {
  using SimulatedSound::SimulatedSound;
  std::function<void(const std::string& path)> onPlay;

  void Play(const std::string& path) override {
    if (onPlay) onPlay(path);
  }
};

/// A shell on which every command fails with the fault of its turn, 0 for none, and that is asked for links.
struct FailingShell : Shell {
  std::vector<int> faults;
  std::vector<std::string> commands;
  std::vector<std::string> opened;
  bool opens = true;

  void Run(const std::string& command) override {
    commands.push_back(command);
    const int fault = faults.at(commands.size() - 1);
    if (fault != 0) Raise(fault);
  }
  bool OpenWithDesktop(const std::string& target) override {
    opened.push_back(target);
    return opens;
  }
  void AssociateExtension(const std::string& /*extension*/) override {}
  void DropExtension(const std::string& /*extension*/) override {}
};

struct AboutWindow : testing::Test {
  SimulatedMachine simulated;
  CountingWindows windows{simulated.clock, simulated.log};
  FailingShell shell;
  TellingSound sound{simulated.files, simulated.log};
  TellingFigures figures;
  Machine machine = MachineWith(simulated, windows, shell, sound, figures);
  Program program{machine};

  AboutWindow() { AttachAboutWindow(program); }
  ~AboutWindow() override { windows.Forget(); }

  /// The swap file's label for a file of so many bytes.
  std::string SwapFile(std::size_t bytes) {
    simulated.files.AddFile("C:\\WINDOWS\\win386.swp", std::string(bytes, 'x'));
    Form10& form10 = program.form10.Load();
    const std::string text = form10.Label_VirRam.Caption;
    form10.UnloadWindow();
    return text;
  }
  /// What is written, asked and played from now on.
  Lines deeds;
  void TakeDown() {
    deeds.clear();
    windows.onWrite = [this](const std::string& name) { deeds.push_back(name); };
    figures.onQuestion = [this](const std::string& question) { deeds.push_back(question); };
    sound.onPlay = [this](const std::string& path) { deeds.push_back("sound " + path); };
  }
};

TEST_F(AboutWindow, StandsInItsPlaceWithItsPicturesBeforeItTakesItsFigures) {
  program.workspace.AppPath = "D:\\VELDRIN";
  TakeDown();
  program.form10.Load();
  ASSERT_GE(deeds.size(), 2U);
  std::sort(deeds.begin(), deeds.begin() + 2);  // Either of the two may come first.
  EXPECT_EQ(
      deeds,
      (Lines{"Form10.Left", "Form10.Top", "Form10.Picture_Close.Image", "Form10.Picture_Roll.Image", "memory",
             "Form10.Label_CPU.Caption", "Form10.Label_Ram.Caption", "Form10.Label_VirRam.Caption",
             "Form10.Label_Res.Caption", "Form10.Label_Free.Caption", "disk C:\\", "Form10.Label_HDD.Caption",
             "Form10.Label41.Visible", "Form10.Label_Version.Caption"}));
}

TEST_F(AboutWindow, TakesTheDiskOfDriveCWhereverTheProgramAndTheFolderAre) {
  simulated.files.AddFolder("D:\\VELDRIN");
  simulated.files.SetCurrentFolder("D:\\VELDRIN");
  simulated.environment.Set("windir", "D:\\WINDOWS");
  for (const char* folder : {"D:\\VELDRIN", "C:\\VELDRIN", "\\\\SERVER\\SHARE", ""}) {
    program.workspace.AppPath = folder;
    TakeDown();
    program.form10.Load().UnloadWindow();
    EXPECT_EQ(std::count(deeds.begin(), deeds.end(), "disk C:\\"), 1) << folder;
  }
}

TEST_F(AboutWindow, RollsWithTheSoundFirstAndInOneStep) {
  program.workspace.AppPath = "D:\\VELDRIN";
  Form10& form10 = program.form10.Load();
  TakeDown();
  form10.Picture_Roll.Click();
  EXPECT_EQ(deeds, (Lines{"sound D:\\VELDRIN\\rollup.wav", "Form10.Height", "Form10.Line1.Visible",
                          "Form10.Line2.Visible"}));
  EXPECT_EQ(form10.Height, 330);
  TakeDown();
  form10.Picture_Roll.Click();
  EXPECT_EQ(deeds, (Lines{"sound D:\\VELDRIN\\unroll.wav", "Form10.Height", "Form10.Line1.Visible",
                          "Form10.Line2.Visible"}));
  EXPECT_EQ(form10.Height, 4830);
}

TEST_F(AboutWindow, LeftButtonOnTheBackgroundDragsTheWindow) {
  Form10& form10 = program.form10.Load();
  form10.MouseDown(kRightButton);
  EXPECT_TRUE(windows.dragged.empty());
  form10.MouseDown(kLeftButton);
  EXPECT_EQ(windows.dragged, std::vector<Window*>{&form10});
}

TEST_F(AboutWindow, ButtonsShowThatTheyArePressed) {
  Form10& form10 = program.form10.Load();
  EXPECT_EQ(form10.Picture_Close.Image, 2004);
  EXPECT_EQ(form10.Picture_Roll.Image, 2006);
  form10.Picture_Close.MouseDown(kLeftButton);
  EXPECT_EQ(form10.Picture_Close.Image, 2005);
  EXPECT_EQ(form10.Picture_Roll.Image, 2006);
  form10.Picture_Close.MouseUp(kLeftButton);
  EXPECT_EQ(form10.Picture_Close.Image, 2004);
  form10.Picture_Roll.MouseDown(kLeftButton);
  EXPECT_EQ(form10.Picture_Roll.Image, 2007);
  form10.Picture_Roll.MouseUp(kLeftButton);
  EXPECT_EQ(form10.Picture_Roll.Image, 2006);
}

TEST_F(AboutWindow, SwapFileIsToldInKilobytesAndThenInMegabytes) {
  EXPECT_EQ(SwapFile(1048575), "1023KB");
  EXPECT_EQ(SwapFile(1048576), "1024KB");
  EXPECT_EQ(SwapFile(1048577), "1MB");
  // 2047 KB and a half are rounded to 2048, 2046 and a half to 2046, then cut.
  EXPECT_EQ(SwapFile(2047 * 1024 + 512), "2MB");
  EXPECT_EQ(SwapFile(2047 * 1024 + 511), "1MB");
  EXPECT_EQ(SwapFile(2046 * 1024 + 512), "1MB");
  EXPECT_EQ(SwapFile(3072 * 1024 - 1), "3MB");
}

TEST_F(AboutWindow, LinkGoesToTheSecondBrowserForAMissingFolderAlone) {
  struct Case {
    int first;
    int second;
    std::size_t commands;
    std::size_t opened;
  };
  const Case cases[] = {
      {0, 0, 1, 0},  {53, 0, 1, 1},  {5, 0, 1, 0},   {70, 0, 1, 0},
      {76, 0, 2, 0}, {76, 53, 2, 1}, {76, 76, 2, 1}, {76, 5, 2, 0},
  };
  Form10& form10 = program.form10.Load();
  for (const Case& c : cases) {
    shell.faults = {c.first, c.second};
    shell.commands.clear();
    shell.opened.clear();
    EXPECT_EQ(Guarded([&] { form10.Label3.Click(); }), 0) << c.first << " " << c.second;
    EXPECT_EQ(shell.commands.size(), c.commands) << c.first << " " << c.second;
    EXPECT_EQ(shell.opened.size(), c.opened) << c.first << " " << c.second;
  }
}

TEST_F(AboutWindow, LinkThatTheDesktopCannotOpenStaysSilent) {
  shell.faults = {76, 76};
  shell.opens = false;
  program.form10.Load().Label3.Click();
  EXPECT_EQ(shell.opened, std::vector<std::string>{"https://veldrin.example/"});
  EXPECT_TRUE(simulated.log.lines.empty());
}

TEST_F(AboutWindow, VersionHasMajorMinorAndRevision) {
  const std::string version = program.form10.Load().Label_Version.Caption;
  EXPECT_EQ(version, VELDRIN_VERSION);
  EXPECT_EQ(std::count(version.begin(), version.end(), '.'), 2);
}

}  // namespace
}  // namespace veldrin
