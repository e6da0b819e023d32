#include "dialogs/startup.h"

#include "tests/dialogs/starting_program.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST_F(Startup, LongPathsTakeTheNamesOnDisk) {
  simulated.files.AddFile("C:\\Program Data\\My Plans\\Wet Race.nx4", "");
  simulated.files.AddShortName("C:\\Program Data", "PROGRA~1");
  simulated.files.AddShortName("C:\\Program Data\\My Plans", "MYPLAN~1");
  simulated.files.AddShortName("C:\\Program Data\\My Plans\\Wet Race.nx4", "WETRAC~1.NX4");
  struct Case {
    const char* text;
    const char* path;
  };
  const Case cases[] = {
      {"C:\\PROGRA~1\\MYPLAN~1\\WETRAC~1.NX4", "C:\\Program Data\\My Plans\\Wet Race.nx4"},
      {"c:\\program data\\my plans\\wet race.NX4", "c:\\Program Data\\My Plans\\Wet Race.nx4"},
      {"C:\\PROGRA~1\\Dry.nx4", "C:\\Program Data\\Dry.nx4"},
      {"C:\\NOWHERE\\Dry.nx4", "C:\\NOWHERE\\Dry.nx4"},
      {"C:\\PROGRA~1", "C:\\Program Data"},
      {"C:\\PROGRA~1\\", "C:\\Program Data\\"},
      {"C:\\", "C:\\"},
      {"C:", "C:"},
      {"", ""},
      {"list\\nx4.rat", "list\\NX4.RAT"},  // the first three characters stay in any case
      {"\\\\server\\share\\a.nx4", "\\\\server\\share\\a.nx4"},
      {"C:\\*.nx4", "C:\\*.nx4"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(LongCommandPath(program, c.text), c.path) << c.text;
  }
}

/// The simulated disk under the rules of a system without drives.
struct SlashFiles : SimulatedFiles {
  PathRules Rules() const override { return {'/', 0}; }
};

