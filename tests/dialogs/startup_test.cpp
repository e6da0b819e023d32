#include "dialogs/startup.h"

#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/working_files.h"
#include "workspace/history_reopen.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";

std::string List(const std::string& machine) {
  return "LIST\r\n" + machine +
         "\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-\r\n-\r\n"
         "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
}

std::string Plan(const std::string& machine, const std::string& thirdSpeed = "100") {
  return "FROM:" + machine + ".RAT\r\n2\r\n10000\r\n60\r\n80\r\n" + thirdSpeed +
         "\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n1A-2A-3A-4A-5A-6A\r\nremark\r\n";
}

struct Startup : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Form3& form3 = program.form3;
  /// `CallerWord` whenever a modal window came up; each is hidden at once.
  std::vector<std::string> modalWords;

  Startup() {
    program.hooks.RefreshDisplay = [this] { RefreshDisplay(program); };
    program.hooks.ChartScale = [this] { ChartScale(program); };
    form2.Load.Bind([this](int) { LoadLanguage(program); });
    form3.Load.Bind([this](int) {
      OpenAnyFile(program, workspace.ListPath + "\\" + workspace.ListFile);
      ChartScale(program);
    });
    AttachStartup(program);
    simulated.windows.modalLoop = [this](Window& window) {
      modalWords.push_back(workspace.CallerWord);
      window.Hide();
    };
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", List("NX4"));
  }
  ~Startup() override { simulated.windows.Forget(); }

  void Start(const std::string& commandLine = "") {
    workspace.CommandFile = commandLine;
    program.form1.LoadWindow();
  }
  void Tick() { program.form1.Timer1.Timer(); }
  void TakeAllWorkingFiles() {
    simulated.instances.others = 1;
    for (int number = 1000; number <= 1999; ++number) {
      simulated.files.AddFile("C:\\TEMP\\VELD" + std::to_string(number).substr(1) + ".TMP", "");
    }
  }
  void AddPlan(const std::string& path, const std::string& text) { simulated.files.AddFile(path, text); }
};

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

struct Reopen : Startup {
  Reopen() {
    AddPlan("C:\\VELDRIN\\DAT\\A.nx4", Plan("NX4"));
    AddPlan("C:\\VELDRIN\\DAT\\B.nx4", Plan("NX4"));
    Start();
    Tick();
    form3.File1.DblClick.Bind([this](int) { doubleClicks.push_back(workspace.CallerWord); });
    AddToHistory(program, "C:\\VELDRIN\\DAT\\B.nx4");
    AddToHistory(program, "C:\\VELDRIN\\DAT\\A.nx4");
  }

  /// `CallerWord` at every double click on the file box.
  std::vector<std::string> doubleClicks;
};

TEST_F(Reopen, OutsideTheDataRoleTheFileBoxIsMovedWithoutTheGuard) {
  form3.Caption = Message(workspace, 1);
  form2.menu_files[2].Click();
  EXPECT_EQ(form3.Caption.get(), "Load Data File Select");
  EXPECT_EQ(form3.File1.Path.get(), "C:\\VELDRIN\\DAT");
  EXPECT_EQ(form3.File1.FileName.get(), "B.nx4");
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{""}));
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, OutsideTheDataRoleASelectedEntryFiresAllTheSame) {
  form3.Caption = Message(workspace, 3);
  form3.File1.Path = "C:\\VELDRIN\\DAT";
  form3.File1.FileName = "B.nx4";
  doubleClicks.clear();
  form2.menu_files[2].Click();
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{""}));
}

TEST_F(Reopen, InTheDataRoleAnotherEntryIsOpenedUnderTheGuard) {
  form3.Caption = Message(workspace, 2);
  form2.menu_files[2].Click();
  EXPECT_EQ(doubleClicks, (std::vector<std::string>{"CLOSE_OPEN"}));
  EXPECT_EQ(form3.File1.FileName.get(), "B.nx4");
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
  EXPECT_EQ(workspace.CallerWord, "");
  EXPECT_EQ(form2.menu_files[1].Caption.get(), "C:\\VELDRIN\\DAT\\B.nx4");
  EXPECT_TRUE(modalWords.empty());
}

TEST_F(Reopen, InTheDataRoleTheSelectedEntryIsOpenedDirectly) {
  form3.Caption = Message(workspace, 2);
  form3.File1.Path = "C:\\VELDRIN\\DAT";
  form3.File1.FileName = "A.nx4";
  doubleClicks.clear();
  form2.menu_files[1].Click();
  EXPECT_TRUE(doubleClicks.empty());
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\A.nx4");
}

