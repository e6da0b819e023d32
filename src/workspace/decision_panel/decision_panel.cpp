#include "workspace/decision_panel/decision_panel.h"

#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel_answers.h"
#include "workspace/decision_panel/decision_panel_held.h"
#include "workspace/language.h"
#include "workspace/mode.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace veldrin {

namespace {

// ---- What is out of use while a question waits ----

/// What could edit the plan that the file's speeds do not belong to.
Controls EditingOf(Form2& form2) {
  Controls controls = {&form2.Command11, &form2.Text2,    &form2.Text3,   &form2.Text4,
                       &form2.Text6,     &form2.HScroll1, &form2.HScroll2};
  for (int gear = 1; gear <= kGears; ++gear) controls.push_back(&form2.Label12[gear]);
  for (int gear = 1; gear <= kGears; ++gear) controls.push_back(&form2.Spin6[gear]);
  return controls;
}

Controls BaselineAndBarsOf(Form2& form2) {
  return {&form2.Command7, &form2.Command11, &form2.HScroll1, &form2.HScroll2};
}

Controls NothingOf(Form2&) {
  return {};
}

// ---- The table ----

struct QuestionRow {
  Question question;
  int left;  // messages of the answers
  int right;
  bool shownFirst;               // the panel comes up before its texts are written
  Controls (*disabled)(Form2&);  // until the answer
  void (*leftAnswer)(Program&);
  void (*rightAnswer)(Program&);
};

// clang-format off
constexpr QuestionRow kQuestions[] = {
    {Question::SpeedsDiffer,           kRecalculateBySpeedMessage,    kReadPlanMessage,           true,  EditingOf,         RecalculateBySpeed,    EndSpeedsDiffer},
    {Question::NoPlanFound,            kRecalculateByFullAutoMessage, kEnterRequestsAgainMessage, true,  NothingOf,         RecalculateByFullAuto, EnterRequestsAgain},
    {Question::QuitWithChanges,        kSaveAndQuitMessage,           kQuitWithoutSavingMessage,  false, NothingOf,         SaveAndQuit,           QuitWithoutSaving},
    {Question::LoadWithChanges,        kSaveAndLoadMessage,           kLoadWithoutSavingMessage,  false, BaselineAndBarsOf, SaveAndLoad,           LoadWithoutSaving},
    {Question::HistoryLoadWithChanges, kSaveAndLoadMessage,           kLoadWithoutSavingMessage,  false, NothingOf,         SaveAndReopen,         ReopenWithoutSaving},
};
// clang-format on

const QuestionRow* RowOf(Question question) {
  const auto* const row = std::find_if(std::begin(kQuestions), std::end(kQuestions),
                                       [&](const QuestionRow& one) { return one.question == question; });
  return row == std::end(kQuestions) ? nullptr : row;
}

bool TextsStay(const Program& program, PanelTexts texts) {
  const Question before = QuestionOnPanel(program);
  return texts == PanelTexts::KeepThoseOfSearch &&
         (before == Question::NoPlanFound || before == Question::None);
}

void ShowPanel(Program& program) {
  program.form2.Picture20.Visible = true;
  program.form2.Picture20.BringToFront();
}

// ---- The answers ----

void Command8_Click(Program& program) {
  if (const QuestionRow* row = RowOf(QuestionOnPanel(program))) row->leftAnswer(program);
}

void Command9_Click(Program& program) {
  if (const QuestionRow* row = RowOf(QuestionOnPanel(program))) row->rightAnswer(program);
}

}  // namespace

Question QuestionOnPanel(const Program& program) {
  for (const QuestionRow& row : kQuestions) {
    if (program.form2.Label17.Caption == Message(program.workspace, row.question)) return row.question;
  }
  return Question::None;
}

void AskQuestion(Program& program, Question question, PanelTexts texts) {
  Form2& form2 = program.form2;
  DecisionPanelState& panel = program.decisionPanel;
  const QuestionRow& row = *RowOf(question);
  TakeBack(program);
  panel.modeBefore = ModeOnShow(program);
  // Of two loads the later one counts; one whose chooser was overtaken leads nowhere any more.
  if (question == Question::LoadWithChanges) panel.load.reset();
  // The close query has started the flashing for its own question.
  if (question != Question::QuitWithChanges) form2.Timer3.Enabled = false;
  if (question != Question::NoPlanFound) EnableAll({&form2.Command8, &form2.Command9});
  if (row.shownFirst) ShowPanel(program);
  if (!TextsStay(program, texts)) SetQuestionTexts(program, question);
  Hold(panel, row.disabled(form2));
  if (!row.shownFirst) ShowPanel(program);
  panel.unanswered = question;
  SetFocus(form2.Command9);
}

void SetQuestionTexts(Program& program, Question question) {
  const QuestionRow& row = *RowOf(question);
  Form2& form2 = program.form2;
  form2.Label17.Caption = Message(program.workspace, question);
  form2.Command8.Caption = Message(program.workspace, row.left);
  form2.Command9.Caption = Message(program.workspace, row.right);
}

void DropQuestion(Program& program) {
  if (program.decisionPanel.unanswered == Question::None) return;
  TakeBack(program);
  program.form2.Timer3.Enabled = false;
  HidePanel(program);
}

bool QuestionStands(const Program& program) {
  return program.decisionPanel.unanswered != Question::None || program.decisionPanel.saving;
}

bool SavesForAnswer(const Program& program) {
  const DecisionPanelState& panel = program.decisionPanel;
  const bool quitStands = panel.unanswered == Question::QuitWithChanges;
  return panel.saving || (quitStands && program.workspace.PendingAction == pending::kEnding);
}

void ReturnToMode(Program& program, const char* mode) {
  DecisionPanelState& panel = program.decisionPanel;
  panel.modeBefore = mode;
  if (panel.load) panel.load->modeBefore = mode;
}

void EndAnsweredLoad(Program& program) {
  std::optional<AnsweredLoad>& load = program.decisionPanel.load;
  if (!load || program.form2.Timer2.Enabled) return;
  Workspace& workspace = program.workspace;
  const AnsweredLoad ended = *std::exchange(load, std::nullopt);
  if (!AwaitsLoad(workspace)) return;
  workspace.ModeWord = ended.modeBefore;
  if (!ended.discards) return;
  workspace.DataChanged = dirty::kYes;
  workspace.PendingAction = pending::kNone;
}

void AttachDecisionPanel(Program& program) {
  On(program, program.form2.Command8.Click, Command8_Click);
  On(program, program.form2.Command9.Click, Command9_Click);
}

}  // namespace veldrin
