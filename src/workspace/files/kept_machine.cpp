#include "workspace/files/kept_machine.h"

#include "workspace/caller.h"
#include "workspace/history_menu.h"

#include <memory>
#include <utility>

namespace veldrin {

namespace {

/// The workspace as it was, but for what does not belong to a machine: where the chooser has gone, what it
/// came to there, and the window's place. The caller's word is the user's, whose press brings the machine
/// back: that of the load which has failed would keep the chooser from its double click.
void PutWorkspaceBack(Workspace& workspace, Workspace before) {
  before.DataPath = workspace.DataPath;
  before.TempDir = workspace.TempDir;
  before.ResultWord = workspace.ResultWord;
  before.CallerWord = caller::kUser;
  before.LastTop = workspace.LastTop;
  before.LastLeft = workspace.LastLeft;
  workspace = std::move(before);
}

/// Which entries there were; what they read comes back with the other controls.
void PutHistoryBack(Program& program) {
  for (int i = 1; i <= program.workspace.HistoryCount; ++i) program.form2.menu_files.Load(i);
}

/// What has the focus and cannot keep it is not left by the user.
void HandOnFocus(Program& program) {
  KeepingCaller(program, [&] {
    StayUnder(program, caller::kModule1);
    Guarded([&] { program.form2.HandOnFocus(); });
  });
}

void PutBack(Program& program, const KeptMachine& kept) {
  Form2& form2 = program.form2;
  EmptyHistoryMenu(program);
  PutWorkspaceBack(program.workspace, kept.workspace);
  program.decisionPanel = kept.decisionPanel;
  PutHistoryBack(program);
  // The scale's ticks lie where the window's size wants them now.
  KeepingCaller(program, [&] { Guarded([&] { program.hooks.ChartScale(); }); });
  kept.controls.PutBack(form2);
  form2.Caption = kept.title;
  form2.Picture21.surface.CopyDrawing(kept.chart);
  program.form3.Command3.Visible = kept.quitOffered;
  HandOnFocus(program);
}

}  // namespace

KeptMachine::KeptMachine(const Program& program)
    : workspace(program.workspace),
      decisionPanel(program.decisionPanel),
      controls(program.form2),
      title(program.form2.Caption),
      chart(program.machine.metrics),
      quitOffered(program.form3.Command3.Visible) {
  chart.CopyDrawing(program.form2.Picture21.surface);
}

void KeepMachine(Program& program) {
  if (!program.kept) program.kept = std::make_unique<KeptMachine>(program);
}

void ForgetKeptMachine(Program& program) {
  program.kept.reset();
}

void SettleMachine(Program& program) {
  if (const std::unique_ptr<KeptMachine> kept = std::move(program.kept)) PutBack(program, *kept);
  Workspace& workspace = program.workspace;
  if (!workspace.LoadedMachine.empty()) workspace.MachineName = workspace.LoadedMachine;
}

}  // namespace veldrin
