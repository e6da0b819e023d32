#include "hints/main_window_reasons.h"

#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel_held.h"
#include "workspace/mode.h"
#include "workspace/notice_words.h"

#include <algorithm>
#include <initializer_list>

namespace veldrin {

namespace {

bool IsOneOf(const Control& control, std::initializer_list<const Control*> some) {
  return std::find(some.begin(), some.end(), &control) != some.end();
}

bool IsIn(const Control& control, const Control& array) {
  return &control.window == &array.window && control.name == array.name;
}

bool WorksOnPlan(const Form2& form2, const Control& control) {
  return IsOutput(form2, control) || IsIn(control, form2.Label6) || IsIn(control, form2.Label8) ||
         IsOneOf(control, {&form2.Spin4, &form2.Spin5, &form2.HScroll1, &form2.HScroll2, &form2.Command11});
}

BothLanguages NoPlan(const Workspace& workspace) {
  if (workspace.MachineKey.empty()) {
    return {"No machine is loaded: File, Load opens its list file",
            "機種がありません。File の Load で機種ファイルを開きます"};
  }
  return {"There is no plan yet: Mode makes one, Load opens one",
          "プランがまだありません。Mode で作るか、Load で開きます"};
}

BothLanguages ToleranceReason(const Form2& form2, const Control& off) {
  if (off.index < 1 || IsManual(form2, off.index)) return {};
  return {"This gear is on AUTO: the button in its row makes it MANUAL",
          "このギヤは AUTO です。同じ行のボタンで MANUAL にできます"};
}

BothLanguages RestoreReason(const Workspace& workspace) {
  if (workspace.WorkFileStale) {
    return {"There is no saved plan to go back to", "戻れる保存済みのプランがありません"};
  }
  return {"Nothing has changed since the plan was loaded or saved",
          "読み込みまたは保存のあと、何も変わっていません"};
}

bool IsHeld(const DecisionPanelState& panel, const Control& control) {
  return std::find(panel.disabled.begin(), panel.disabled.end(), &control) != panel.disabled.end();
}

}  // namespace

BothLanguages MainWindowReason(const Program& program, const Control& off) {
  const Form2& form2 = program.form2;
  const Workspace& workspace = program.workspace;
  const DecisionPanelState& panel = program.decisionPanel;
  if (form2.Timer1.Enabled && IsTakenBySearch(form2, off)) {
    return {"The search is running", "検索中です"};
  }
  const bool waitsForSearch = panel.unanswered == Question::NoPlanFound;
  if (IsHeld(panel, off) || (waitsForSearch && IsTakenBySearch(form2, off))) {
    return {"The question at the top waits for its answer", "上の質問の答えを待っています"};
  }
  if (waitsForSearch && &off == &form2.Command8) {
    return {"All gears were on AUTO already", "すでにすべてのギヤが AUTO でした"};
  }
  for (const Control* tolerances :
       {static_cast<const Control*>(&form2.Spin1[1]), static_cast<const Control*>(&form2.Spin3[1]),
        static_cast<const Control*>(&form2.Label14[1]), static_cast<const Control*>(&form2.Label15[1])}) {
    if (IsIn(off, *tolerances)) return ToleranceReason(form2, off);
  }
  if (IsIn(off, form2.clip[0]) || IsIn(off, form2.bmp[0])) {
    return {"This size is larger than the screen", "画面より大きいサイズです"};
  }
  if (workspace.MachineKey.empty() || !HasPlanOnShow(workspace)) return NoPlan(workspace);
  if (&off == &form2.Spin4 && !HasPrimariesToStep(workspace)) {
    return {"This machine has one primary reduction only", "この機種のプライマリーは 1 種類だけです"};
  }
  if (IsOneOf(off, {&form2.Command7, &form2.f_rest})) return RestoreReason(workspace);
  if (EntersRequests(workspace) && WorksOnPlan(form2, off)) {
    return {"Speeds wanted are being entered: Mode leads back to the plan",
            "要求速度の入力中です。Mode でプランに戻ります"};
  }
  if (IsOutput(form2, off) && ShowsForbiddenPair(form2)) return ForbiddenPairWords(workspace);
  if (&off == &form2.f_calc) {
    return {"No speeds wanted are being entered: Mode begins that",
            "要求速度を入力していません。Mode で入力を始めます"};
  }
  return {};
}

}  // namespace veldrin
