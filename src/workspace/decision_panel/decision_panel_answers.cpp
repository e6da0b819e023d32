#include "workspace/decision_panel/decision_panel_answers.h"

#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/decision_panel/decision_panel_held.h"
#include "workspace/mode.h"

namespace veldrin {

// ---- A file's speeds differ ----

void EndSpeedsDiffer(Program& program) {
  CloseQuestion(program);
  // What a search without a plan will need.
  SetQuestionTexts(program, Question::NoPlanFound);
}

/// The file's speeds become requests for a new search. A request entry that is open already stays open.
void RecalculateBySpeed(Program& program) {
  Form2& form2 = program.form2;
  EndSpeedsDiffer(program);
  if (!EntersRequests(program.workspace)) form2.Command2.MouseUp(kLeftButton);
  form2.Command10.Click();
  form2.Command6.Click();
}

// ---- No plan was found ----

void RecalculateByFullAuto(Program& program) {
  Form2& form2 = program.form2;
  CloseQuestion(program);
  form2.Command1[0].Click();
  form2.Command6.Click();
}

void EnterRequestsAgain(Program& program) {
  Form2& form2 = program.form2;
  EnableWaysOut(form2);
  CloseQuestion(program);
  ShowRequestEntry(form2);
}

// ---- Unsaved changes ----

namespace {

/// Whatever follows the save follows inside.
void SaveForAnswer(Program& program) {
  program.decisionPanel.saving = true;
  program.form2.Command5.Click();
  program.decisionPanel.saving = false;
}

/// Saves first. The plan counts as clean when the chooser has returned.
/// Kept: also when the user cancelled there.
void SaveAndLoadAs(Program& program, const char* pendingAction) {
  const Question question = QuestionOnPanel(program);
  TakeAnswer(program);
  program.workspace.PendingAction = pendingAction;
  SaveForAnswer(program);
  program.workspace.DataChanged = dirty::kNo;
  // A file that was loaded meanwhile may have a question of its own.
  if (QuestionOnPanel(program) == question) HidePanel(program);
  EndAnsweredLoad(program);
}

}  // namespace

/// Kept: a save that was cancelled leaves the panel standing, and the next close goes through.
void SaveAndQuit(Program& program) {
  program.workspace.PendingAction = pending::kEnding;
  program.form2.Timer3.Enabled = false;
  SaveForAnswer(program);
  program.workspace.QuickQuit = kYesWord;
}

void QuitWithoutSaving(Program& program) {
  program.workspace.QuickQuit = kYesWord;
  program.hooks.GivenUp();
  program.form2.Timer3.Enabled = false;
  program.form2.UnloadWindow();
}

void SaveAndLoad(Program& program) {
  SaveAndLoadAs(program, pending::kChangeLoad);
}

void SaveAndReopen(Program& program) {
  SaveAndLoadAs(program, pending::kChangeLoadHistory);
}

/// The changes are dropped before the chooser comes up, whose CANCEL brings them back.
void LoadWithoutSaving(Program& program) {
  program.hooks.GivenUp();
  program.workspace.DataChanged = dirty::kNo;
  CloseQuestion(program);
  if (program.decisionPanel.load) program.decisionPanel.load->discards = true;
  program.workspace.PendingAction = pending::kChangeLoad;
  OpenChooserFor(program, program.workspace.ModeWord);
  EndAnsweredLoad(program);
}

/// The changes stay where nothing comes in their place, the entry or its file being gone.
void ReopenWithoutSaving(Program& program) {
  Workspace& workspace = program.workspace;
  const int index = workspace.PendingHistoryIndex;
  const bool there = program.form2.menu_files.Has(index);
  if (there) {
    program.hooks.GivenUp();
    workspace.DataChanged = dirty::kNo;
  }
  CloseQuestion(program);
  if (!there) return;
  program.form2.menu_files[index].Click();
  // What was read has left another word than this.
  if (workspace.DataChanged == dirty::kNo) workspace.DataChanged = dirty::kYes;
}

void OpenChooserFor(Program& program, const std::string& modeWord) {
  if (modeWord == mode::kReference) {
    program.hooks.OpenReferenceChooser();
  } else if (modeWord == mode::kQuickRatio) {
    program.hooks.OpenQuickRatioChooser();
  } else if (modeWord == mode::kData) {
    program.hooks.OpenDataChooser();
  } else if (modeWord == mode::kList) {
    program.hooks.OpenListChooser();
  }
}

}  // namespace veldrin
