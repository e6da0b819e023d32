// The files that a call names, read and refused.
#pragma once

#include "model/workspace.h"
#include "plan/check/list_remarks.h"
#include "plan/commands/commands.h"
#include "plan/present/combination_file.h"
#include "plan/present/plan_reader.h"

#include <optional>
#include <string>

namespace veldrin {

/// The file's text in the call's encoding. Throws BadInput where it cannot be had.
std::string TextOfFile(const Call& call, const std::string& path);

/// All remarks of a strict reading of a list.
ListRemarks RemarksOfList(const std::string& path, const std::string& text);
void WriteRemark(std::ostream& errors, const std::string& path, const ListRemark& remark);

/// The machine of a list, under the call's running conditions. Throws BadInput with the list's first fault.
Workspace MachineOfList(const Call& call, const std::string& path);

/// The combination file beside a list; nothing where there is none. Throws BadInput for a damaged one.
std::optional<CombinationFile> CombinationBeside(const Call& call, const std::string& listPath,
                                                 const Workspace& machine);

/// A plan on its machine, under the call's running conditions, with a warning where its stored speeds are not
/// those of its rows. Throws BadInput for what ReadPlan refuses.
PlanAtHand PlanOnMachine(const Call& call, const std::string& path, const Workspace& machine);

}  // namespace veldrin
