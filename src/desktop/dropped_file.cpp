#include "desktop/dropped_file.h"

#include "workspace/language.h"
#include "workspace/machine_list.h"
#include "workspace/paths.h"
#include "workspace/working_files.h"

namespace veldrin {

namespace {

constexpr int kUnknownKindMessage = 6;
constexpr int kChangedMessage = 16;
constexpr int kDiscardMessage = 25;

bool HasUnsavedChanges(const Program& program) {
  return program.workspace.DataChanged == dirty::kYes && program.workspace.QuickQuit != kYesWord;
}

bool AgreesToDiscard(Program& program) {
  const std::string question = Message(program.workspace, kChangedMessage) + "\r\n\r\n" +
                               Message(program.workspace, kDiscardMessage) + " ?";
  return program.machine.boxes.Message(BoxIcon::Question, "", question, BoxButtons::OkCancel) ==
         BoxAnswer::Ok;
}

}  // namespace

void OpenDroppedFile(Program& program, const std::string& path) {
  Workspace& workspace = program.workspace;
  if (HasUnsavedChanges(program)) {
    if (!AgreesToDiscard(program)) return;
    workspace.DataChanged = dirty::kNo;
  }
  SaveHistory(program);  // that of the machine that may be left
  workspace.CallerWord = caller::kForm1;
  OpenAnyFile(program, path);
  if (workspace.ResultWord == result::kAnother) {
    const PathRules rules = program.machine.files.Rules();
    OpenAnyFile(program, JoinPath(rules, workspace.ListPath, workspace.MachineName + ".RAT"));
    workspace.CallerWord = caller::kForm1;
    OpenAnyFile(program, path);
  }
  workspace.CallerWord = caller::kUser;
  if (workspace.ResultWord == result::kNotGood && program.machine.files.FileExists(path)) {
    program.machine.boxes.Message(BoxIcon::Exclamation, "", Message(workspace, kUnknownKindMessage),
                                  BoxButtons::Ok);
  }
}

}  // namespace veldrin
