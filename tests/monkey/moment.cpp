#include "tests/monkey/moment.h"

#include "workspace/language.h"

namespace veldrin::monkey {

namespace {

int QuestionOf(const Program& program) {
  if (!program.form2.loaded || !program.form2.Picture20.Visible) return 0;
  for (int message = 13; message <= 17; ++message) {
    if (program.form2.Label17.Caption == Message(program.workspace, message)) return message;
  }
  return -1;
}

void TakeFocus(const Form2& form2, Moment& moment) {
  if (!form2.loaded || form2.focus == nullptr) return;
  moment.focus = form2.focus->IndexedName();
  if (form2.focus->kind == ControlKind::TextBox) {
    moment.focusText = static_cast<const TextBox*>(form2.focus)->Text;
  }
}

}  // namespace

Moment MomentOf(const Program& program) {
  const Workspace& workspace = program.workspace;
  Moment moment;
  moment.started = true;
  moment.ended = program.ended;
  moment.endFault = program.endFault;
  moment.mode = workspace.ModeWord;
  moment.caller = workspace.CallerWord;
  moment.pending = workspace.PendingAction;
  moment.dataChanged = workspace.DataChanged;
  moment.stale = workspace.WorkFileStale;
  moment.machineKey = workspace.MachineKey;
  moment.rows = {workspace.PrimaryIndex, workspace.FinalIndex};
  for (int gear = 1; gear <= kGears; ++gear) {
    moment.rows[static_cast<std::size_t>(gear + 1)] = workspace.PlanIndex[gear];
  }
  moment.question = QuestionOf(program);
  // Between two questions the chooser is away for the time of a timer.
  moment.chooserUp = program.form3.Visible || program.form2.Timer2.Enabled;
  moment.role = RoleOfChooser(program);
  if (program.form3.Label4.Visible) moment.prompt = program.form3.Label4.Caption;
  moment.chooserFolder = program.form3.File1.Path;
  TakeFocus(program.form2, moment);
  moment.title = program.form2.Caption;
  for (int i = 1; i <= workspace.HistoryCount && program.form2.menu_files.Has(i); ++i) {
    moment.history.push_back(program.form2.menu_files[i].Caption);
  }
  return moment;
}

}  // namespace veldrin::monkey