TEST(StartupWithSlashes, LongPathsTakeTheNamesOnDisk) {
  SimulatedMachine simulated;
  SlashFiles files;
  files.AddFile("/home/Rider/Plans/Wet Race.nx4", "");
  Machine machine = MachineWith(simulated, files);
  Program program{machine};
  struct Case {
    const char* text;
    const char* path;
  };
  const Case cases[] = {
      {"/HOME/rider/plans/wet race.NX4", "/home/Rider/Plans/Wet Race.nx4"},
      {"/home/rider/dry.nx4", "/home/Rider/dry.nx4"},
      {"/", "/"},
      {"wet race.nx4", "wet race.nx4"},
      {"", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(LongCommandPath(program, c.text), c.path) << c.text;
  simulated.environment.Set("TEMP", "/");
  EXPECT_EQ(ChooseWorkFile(program), 1);
  EXPECT_EQ(program.workspace.WorkFile, "/VELD000.TMP");
  simulated.windows.Forget();
}

TEST_F(Startup, LoadPreparesTheWorkspace) {
  Start();
  EXPECT_TRUE(workspace.FirstInstance);
  EXPECT_EQ(workspace.AppPath, "C:\\VELDRIN");
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD000.TMP");
  EXPECT_EQ(workspace.TitlePrefix, "Mr.Veldrin");
  EXPECT_EQ(workspace.ChangedMark, " - Changed");
  EXPECT_EQ(workspace.IsJapanese, 0);
  EXPECT_EQ(workspace.Language, "ENGLISH");
  EXPECT_EQ(workspace.PrintFont, "Arial");
  EXPECT_EQ(workspace.ShiftNe, 13000);
  EXPECT_EQ(workspace.DecimalSep, ".");
  EXPECT_TRUE(program.form1.Timer1.Enabled);
  EXPECT_EQ(program.form1.Timer1.Interval.get(), 100);
}

TEST_F(Startup, TheSplashCoversTheScreenWithItsPictureInTheMiddle) {
  Start();
  const Form1& form1 = program.form1;
  EXPECT_TRUE(form1.Visible);
  EXPECT_EQ(form1.Width.get(), 15360);
  EXPECT_EQ(form1.Height.get(), 11520);
  EXPECT_EQ(form1.Pic1.Left.get(), (15360 - form1.Pic1.Width) / 2);
  EXPECT_EQ(form1.Pic1.Top.get(), (11520 - form1.Pic1.Height) / 2);
}

/// Windows with the ellipse that was cut of one.
struct CutWindows : SimulatedWindows {
  using SimulatedWindows::SimulatedWindows;
  void SetEllipticRegion(Window& /*window*/, int left, int top, int right, int bottom) override {
    cut = {left, top, right, bottom};
  }
  std::array<int, 4> cut{};
};

TEST(Splash, AnEllipseInTheMiddleOfTheScreenShowsOfIt) {
  SimulatedMachine simulated;
  CutWindows windows(simulated.clock, simulated.log);
  Machine machine = MachineWith(simulated, windows);
  Program program{machine};
  AttachStartup(program);
  program.form1.LoadWindow();
  // 500 by 100 of the 1024 by 768 pixels.
  EXPECT_EQ(windows.cut, (std::array{262, 334, 762, 434}));
  windows.Forget();
}

TEST_F(Startup, ALaterInstanceShowsNoSplash) {
  simulated.instances.others = 1;
  simulated.files.AddFile("C:\\TEMP\\VELD000.TMP", "");
  Start();
  EXPECT_FALSE(program.form1.Visible);
  EXPECT_FALSE(workspace.FirstInstance);
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD001.TMP");
  EXPECT_TRUE(program.form1.Timer1.Enabled);
}

TEST_F(Startup, AJapaneseSystemGetsNumberedTitles) {
  simulated.profile.iCountry = "81";
  Start();
  EXPECT_EQ(workspace.TitlePrefix, "べるどりん君[1] - ");
  EXPECT_EQ(workspace.IsJapanese, 1);
  EXPECT_EQ(workspace.Language, "JP");
  EXPECT_EQ(workspace.PrintFont, "ＭＳ ゴシック");
}

TEST_F(Startup, TheCommandLineLosesBlanksAndQuotes) {
  for (const char* text : {"C:\\VELDRIN\\LIST\\nx4.rat", "\"C:\\VELDRIN\\LIST\\nx4.rat\"",
                           "  \"C:\\VELDRIN\\LIST\\nx4.rat\" ", "\"C:\\VELDRIN\\LIST\\nx4.rat"}) {
    workspace.CommandFile = text;
    Form1_Load(program);
    EXPECT_EQ(workspace.CommandFile, "C:\\VELDRIN\\LIST\\NX4.RAT") << text;
  }
  for (const char* text : {"", " ", "\"\"", "\""}) {
    workspace.CommandFile = text;
    Form1_Load(program);
    EXPECT_EQ(workspace.CommandFile, "") << text;
  }
}

TEST_F(Startup, NoFreeWorkingFileEndsTheProgramWithoutAWord) {
  TakeAllWorkingFiles();
  EXPECT_THROW(Start(), EndOfProgram);
  EXPECT_TRUE(simulated.boxes.shown.empty());
}

TEST_F(Startup, AFirstRunWithoutAWorkingFileLeavesTheStoreToTheNext) {
  TakeAllWorkingFiles();
  simulated.files.AddFile("C:\\VELDRIN\\VELDRIN.INI", "SHIFT_NE=9000\r\n");
  EXPECT_THROW(Start(), EndOfProgram);
  const auto stored = [&](const char* value) {
    return simulated.registry.Read(RegistryRoot::CurrentUser, kSettings, value);
  };
  EXPECT_EQ(stored("App Path"), std::nullopt);
  EXPECT_TRUE(simulated.files.FileExists("C:\\VELDRIN\\VELDRIN.INI"));
  EXPECT_EQ(workspace.ShiftNe, 0) << "settings are read last";

  simulated.files.Delete("C:\\TEMP\\VELD500.TMP");
  Form1_Load(program);
  EXPECT_EQ(stored("App Path"), "C:\\VELDRIN");
  EXPECT_EQ(workspace.ShiftNe, 9000);
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD500.TMP");
}

TEST_F(Startup, ALaterRunKnowsItsFolderBeforeItLooksForAWorkingFile) {
  TakeAllWorkingFiles();
  simulated.registry.Write(RegistryRoot::CurrentUser, kSettings, "App Path", "C:\\VELDRIN");
  EXPECT_THROW(Start(), EndOfProgram);
  EXPECT_EQ(workspace.AppPath, "C:\\VELDRIN");
}

TEST_F(Startup, TheMainWindowIsShownUnderTheTimersWord) {
  std::vector<std::string> words;
  form2.Activate.Bind([&](int) { words.push_back(workspace.CallerWord); });
  Start();
  Tick();
  EXPECT_EQ(words, (std::vector<std::string>{"FORM1_TIMER"}));
  EXPECT_EQ(workspace.CallerWord, "");
  EXPECT_FALSE(program.form1.loaded);
  EXPECT_FALSE(program.form1.Timer1.Enabled);
}

TEST_F(Startup, TheChooserIsSetUpAndShownUnderTheTimersWord) {
  std::vector<std::string> words;
  form3.Combo1.Change.Bind([&](int) { words.push_back(workspace.CallerWord); });
  simulated.files.Remove("C:\\VELDRIN\\LIST\\NX4.RAT");
  bool splashStood = false;
  simulated.windows.modalLoop = [&](Window& window) {
    modalWords.push_back(workspace.CallerWord);
    splashStood = program.form1.loaded;
    window.Hide();
  };
  Start();
  Tick();
  EXPECT_EQ(words, (std::vector<std::string>{"FORM1_TIMER"}));
  EXPECT_EQ(modalWords, (std::vector<std::string>{"FORM1_TIMER"}));
  EXPECT_EQ(workspace.CallerWord, "");
  EXPECT_TRUE(splashStood);
  EXPECT_FALSE(program.form1.loaded);
  EXPECT_TRUE(form3.Label4.Visible);
}

TEST_F(Startup, AMissingListFolderStillShowsTheChooser) {
  simulated.registry.Write(RegistryRoot::CurrentUser, kSettings, "List_Path", "C:\\NOWHERE");
  Start();
  Tick();
  EXPECT_EQ(modalWords.size(), 1U);
  EXPECT_EQ(form3.File1.Pattern.get(), "*.RAT");
  EXPECT_EQ(form3.File1.Path.get(), "C:\\VELDRIN");
}

TEST_F(Startup, TheSecondTickComesFromAThousandMillisecondsOn) {
  Start();
  Tick();
  // A result of no kind that the second tick knows: the list chooser.
  program.form1.LoadWindow();
  program.form1.Timer1.Interval = 1000;
  workspace.ResultWord = "";
  Tick();
  EXPECT_EQ(modalWords.size(), 1U);
  EXPECT_EQ(form3.Caption.get(), "Load List File Select");
}

}  // namespace
}  // namespace veldrin
