#include "workspace/title.h"

#include "platform/paths.h"
#include "runtime/text.h"

namespace veldrin {

std::string MachineTitle(const Workspace& workspace) {
  return workspace.TitlePrefix + "[" + UpperCase(workspace.MachineName) + "]";
}

std::string PlanTitle(const Program& program, const std::string& fileName) {
  const Workspace& workspace = program.workspace;
  const std::string folder = LastPartOf(program.machine.files.Rules(), workspace.DataPath);
  return MachineTitle(workspace) + " - [" + UpperCase(folder) + "] - [" + fileName + "]";
}

bool TitleIsMarked(const Program& program) {
  return Contains(program.form2.Caption.get(), program.workspace.ChangedMark);
}

void MarkTitle(Program& program) {
  if (!TitleIsMarked(program)) program.form2.Caption = program.form2.Caption + program.workspace.ChangedMark;
}

void UnmarkTitle(Program& program) {
  // A caption file may leave the mark empty; there is nothing to cut then.
  if (program.workspace.ChangedMark.empty()) return;
  const std::string& title = program.form2.Caption;
  const std::size_t at = title.find(program.workspace.ChangedMark);
  if (at != std::string::npos) program.form2.Caption = title.substr(0, at);
}

}  // namespace veldrin
