#include "mainwin/decision_panel.h"

#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/language.h"

#include <string>

namespace veldrin {

namespace {

/// The panel's questions by their messages.
enum class Question {
  SpeedsDiffer = 13,
  NoPlanFound = 14,
  QuitWithChanges = 15,
  LoadWithChanges = 16,
  HistoryLoadWithChanges = 17,
  None = 0,
};

const std::string& TextOf(const Program& program, Question question) {
  return Message(program.workspace, static_cast<int>(question));
}

Question AskedQuestion(const Program& program) {
  for (const Question question : {Question::SpeedsDiffer, Question::NoPlanFound, Question::QuitWithChanges,
                                  Question::LoadWithChanges, Question::HistoryLoadWithChanges}) {
    if (program.form2.Label17.Caption == TextOf(program, question)) return question;
  }
  return Question::None;
}

void HidePanel(Program& program) {
  program.form2.Picture20.Visible = false;
}

/// Takes up what the plan reader has put out of use until the answer. The panel's texts become those that a
/// search without a plan needs.
void EndSpeedsDiffer(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  HidePanel(program);
  form2.Label17.Caption = TextOf(program, Question::NoPlanFound);
  form2.Command8.Caption = Message(workspace, 19);
  form2.Command9.Caption = Message(workspace, 23);
  EnableAll({&form2.Command11, &form2.Text2, &form2.Text3, &form2.Text4, &form2.Text6, &form2.HScroll1,
             &form2.HScroll2});
  for (int gear = 1; gear <= kGears; ++gear) EnableAll({&form2.Label12[gear], &form2.Spin6[gear]});
}

/// Saves first. The plan counts as clean when the chooser has returned.
/// Kept: also when the user cancelled there.
void SaveAndLoad(Program& program, const char* pendingAction) {
  program.workspace.PendingAction = pendingAction;
  program.form2.Command5.Click();
  program.workspace.DataChanged = dirty::kNo;
  HidePanel(program);
}

void OpenChooserOfMode(Program& program) {
  const std::string& word = program.workspace.ModeWord;
  if (word == mode::kReference) {
    program.hooks.OpenReferenceChooser();
  } else if (word == mode::kQuickRatio) {
    program.hooks.OpenQuickRatioChooser();
  } else if (word == mode::kData) {
    program.hooks.OpenDataChooser();
  } else if (word == mode::kList) {
    program.hooks.OpenListChooser();
  }
}

// ---- The left answer ----

/// The file's speeds become requests for a new search.
void RecalculateBySpeed(Program& program) {
  Form2& form2 = program.form2;
  EndSpeedsDiffer(program);
  form2.Command2.MouseUp(kLeftButton);
  form2.Command10.Click();
  form2.Command6.Click();
}

void RecalculateByFullAuto(Program& program) {
  Form2& form2 = program.form2;
  HidePanel(program);
  form2.Command1[0].Click();
  form2.Command6.Click();
}

/// Kept: a save that was cancelled leaves the panel standing, and the next close goes through.
void SaveAndQuit(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.PendingAction = pending::kEnding;
  program.form2.Timer3.Enabled = false;
  program.form2.Command5.Click();
  workspace.QuickQuit = kYesWord;
}

void Command8_Click(Program& program) {
  switch (AskedQuestion(program)) {
    case Question::SpeedsDiffer:
      return RecalculateBySpeed(program);
    case Question::NoPlanFound:
      return RecalculateByFullAuto(program);
    case Question::QuitWithChanges:
      return SaveAndQuit(program);
    case Question::LoadWithChanges:
      return SaveAndLoad(program, pending::kChangeLoad);
    case Question::HistoryLoadWithChanges:
      return SaveAndLoad(program, pending::kChangeLoadHistory);
    case Question::None:
      return;
  }
}

// ---- The right answer ----

void EnterRequestsAgain(Program& program) {
  Form2& form2 = program.form2;
  EnableAll({&form2.Command2, &form2.Command8, &form2.menu_file, &form2.menu_f, &form2.menu_opt});
  HideAll({&form2.Picture20, &form2.Picture12});
  ShowAll({&form2.Picture4, &form2.Picture3, &form2.Picture2});
}

void QuitWithoutSaving(Program& program) {
  program.workspace.QuickQuit = kYesWord;
  program.form2.Timer3.Enabled = false;
  program.form2.UnloadWindow();
}

/// The changes are dropped before the chooser comes up, whose CANCEL may bring them back.
void LoadWithoutSaving(Program& program) {
  program.workspace.DataChanged = dirty::kNo;
  HidePanel(program);
  program.workspace.PendingAction = pending::kChangeLoad;
  OpenChooserOfMode(program);
}

/// The changes stay where the entry is gone meanwhile: nothing comes in their place.
void LoadHistoryWithoutSaving(Program& program) {
  const int index = program.workspace.PendingHistoryIndex;
  const bool there = program.form2.menu_files.Has(index);
  if (there) program.workspace.DataChanged = dirty::kNo;
  HidePanel(program);
  if (there) program.form2.menu_files[index].Click();
}

void Command9_Click(Program& program) {
  switch (AskedQuestion(program)) {
    case Question::SpeedsDiffer:
      return EndSpeedsDiffer(program);
    case Question::NoPlanFound:
      return EnterRequestsAgain(program);
    case Question::QuitWithChanges:
      return QuitWithoutSaving(program);
    case Question::LoadWithChanges:
      return LoadWithoutSaving(program);
    case Question::HistoryLoadWithChanges:
      return LoadHistoryWithoutSaving(program);
    case Question::None:
      return;
  }
}

}  // namespace

void AttachDecisionPanel(Program& program) {
  On(program, program.form2.Command8.Click, Command8_Click);
  On(program, program.form2.Command9.Click, Command9_Click);
}

}  // namespace veldrin
