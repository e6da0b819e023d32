#include "mainwin/main_window.h"

#include "model/decimal.h"
#include "model/setting_names.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "view/user_input.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/working_files.h"
#include "workspace/language.h"
#include "workspace/settings.h"

#include <string>

namespace veldrin {

namespace {

constexpr float kWidthAtStart = 9720;  // twips
constexpr float kHeightAtStart = 7400;
constexpr int kLastPictureSize = 5;

// ---- Load ----

void SetJapaneseFonts(Form2& form2) {
  for (PlacedControl* control :
       {static_cast<PlacedControl*>(&form2.Label17), static_cast<PlacedControl*>(&form2.Command8),
        static_cast<PlacedControl*>(&form2.Command9), static_cast<PlacedControl*>(&form2.Label23),
        static_cast<PlacedControl*>(&form2.Text6)}) {
    control->FontName = "ＭＳ Ｐゴシック";
  }
  form2.Label17.FontSize = 8;
  form2.Command8.FontSize = 8;
  form2.Command9.FontSize = 8;
}

std::int16_t StoredPlace(const Program& program, const char* value) {
  return SystemInt16(program.workspace, Stored(program, value));
}

/// In the middle of the screen, and then where it last stood.
/// Kept: before anything was stored that is the screen's left top corner, and the stored place is not held
/// against the screen.
void PlaceWindow(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  form2.Height = kHeightAtStart;
  form2.Width = kWidthAtStart;
  form2.Centre();
  Guarded([&] { workspace.LastTop = StoredPlace(program, kLastTopValue); });
  Guarded([&] { workspace.LastLeft = StoredPlace(program, kLastLeftValue); });
  form2.Top = workspace.LastTop;
  form2.Left = workspace.LastLeft;
}

void ColourGears(Program& program) {
  Workspace& workspace = program.workspace;
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.ToleranceMinus[gear] = 1;
    workspace.TolerancePlus[gear] = 1;
    ShowGearColour(program, gear);
  }
}

/// The first picture size that a screen of this width in pixels has no room for.
/// Kept: only the common widths are known, any other disables nothing.
int FirstSizeTooLarge(int pixels) {
  if (pixels >= 630 && pixels <= 650) return 3;
  if (pixels >= 790 && pixels <= 810) return 4;
  if (pixels >= 1014 && pixels <= 1034) return 5;
  return kLastPictureSize + 1;
}

void DisableLargeSizes(Program& program) {
  const int first = FirstSizeTooLarge(program.machine.screen.PixelsAcross());
  for (int size = first; size <= kLastPictureSize; ++size) {
    program.form2.clip[size].Enabled = false;
    program.form2.bmp[size].Enabled = false;
  }
}

// ---- Closing ----

void ShowSessionEndBox(Program& program) {
  const bool japanese = program.workspace.IsJapanese == 1;
  const std::string text = japanese ? "Windowsの終了処理を停止しました\r\n"
                                      "「べるどりん君」終了後再度終了処理を実行して下さい"
                                    : "Now Stopped Windows Shutdown Proccess\r\n"
                                      "Please do Shutdown again after Mr.Veldrin finished !";
  program.machine.boxes.Message(BoxIcon::Information, "", text, BoxButtons::Ok);
}

void Form2_Unload(Program& program) {
  EndProgram(program);
}

// ---- Timers ----

/// Lets the chooser come up again from outside its own OK. The load that an answer wanted ends with it. A
/// search that was started meanwhile, and any window in front, come first: a list that is read beside the
/// plans that were found would get the rows of another machine.
void Timer2_Timer(Program& program) {
  const Form2& form2 = program.form2;
  if (!user::Reachable(form2) || !form2.menu_file.Enabled) return;
  program.form2.Timer2.Enabled = false;
  ShowChooser(program, program.form3.File1);
  EndAnsweredLoad(program);
}

void Timer3_Timer(Program& program) {
  program.machine.windows.Flash(program.form2);
}

// ---- Menu ----

void menu_del_Click(Program& program) {
  program.hooks.OpenDeleteChooser();
}

/// Opens the data folder as it stood at start, not the present one.
void menu_folder_Click(Program& program) {
  const Files& files = program.machine.files;
  const std::string& folder = program.workspace.InitialDataPath;
  const std::string windows = program.machine.environment.Variable("WINDIR");
  if (windows.empty()) {
    program.machine.shell.OpenWithDesktop(folder);
  } else if (files.FileExists(JoinPath(files.Rules(), windows, "EXPLORER.EXE"))) {
    program.machine.shell.Run("explorer " + folder);
  } else if (files.FileExists(JoinPath(files.Rules(), windows, "WINFILE.EXE"))) {
    program.machine.shell.Run("winfile");
  }
}

void menu_quit_Click(Program& program) {
  program.form2.UnloadWindow();
}

/// Element 0 is the separator.
void menu_his_clear_Click(Program& program, int index) {
  if (index == 1) ClearHistory(program);
}

/// Kept: the entry has no work.
void menu_font_Click(Program&) {}

void menu_color_Click(Program& program) {
  program.form9.Load().ShowModal();
}

void menu_about_Click(Program& program) {
  program.form10.Load().ShowModal();
}

void menu_set_Click(Program& program) {
  program.form2.Hide();
  program.form7.Load().Show();
}

}  // namespace

// Every statement of Load that can fail is guarded, here or in what it calls.
void Form2_Load(Program& program) {
  Workspace& workspace = program.workspace;
  Guarded([&] { LoadLanguage(program); });
  // After a first search without a plan these are what the panel still holds.
  SetQuestionTexts(program, Question::NoPlanFound);
  if (CountryCode(program, 0) == kJapan) SetJapaneseFonts(program.form2);
  if (!workspace.FirstInstance) program.form2.menu_opt.Visible = false;
  Guarded([&] { program.hooks.BuildExtensionMenu(); });
  Under(program, caller::kForm2Load, [&] { PlaceWindow(program); });
  ColourGears(program);
  DisableLargeSizes(program);
}

void Form2_QueryUnload(Program& program, int reason) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  if (workspace.QuickQuit == kYesWord || workspace.DataChanged != dirty::kYes) return;
  form2.closeRefused = true;
  form2.WindowState = static_cast<int>(WindowState::Normal);
  form2.Timer3.Enabled = true;
  if (reason == static_cast<int>(CloseReason::SessionEnd)) ShowSessionEndBox(program);
  AskQuestion(program, Question::QuitWithChanges);
}

void AttachMainWindow(Program& program) {
  Form2& form2 = program.form2;
  On(program, form2.Load, Form2_Load);
  On(program, form2.QueryUnload, Form2_QueryUnload);
  On(program, form2.Unload, Form2_Unload);
  On(program, form2.Timer2.Timer, Timer2_Timer);
  On(program, form2.Timer3.Timer, Timer3_Timer);
  On(program, form2.menu_del.Click, menu_del_Click);
  On(program, form2.menu_folder.Click, menu_folder_Click);
  On(program, form2.menu_quit.Click, menu_quit_Click);
  OnEach(program, form2.menu_his_clear, &Menu::Click, menu_his_clear_Click);
  On(program, form2.menu_font.Click, menu_font_Click);
  On(program, form2.menu_color.Click, menu_color_Click);
  On(program, form2.menu_about.Click, menu_about_Click);
  On(program, form2.menu_set.Click, menu_set_Click);
}

}  // namespace veldrin