TEST_F(Reopen, AVanishedEntryDropsOutAndShowsTheChooser) {
  for (const int role : {2, 1}) {
    AddPlan("C:\\VELDRIN\\DAT\\C.nx4", Plan("NX4"));
    AddToHistory(program, "C:\\VELDRIN\\DAT\\C.nx4");
    simulated.files.Remove("C:\\VELDRIN\\DAT\\C.nx4");
    form3.Caption = Message(workspace, role);
    form2.menu_files[1].Click();
    EXPECT_EQ(modalWords, (std::vector<std::string>{""}));
    EXPECT_EQ(workspace.CallerWord, "");
    EXPECT_EQ(form3.Caption.get(), "Load Data File Select");
    EXPECT_TRUE(form3.Label4.Visible);
    EXPECT_EQ(form3.Label4.Caption.get(), "Selected File is not exist !!");
    EXPECT_EQ(workspace.HistoryCount, 2);
    modalWords.clear();
  }
}

TEST_F(Reopen, AFileInTheRootIsFoundThere) {
  AddPlan("D:\\R.nx4", Plan("NX4"));
  AddToHistory(program, "D:\\R.nx4");
  form3.Caption = Message(workspace, 2);
  form2.menu_files[1].Click();
  EXPECT_EQ(form3.File1.Path.get(), "D:\\");
  EXPECT_EQ(workspace.DataFile, "D:\\R.nx4");
  EXPECT_EQ(workspace.DataPath, "D:");
  // And is then known as the selected one.
  doubleClicks.clear();
  form2.menu_files[1].Click();
  EXPECT_TRUE(doubleClicks.empty());
  EXPECT_EQ(workspace.ResultWord, "OK");
}

TEST_F(Reopen, UnsavedChangesAskFirst) {
  form2.Show();
  workspace.DataChanged = dirty::kYes;
  form2.menu_files[2].Click();
  EXPECT_TRUE(form2.Picture20.Visible);
  EXPECT_EQ(form2.Picture20.ZOrder(), 0);
  EXPECT_EQ(form2.Label17.Caption.get(), "Processing file's data is changed ! ");
  EXPECT_EQ(form2.Command8.Caption.get(), "Save and Load");
  EXPECT_EQ(form2.Command9.Caption.get(), "Not save. Load");
  EXPECT_EQ(form2.focus, &form2.Command9);
  EXPECT_EQ(workspace.PendingHistoryIndex, 2);
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, OtherWordsThanYesDoNotAsk) {
  form3.Caption = Message(workspace, 2);
  for (const char* word : {"NO", "0", "1"}) {
    workspace.DataFile.clear();
    workspace.DataChanged = word;
    form2.menu_files[2].Click();
    EXPECT_FALSE(form2.Picture20.Visible) << word;
    EXPECT_NE(workspace.DataFile, "") << word;
  }
}

TEST_F(Reopen, QuickQuitDoesNotAsk) {
  workspace.QuickQuit = kYesWord;
  workspace.DataChanged = dirty::kYes;
  form3.Caption = Message(workspace, 2);
  form2.menu_files[2].Click();
  EXPECT_FALSE(form2.Picture20.Visible);
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
}

TEST_F(Reopen, AForbiddenPairOnShowDoesNotAsk) {
  workspace.DataChanged = dirty::kYes;
  form2.Label12[3].BackColor = kRed;
  form3.Caption = Message(workspace, 2);
  form2.menu_files[2].Click();
  EXPECT_EQ(workspace.DataFile, "C:\\VELDRIN\\DAT\\B.nx4");
}

TEST_F(Reopen, TheSeparatorOnlyTestsForTheForbiddenPair) {
  workspace.DataChanged = dirty::kYes;
  ReopenFromHistory(program, 0);
  EXPECT_FALSE(form2.Picture20.Visible);
  EXPECT_EQ(workspace.DataChanged, "YES");
  form2.Label12[3].BackColor = kRed;
  ReopenFromHistory(program, 0);
  EXPECT_EQ(workspace.DataChanged, "NO");
  EXPECT_EQ(workspace.DataFile, "");
}

TEST_F(Reopen, AnEntryThatIsNotThereOpensNothing) {
  program.workspace.DataChanged = dirty::kYes;
  EXPECT_EQ(Guarded([&] { ReopenFromHistory(program, 9); }), 0);
  EXPECT_EQ(program.workspace.PendingHistoryIndex, 0);
  EXPECT_FALSE(program.form2.Picture20.Visible);
}

}  // namespace
}  // namespace veldrin
