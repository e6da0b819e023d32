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

std::string UnmarkedTitle(const Program& program) {
  const std::string& title = program.form2.Caption;
  const std::string& mark = program.workspace.ChangedMark;
  // A caption file may leave the mark empty; there is nothing to cut then.
  return mark.empty() ? title : title.substr(0, title.find(mark));
}

void UnmarkTitle(Program& program) {
  const std::string title = UnmarkedTitle(program);
  if (title != program.form2.Caption.get()) program.form2.Caption = title;
}

}  // namespace veldrin
