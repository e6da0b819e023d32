#include "workspace/decision_panel/decision_panel_held.h"

#include "workspace/control_states.h"
#include "workspace/mode.h"

#include <utility>

namespace veldrin {

namespace {

/// What the question put out of use, but for what the request entry, opened meanwhile, keeps so.
void EnableAgain(Program& program) {
  Form2& form2 = program.form2;
  for (Control* control : std::exchange(program.decisionPanel.disabled, {})) {
    const bool ofPlan =
        control == &form2.Command11 || control == &form2.HScroll1 || control == &form2.HScroll2;
    if (!(ofPlan && EntersRequests(program.workspace))) control->Enabled = true;
  }
}

}  // namespace

void Hold(DecisionPanelState& panel, const Controls& controls) {
  for (Control* control : controls) {
    if (!control->Enabled) continue;
    control->Enabled = false;
    panel.disabled.push_back(control);
  }
}

void TakeAnswer(Program& program) {
  DecisionPanelState& panel = program.decisionPanel;
  if (panel.unanswered == Question::LoadWithChanges) panel.load = AnsweredLoad{panel.modeBefore};
  panel.unanswered = Question::None;
  EnableAgain(program);
}

void CloseQuestion(Program& program) {
  HidePanel(program);
  TakeAnswer(program);
}

void TakeBack(Program& program) {
  DecisionPanelState& panel = program.decisionPanel;
  Form2& form2 = program.form2;
  const Question question = std::exchange(panel.unanswered, Question::None);
  EnableAgain(program);
  if (question == Question::LoadWithChanges && AwaitsLoad(program.workspace)) {
    program.workspace.ModeWord = panel.modeBefore;
  } else if (question == Question::NoPlanFound) {
    EnableWaysOut(form2);
    ShowRequestEntry(form2);
  }
}

void HidePanel(Program& program) {
  program.form2.Picture20.Visible = false;
}

void EnableWaysOut(Form2& form2) {
  EnableAll({&form2.Command2, &form2.Command3, &form2.Command4, &form2.Command8, &form2.menu_file,
             &form2.menu_f, &form2.menu_opt});
}

void ShowRequestEntry(Form2& form2) {
  form2.Picture12.Visible = false;
  ShowAll({&form2.Picture4, &form2.Picture3, &form2.Picture2});
}

}  // namespace veldrin
