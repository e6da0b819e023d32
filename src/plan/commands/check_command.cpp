#include "model/list_tables.h"
#include "plan/commands/call_files.h"
#include "plan/commands/commands.h"
#include "plan/files/machine.h"

namespace veldrin {

int CheckListFile(const Call& call) {
  const std::string& path = call.arguments.listPath;
  const std::string text = TextOfFile(call, path);
  const ListRemarks remarks = RemarksOfList(path, text);
  for (const ListRemark& remark : remarks.InOrder()) WriteRemark(call.errors, path, remark);
  if (remarks.Faults() > 0) return kBadInput;
  const Workspace machine = ReadMachine(text);
  call.out << path << ": fine: machine " << machine.MachineName << ", " << machine.PrimaryCount
           << " primary, " << FinalRowCount(machine) << " final and " << machine.GearRows << " gear rows\n";
  return kDone;
}

}  // namespace veldrin
