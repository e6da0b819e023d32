#include "mainwin/search.h"

#include "calc/plan_search.h"
#include "mainwin/search_notices.h"
#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/language.h"

namespace veldrin {

namespace {

constexpr int kBlinkColours = 15;

/// The banner's blinking is the whole progress display.
Blink BlinkBanner(Program& program) {
  return [&program](int finalRow) {
    program.form2.Label23.ForeColor = PaletteColour(finalRow % kBlinkColours);
    program.machine.windows.Repaint(program.form2.Label23);
  };
}

void ShowSuccess(Program& program) {
  Form2& form2 = program.form2;
  program.workspace.ResultWord = result::kNone;
  form2.Label23.ForeColor = kMagenta;
  form2.Label23.Caption = Message(program.workspace, kFoundMessage);
  EnableAll({&form2.menu_file, &form2.menu_f, &form2.menu_opt});
  program.machine.windows.Repaint(form2.Label23);
  TellFound(program);
}

/// A quick-ratio or reference file asked for speeds that this machine cannot reach.
[[noreturn]] void EndOnImpossibleSpeeds(Program& program) {
  if (program.workspace.IsJapanese == 1) {
    program.machine.boxes.Message(BoxIcon::Critical, "",
                                  "どう計算しても無理なスピードのレシオを参照しました\r\n"
                                  "この場合のエラー処理は存在しません\r\n"
                                  "プログラムを強制終了します",
                                  BoxButtons::Ok);
  } else {
    program.machine.boxes.Message(BoxIcon::Critical, "Critical Caution!! from Mr.Veldrin",
                                  "Impossible to Calcurate!!\r\n"
                                  "No error process for this situation\r\n"
                                  "Pogram will be terminated",
                                  BoxButtons::Ok);
  }
  throw EndOfProgram{};
}

}  // namespace

int MainGear(const Program& program) {
  int mainGear = 0;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (program.form2.Option1[gear].Value) mainGear = gear;
  }
  return mainGear;
}

bool AllGearsAuto(const Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (IsManual(program.form2, gear)) return false;
  }
  return true;
}

void PlanSearchAuto(Program& program) {
  if (SearchAuto(program.workspace, MainGear(program), BlinkBanner(program))) {
    ShowSuccess(program);
    return;
  }
  AskQuestion(program, Question::NoPlanFound, PanelTexts::KeepThoseOfSearch);
  program.form2.Command8.Enabled = false;
  program.form2.Label23.Visible = false;
  program.workspace.ResultWord = result::kNoPlan;
  TellWhyNone(program, AutoBounds(MainGear(program)));
  if (program.workspace.ModeWord == mode::kReferenceInForce) EndOnImpossibleSpeeds(program);
}

void PlanSearchMixed(Program& program) {
  Table<bool, 1, kGears> manual;
  for (int gear = 1; gear <= kGears; ++gear) manual[gear] = IsManual(program.form2, gear);
  if (SearchMixed(program.workspace, manual, BlinkBanner(program))) {
    ShowSuccess(program);
    return;
  }
  program.workspace.ResultWord = result::kNone;
  AskQuestion(program, Question::NoPlanFound);
  program.form2.Label23.Visible = false;
  program.workspace.ResultWord = result::kNoPlan;
  TellWhyNone(program, MixedBounds(program.workspace, manual));
}

void StartSearch(Program& program) {
  Form2& form2 = program.form2;
  // Its plan, or its own question, comes in the place of what is asked now.
  DropQuestion(program);
  HideAll({&form2.Picture2, &form2.Picture3, &form2.Picture4, &form2.Picture12, &form2.Picture30});
  form2.Label23.Caption = Message(program.workspace, kSearchingMessage);
  form2.Label23.Visible = true;
  DisableForSearch(form2);
  program.workspace.ResultWord = AllGearsAuto(program) ? result::kFullAuto : result::kNone;
  form2.Picture1.Visible = false;
  form2.Timer1.Enabled = true;
}

void SearchTimer_Timer(Program& program) {
  Form2& form2 = program.form2;
  form2.Timer1.Enabled = false;
  if (program.workspace.ResultWord == result::kFullAuto) {
    PlanSearchAuto(program);
  } else {
    PlanSearchMixed(program);
  }
  if (program.workspace.ResultWord == result::kNoPlan) return;
  Form4& dialog = program.form4.Load();
  EnableAll({&form2.Command2, &form2.Command3, &form2.Command4, &form2.f_comp});
  EnableOutput(program, true);
  form2.Hide();
  dialog.Show();
}

void AttachPlanSearch(Program& program) {
  On(program, program.form2.Command6.Click, StartSearch);
  On(program, program.form2.Timer1.Timer, SearchTimer_Timer);
}

}  // namespace veldrin
