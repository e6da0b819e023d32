#include "plan/commands/call_files.h"

#include "plan/check/list_check.h"
#include "plan/files/bad_input.h"
#include "plan/files/list_file.h"
#include "plan/files/machine.h"
#include "plan/present/list_finder.h"
#include "platform/disk.h"

namespace veldrin {

std::string TextOfFile(const Call& call, const std::string& path) {
  std::string mistake;
  const std::optional<std::string> text = ReadListFile(path, call.pages, call.arguments.page, mistake);
  if (!text) RefuseFile(path, mistake);
  return *text;
}

ListRemarks RemarksOfList(const std::string& path, const std::string& text) {
  return CheckList(text, TextOfPath(PathOfText(path).stem()));
}

void WriteRemark(std::ostream& errors, const std::string& path, const ListRemark& remark) {
  errors << path << ':' << remark.line << ": " << (remark.warning ? "warning: " : "") << remark.text << '\n';
}

Workspace MachineOfList(const Call& call, const std::string& path) {
  const std::string text = TextOfFile(call, path);
  for (const ListRemark& remark : RemarksOfList(path, text).InOrder()) {
    if (!remark.warning) RefuseLine(path, remark.line, remark.text);
  }
  Workspace machine = ReadMachine(text);
  if (machine.GearRows > kGearRowLimit) {
    RefuseFile(path, std::to_string(machine.GearRows) + " gear rows are announced, a search looks at " +
                         std::to_string(kGearRowLimit) + " at most");
  }
  machine.ShiftNe = call.arguments.shiftNe.value_or(machine.ShiftNe);
  machine.TyreLength = call.arguments.tyreLength.value_or(machine.TyreLength);
  if (call.arguments.checkNe) machine.CheckNe = *call.arguments.checkNe;
  return machine;
}

std::optional<CombinationFile> CombinationBeside(const Call& call, const std::string& listPath,
                                                 const Workspace& machine) {
  const std::string path = FileBeside(listPath, ".CMB");
  if (path.empty()) return {};
  return ReadCombinationFile(path, TextOfFile(call, path), HasSeparateParts(machine.MachineKey));
}

PlanAtHand PlanOnMachine(const Call& call, const std::string& path, const Workspace& machine) {
  PlanAtHand plan = ReadPlan(path, TextOfFile(call, path), machine);
  const std::string warning = StoredSpeedWarning(plan);
  if (!warning.empty()) call.errors << path << ": warning: " << warning << '\n';
  Workspace& workspace = plan.workspace;
  workspace.ShiftNe = call.arguments.shiftNe.value_or(workspace.ShiftNe);
  workspace.TyreLength = call.arguments.tyreLength.value_or(workspace.TyreLength);
  return plan;
}

}  // namespace veldrin
