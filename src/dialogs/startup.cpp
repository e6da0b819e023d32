#include "dialogs/startup.h"

#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/working_files.h"
#include "workspace/history_reopen.h"
#include "workspace/language.h"
#include "workspace/settings.h"

#include <algorithm>

namespace veldrin {

namespace {

constexpr int kFirstTick = 100;        // ms
constexpr int kSecondTick = 1200;      // ms
constexpr int kSecondTickFrom = 1000;  // ms: an interval from here on marks the second tick
constexpr int kSplashWidth = 500;      // pixels of the ellipse that shows of the window
constexpr int kSplashHeight = 100;

/// The command line as one path: without blanks at its ends and without the quotes around it.
std::string Unquoted(const std::string& commandLine) {
  std::string path = Trim(commandLine);
  if (path.starts_with('"')) path.erase(0, 1);
  if (path.ends_with('"')) path.pop_back();
  return path;
}

/// A path without a root is meant from the current folder.
std::string FullPath(const Program& program, const std::string& path) {
  const Files& files = program.machine.files;
  const PathRules rules = files.Rules();
  const bool rooted = path.starts_with(rules.separator) || (rules.rootLength > 0 && Contains(path, ":"));
  if (path.empty() || rooted) return path;
  return JoinPath(rules, TrimRoot(rules, files.CurrentFolder()), path);
}

/// The window covers the screen, and only an ellipse in its middle shows of it.
void ShowSplash(Program& program) {
  Form1& form1 = program.form1;
  const Screen& screen = program.machine.screen;
  form1.Left = 0;
  form1.Top = 0;
  form1.SetSize(screen.Width(), screen.Height());
  const int middleX = static_cast<int>(screen.Width()) / kTwipsPerPixel / 2;
  const int middleY = static_cast<int>(screen.Height()) / kTwipsPerPixel / 2;
  program.machine.windows.SetEllipticRegion(form1, middleX - kSplashWidth / 2, middleY - kSplashHeight / 2,
                                            middleX + kSplashWidth / 2, middleY + kSplashHeight / 2);
  form1.Pic1.Left = (form1.Width - form1.Pic1.Width) / 2;
  form1.Pic1.Top = (form1.Height - form1.Pic1.Height) / 2;
  form1.Show();
}

void ShowMainWindow(Program& program) {
  Under(program, caller::kForm1Timer, [&] { program.form2.Show(); });
}

void HandOverToMainWindow(Program& program) {
  program.form1.UnloadWindow();
  ShowMainWindow(program);
}

void SetUpListChooser(Program& program) {
  Form3& form3 = program.form3;
  form3.Centre();
  form3.Caption = Message(program.workspace, kListTitleMessage);
  OfferCancel(program);
  SetUpChooserBoxes(program, {kListPattern}, program.workspace.ListPath);
}

/// Sets the chooser up and shows it until it hides, so that what the opener wrote on it stays.
void ShowChooserAtStart(Program& program, void (*setUp)(Program&)) {
  Under(program, caller::kForm1Timer, [&] {
    setUp(program);
    ShowChooser(program, program.form3.File1);
  });
}

void WaitForSecondTick(Program& program) {
  program.form1.Timer1.Interval = kSecondTick;
  program.form1.Timer1.Enabled = true;
}

void StartWithoutFile(Program& program, bool machineLoaded) {
  if (machineLoaded) {
    HandOverToMainWindow(program);
    return;
  }
  ShowChooserAtStart(program, SetUpListChooser);
  program.form1.UnloadWindow();
}

void StartWithFile(Program& program, bool machineLoaded) {
  Workspace& workspace = program.workspace;
  StayUnder(program, caller::kForm1);  // until a reader or the main window's showing sets its own
  OpenAnyFile(program, std::string(workspace.CommandFile));
  if (machineLoaded && workspace.ResultWord == result::kNotGood) {
    SettleMachine(program);  // a list that was refused has overwritten the default one
    HandOverToMainWindow(program);
    ShowChooserAtStart(program, SetUpDataChooser);
  } else if (!machineLoaded && workspace.ResultWord == result::kOk) {
    HandOverToMainWindow(program);
  } else {
    // Kept: without a machine the box comes for every other result, also when the opener has shown it
    // already and when the file was a plan.
    if (!machineLoaded) ShowBadCommandLine(program);
    WaitForSecondTick(program);
  }
}

void FirstTick(Program& program) {
  program.form2.LoadWindow();
  program.form3.LoadWindow();
  // Kept: a default list that was refused leaves what was read of it, its name included, and counts as
  // loaded.
  ForgetKeptMachine(program);
  const bool machineLoaded = !program.workspace.MachineKey.empty();
  if (program.workspace.CommandFile.empty()) {
    StartWithoutFile(program, machineLoaded);
  } else {
    StartWithFile(program, machineLoaded);
  }
}

void SecondTick(Program& program) {
  Workspace& workspace = program.workspace;
  // The opener writes both words anew.
  const std::string word = workspace.ResultWord;
  const std::string file = workspace.OpenFile;
  if (word == result::kData) {
    // Kept: no list was loaded, so the plan is read against empty tables and refused.
    OpenAnyFile(program, file);
    program.form1.UnloadWindow();
    ShowChooserAtStart(program, SetUpListChooser);
  } else if (word == result::kAnother) {
    const PathRules rules = program.machine.files.Rules();
    OpenAnyFile(program, JoinPath(rules, workspace.ListPath, workspace.MachineName + ".RAT"));
    SettleMachine(program);  // without its list the plan meets the default machine again
    OpenAnyFile(program, file);
    SettleMachine(program);
    HandOverToMainWindow(program);
  } else if (word == result::kOk) {
    HandOverToMainWindow(program);
  } else {
    // Kept: a plan whose speeds differ was read, and the list chooser comes up all the same.
    ShowChooserAtStart(program, SetUpListChooser);
    program.form1.UnloadWindow();
  }
}

/// The splash goes at the hand-over alone: without its timer no other window would ever come.
void Form1_QueryUnload(Program& program, int reason) {
  program.form1.closeRefused = reason == static_cast<int>(CloseReason::User);
}

}  // namespace

std::string LongCommandPath(const Program& program, const std::string& text) {
  const Files& files = program.machine.files;
  const PathRules rules = files.Rules();
  const auto root = static_cast<std::size_t>(rules.rootLength) + 1;  // with its separator
  std::string path;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(rules.separator, begin), text.size());
    const std::string part = text.substr(begin, end - begin);
    if (begin > 0) path += rules.separator;
    const std::string onDisk = begin >= root && !part.empty() ? files.LongName(path + part) : "";
    path += onDisk.empty() ? part : onDisk;
    begin = end + 1;
  }
  return path;
}

