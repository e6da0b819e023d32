#include "workspace/chooser_setup.h"

#include "platform/paths.h"
#include "workspace/language.h"

namespace veldrin {

std::string DataPattern(const Workspace& workspace) {
  return "*." + workspace.MachineKey;
}

void SetUpChooserBoxes(Program& program, const std::vector<std::string>& patterns,
                       const std::string& folder) {
  Form3& form3 = program.form3;
  ForgetWaitingList(program);
  form3.Combo2.Clear();
  for (const std::string& pattern : patterns) form3.Combo2.AddItem(pattern);
  form3.Combo2.ListIndex = static_cast<int>(patterns.size()) - 1;
  form3.Combo1.Text = patterns.back();
  const std::string start = WithRoot(program.machine.files.Rules(), folder);
  Guarded([&] { form3.Drive1.Drive = start; });
  Guarded([&] { form3.Dir1.Path = start; });
  Guarded([&] { form3.File1.Path = start; });
  form3.Label3.Caption = form3.Dir1.Path;
  form3.File1.Pattern = kAnyPattern;
  form3.File1.Pattern = patterns.back();
  form3.Command1.Enabled = false;
}

void SetUpDataChooser(Program& program) {
  Form3& form3 = program.form3;
  form3.Caption = Message(program.workspace, kDataTitleMessage);
  SetUpChooserBoxes(program, {kListPattern, DataPattern(program.workspace)}, program.workspace.DataPath);
  OfferCancel(program);
  form3.Command3.Visible = false;
}

void ForgetWaitingList(Program& program) {
  if (program.chooser.waitingList.empty()) return;
  program.chooser.waitingList.clear();
  program.files.Close(Handle::Reader);
  program.form2.Timer2.Enabled = false;
}

void ShowChooserPrompt(Program& program, int message) {
  ShowChooserPrompt(program, Message(program.workspace, message));
}

void ShowChooserPrompt(Program& program, const std::string& text) {
  Label& prompt = program.form3.Label4;
  prompt.Caption = text;
  prompt.BringToFront();
  prompt.Visible = true;
}

bool PromptShows(const Program& program, int message) {
  const Label& prompt = program.form3.Label4;
  return prompt.Visible && prompt.Caption == Message(program.workspace, message);
}

void OfferCancel(Program& program) {
  program.form3.Command2.Caption = "CANCEL";
  program.form3.Command2.Enabled = true;
}

void ShowChooser(Program& program, Control& hands) {
  SetFocus(hands);
  program.form3.ShowModal();
}

void LeaveChooser(Program& program) {
  program.form3.Command1.Enabled = false;
  program.form3.Hide();
}

}  // namespace veldrin
