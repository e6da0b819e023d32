#include "mainwin/dirty_flag.h"

#include "mainwin/result_columns.h"
#include "workspace/control_states.h"
#include "workspace/title.h"

namespace veldrin {

namespace {

void AdvanceDirtyFlag(Program& program) {
  std::string& changed = program.workspace.DataChanged;
  if (changed == dirty::kZero) {
    changed = dirty::kOne;
  } else if (changed == dirty::kOne) {
    changed = dirty::kYes;
    program.form2.Caption = program.form2.Caption + program.workspace.ChangedMark;
    EnableRestore(program, true);
  } else if (changed == dirty::kNo) {
    changed = dirty::kYes;
    MarkTitle(program);
    EnableRestore(program, true);
  } else if (changed == dirty::kYes) {
    if (!ShowsNoDeviation(program) || program.workspace.RemarkChanged == dirty::kYes) return;
    changed = dirty::kNo;
    UnmarkTitle(program);
    EnableRestore(program, false);
  }
}

}  // namespace

void MoveDirtyFlag(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord == caller::kForm4Ok) {
    workspace.DataChanged = dirty::kYes;
    if (!workspace.WorkFileStale) MarkTitle(program);
  }
  const bool stays = workspace.CallerWord == caller::kScroll ||
                     workspace.CallerWord == caller::kTakeBaseline || workspace.WorkFileStale;
  if (!stays) AdvanceDirtyFlag(program);
}

}  // namespace veldrin