void Form1_Load(Program& program) {
  Workspace& workspace = program.workspace;
  ReadRegionalValues(program);
  if (program.machine.instances.Others() == 0) {
    workspace.FirstInstance = true;
    ShowSplash(program);
  }
  const bool firstRun = ReadAppPath(program);
  SetTitleTexts(program, ChooseWorkFile(program));
  if (firstRun) CreateSettings(program);
  ReadSettings(program);
  workspace.CommandFile = LongCommandPath(program, FullPath(program, Unquoted(workspace.CommandFile)));
  program.form1.Timer1.Interval = kFirstTick;
  program.form1.Timer1.Enabled = true;
}

void Form1_Timer1_Timer(Program& program) {
  TimerControl& timer = program.form1.Timer1;
  timer.Enabled = false;
  if (timer.Interval < kSecondTickFrom) {
    FirstTick(program);
  } else {
    SecondTick(program);
  }
}

void AttachStartup(Program& program) {
  On(program, program.form1.Load, Form1_Load);
  On(program, program.form1.QueryUnload, Form1_QueryUnload);
  On(program, program.form1.Timer1.Timer, Form1_Timer1_Timer);
  OnEach(program, program.form2.menu_files, &Menu::Click, ReopenFromHistory);
}

}  // namespace veldrin
