#include "plan/files/machine.h"

#include "model/list_tables.h"
#include "runtime/text_file.h"

namespace veldrin {

Workspace ReadMachine(const std::string& listText) {
  Workspace workspace;
  workspace.TyreLength = kDefaultTyreLength;
  workspace.ShiftNe = kDefaultShiftNe;
  workspace.CheckNe = kDefaultCheckNe;
  workspace.MaxNe = kDefaultMaxNe;
  workspace.MaxSpeed = kDefaultMaxSpeed;
  TextReader reader(listText);
  reader.Field();  // the tag
  ReadListTables(reader, workspace);
  BuildFinalTable(workspace);
  SortTables(workspace);
  return workspace;
}

}  // namespace veldrin
