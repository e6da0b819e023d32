#include "workspace/decision_panel.h"

#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/language.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace veldrin {

namespace {

using Controls = std::vector<Control*>;

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

// ---- The end of a question ----

void HidePanel(Program& program) {
  program.form2.Picture20.Visible = false;
}

/// Whether requests are being entered, where the plan's own controls are out of use.
bool EntersRequests(const Workspace& workspace) {
  return workspace.ModeWord == mode::kSpeed || workspace.ModeWord == mode::kRpm;
}

/// What the question put out of use, but for what the request entry, opened meanwhile, keeps so.
void EnableAgain(Program& program) {
  Form2& form2 = program.form2;
  for (Control* control : std::exchange(program.decisionPanel.disabled, {})) {
    const bool ofPlan =
        control == &form2.Command11 || control == &form2.HScroll1 || control == &form2.HScroll2;
    if (!(ofPlan && EntersRequests(program.workspace))) control->Enabled = true;
  }
}

/// Whether the mode's word is that of a load that was asked for.
bool AwaitsLoad(const Workspace& workspace) {
  const std::string& word = workspace.ModeWord;
  return word == mode::kList || word == mode::kData || word == mode::kQuickRatio || word == mode::kReference;
}

/// The question has its answer. The mode's word still names the chooser that may follow.
void TakeAnswer(Program& program) {
  DecisionPanelState& panel = program.decisionPanel;
  panel.load.reset();
  if (panel.unanswered == Question::LoadWithChanges)
    panel.load = AnsweredLoad{.modeBefore = panel.modeBefore};
  panel.unanswered = Question::None;
  EnableAgain(program);
}

/// Ways out of the request entry that the search has closed.
void EnableWaysOut(Form2& form2) {
  EnableAll({&form2.Command2, &form2.Command3, &form2.Command4, &form2.Command8, &form2.menu_file,
             &form2.menu_f, &form2.menu_opt});
}

void ShowRequestEntry(Form2& form2) {
  ShowAll({&form2.Picture4, &form2.Picture3, &form2.Picture2});
}

/// What the waiting question held back comes back without an answer.
void TakeBack(Program& program) {
  DecisionPanelState& panel = program.decisionPanel;
  Form2& form2 = program.form2;
  const Question question = std::exchange(panel.unanswered, Question::None);
  EnableAgain(program);
  if (question == Question::LoadWithChanges && AwaitsLoad(program.workspace)) {
    program.workspace.ModeWord = panel.modeBefore;
  } else if (question == Question::NoPlanFound) {
    EnableWaysOut(form2);
    form2.Picture12.Visible = false;
    ShowRequestEntry(form2);
  }
}

// ---- A file's speeds differ ----

void EndSpeedsDiffer(Program& program) {
  HidePanel(program);
  // What a search without a plan will need.
  SetQuestionTexts(program, Question::NoPlanFound);
  TakeAnswer(program);
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
  TakeAnswer(program);
  HidePanel(program);
  form2.Command1[0].Click();
  form2.Command6.Click();
}

void EnterRequestsAgain(Program& program) {
  Form2& form2 = program.form2;
  TakeAnswer(program);
  EnableWaysOut(form2);
  HideAll({&form2.Picture20, &form2.Picture12});
  ShowRequestEntry(form2);
}

// ---- Unsaved changes ----

/// Whatever follows the save follows inside.
void SaveForAnswer(Program& program) {
  program.decisionPanel.saving = true;
  program.form2.Command5.Click();
  program.decisionPanel.saving = false;
}

/// Kept: a save that was cancelled leaves the panel standing, and the next close goes through.
void SaveAndQuit(Program& program) {
  program.workspace.PendingAction = pending::kEnding;
  program.form2.Timer3.Enabled = false;
  SaveForAnswer(program);
  program.workspace.QuickQuit = kYesWord;
}

void QuitWithoutSaving(Program& program) {
  program.workspace.QuickQuit = kYesWord;
  program.form2.Timer3.Enabled = false;
  program.form2.UnloadWindow();
}

/// The question whose texts the panel carries, whether it is on show or not.
Question QuestionOnPanel(const Program& program);

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

void SaveAndLoad(Program& program) {
  SaveAndLoadAs(program, pending::kChangeLoad);
}

void SaveAndReopen(Program& program) {
  SaveAndLoadAs(program, pending::kChangeLoadHistory);
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

/// The changes are dropped before the chooser comes up, whose CANCEL brings them back.
void LoadWithoutSaving(Program& program) {
  program.workspace.DataChanged = dirty::kNo;
  HidePanel(program);
  TakeAnswer(program);
  if (program.decisionPanel.load) program.decisionPanel.load->discards = true;
  program.workspace.PendingAction = pending::kChangeLoad;
  OpenChooserOfMode(program);
  EndAnsweredLoad(program);
}

/// The changes stay where nothing comes in their place, the entry or its file being gone.
void ReopenWithoutSaving(Program& program) {
  Workspace& workspace = program.workspace;
  const int index = workspace.PendingHistoryIndex;
  const bool there = program.form2.menu_files.Has(index);
  if (there) workspace.DataChanged = dirty::kNo;
  HidePanel(program);
  TakeAnswer(program);
  if (!there) return;
  program.form2.menu_files[index].Click();
  // What was read has left another word than this.
  if (workspace.DataChanged == dirty::kNo) workspace.DataChanged = dirty::kYes;
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

const std::string& TextOf(const Program& program, Question question) {
  return Message(program.workspace, static_cast<int>(question));
}

Question QuestionOnPanel(const Program& program) {
  for (const QuestionRow& row : kQuestions) {
    if (program.form2.Label17.Caption == TextOf(program, row.question)) return row.question;
  }
  return Question::None;
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

void Disable(DecisionPanelState& panel, const Controls& controls) {
  for (Control* control : controls) {
    if (!control->Enabled) continue;
    control->Enabled = false;
    panel.disabled.push_back(control);
  }
}

void Command8_Click(Program& program) {
  if (const QuestionRow* row = RowOf(QuestionOnPanel(program))) row->leftAnswer(program);
}

void Command9_Click(Program& program) {
  if (const QuestionRow* row = RowOf(QuestionOnPanel(program))) row->rightAnswer(program);
}

}  // namespace

void AskQuestion(Program& program, Question question, PanelTexts texts) {
  Form2& form2 = program.form2;
  DecisionPanelState& panel = program.decisionPanel;
  const QuestionRow& row = *RowOf(question);
  TakeBack(program);
  // The close query has started the flashing for its own question.
  if (question != Question::QuitWithChanges) form2.Timer3.Enabled = false;
  if (question != Question::NoPlanFound) EnableAll({&form2.Command8, &form2.Command9});
  if (row.shownFirst) ShowPanel(program);
  if (!TextsStay(program, texts)) SetQuestionTexts(program, question);
  Disable(panel, row.disabled(form2));
  if (!row.shownFirst) ShowPanel(program);
  panel.unanswered = question;
  panel.modeBefore = program.workspace.ModeWord;
  SetFocus(form2.Command9);
}

void SetQuestionTexts(Program& program, Question question) {
  const QuestionRow& row = *RowOf(question);
  Form2& form2 = program.form2;
  form2.Label17.Caption = TextOf(program, question);
  form2.Command8.Caption = Message(program.workspace, row.left);
  form2.Command9.Caption = Message(program.workspace, row.right);
}

void DropQuestion(Program& program) {
  if (program.decisionPanel.unanswered == Question::None) return;
  TakeBack(program);
  program.form2.Timer3.Enabled = false;
  HidePanel(program);
}

bool SavesForAnswer(const Program& program) {
  const bool quitStands =
      program.form2.Picture20.Visible && QuestionOnPanel(program) == Question::QuitWithChanges;
  return program.decisionPanel.saving || (quitStands && program.workspace.PendingAction == pending::kEnding);
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
