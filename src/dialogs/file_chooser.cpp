#include "dialogs/file_chooser.h"

#include "calc/gear_chart.h"
#include "view/bind.h"
#include "workspace/language.h"
#include "workspace/machine_list.h"
#include "workspace/paths.h"

namespace veldrin {

namespace {

/// Loaded once, before the main window is shown: the running conditions go to their boxes, and the default
/// machine is opened.
void Form3_Load(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Form3& form3 = program.form3;
  form3.Label4.Caption = Message(workspace, 26);
  if (workspace.IsJapanese == 1) form3.Label4.FontName = "ＭＳ ゴシック";
  form3.Left = (program.machine.screen.Width() - form3.Width) / 2;
  form3.Top = (program.machine.screen.Height() - form3.Height) / 2;
  form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  form2.Text4.Text = std::to_string(workspace.ShiftNe);
  workspace.ReferenceNe = workspace.ShiftNe;
  OpenAnyFile(program, JoinPath(program.machine.files.Rules(), workspace.ListPath, workspace.ListFile));
  ChartScale(program);
}

}  // namespace

void AttachFileChooser(Program& program) {
  On(program, program.form3.Load, Form3_Load);
}

}  // namespace veldrin
