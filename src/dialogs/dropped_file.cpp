#include "dialogs/dropped_file.h"

#include "dialogs/load_dispatch.h"
#include "model/file_tags.h"
#include "model/list_tables.h"
#include "platform/paths.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "view/user_input.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/working_files.h"
#include "workspace/language.h"

#include <memory>

namespace veldrin {

namespace {

bool AgreesToDiscard(Program& program) {
  const std::string question = Message(program.workspace, Question::LoadWithChanges) + "\r\n\r\n" +
                               Message(program.workspace, kLoadWithoutSavingMessage) + " ?";
  return program.machine.boxes.Message(BoxIcon::Question, "", question, BoxButtons::OkCancel) ==
         BoxAnswer::Ok;
}

void Tell(Program& program, const std::string& text) {
  program.machine.boxes.Message(BoxIcon::Exclamation, "", text, BoxButtons::Ok);
}

/// What a dropped file turned out to be before anything was loaded.
struct Drop {
  int refusal = 0;        // number of the message that tells why it cannot be opened; 0 when it can
  std::string listFirst;  // the list that a plan of another machine needs
};

/// Why a file that raised a fault cannot be opened; 0 for no fault.
int RefusalOf(int fault) {
  if (fault == 0) return 0;
  return fault == kFaultFileNotFound || fault == kFaultPathNotFound ? kMissingFileMessage
                                                                    : kUnknownKindMessage;
}

/// Key of the machine whose list follows in the reader; empty where it cannot be understood. The tables of
/// the machine that is loaded must not feel the attempt, so it fills others.
std::string KeyOfList(TextReader& reader, const Workspace& workspace) {
  const auto attempt = std::make_unique<Workspace>(workspace);
  return ReadListTables(reader, *attempt) ? attempt->MachineKey : "";
}

/// The same of a list file. Raises the faults of a file that cannot be read.
std::string KeyOfListFile(const Program& program, const std::string& path) {
  TextReader reader(program.machine.files.ReadText(path));
  return IsListTag(reader.Field()) ? KeyOfList(reader, program.workspace) : "";
}

Drop LookAtPlan(const Program& program, const std::string& tag) {
  const Workspace& workspace = program.workspace;
  std::string machine;
  if (Guarded([&] { machine = MachineOfPlan(tag); }) != 0 || machine.empty())
    return {.refusal = kUnknownKindMessage, .listFirst = ""};
  if (workspace.MachineKey == LowerCase(machine)) return {};
  const PathRules rules = program.machine.files.Rules();
  const std::string list = JoinPath(rules, workspace.ListPath, machine + ".RAT");
  std::string found;
  const int fault = Guarded([&] { found = KeyOfListFile(program, list); });
  const bool serves = found == LowerCase(machine);
  return {.refusal = fault == 0 && !serves ? kUnknownKindMessage : RefusalOf(fault), .listFirst = list};
}

/// Raises the faults of a file that cannot be read.
Drop LookAtFile(const Program& program, const std::string& path) {
  TextReader reader(program.machine.files.ReadText(path));
  const std::string tag = reader.Field();
  if (IsPlanTag(tag)) return LookAtPlan(program, tag);
  const bool serves = IsListTag(tag) && !KeyOfList(reader, program.workspace).empty();
  return {.refusal = serves ? 0 : kUnknownKindMessage, .listFirst = ""};
}

Drop LookAt(const Program& program, const std::string& path) {
  Drop drop;
  const int fault = Guarded([&] { drop = LookAtFile(program, path); });
  if (fault != 0) drop.refusal = RefusalOf(fault);
  return drop;
}

void TellRefusal(Program& program, const Drop& drop) {
  const std::string& reason = Message(program.workspace, drop.refusal);
  Tell(program, drop.listFirst.empty() ? reason : drop.listFirst + "\r\n\r\n" + reason);
}

}  // namespace

bool TakesDroppedFiles(const Program& program) {
  const Form2& form2 = program.form2;
  return !program.ended && user::Reachable(form2) && !QuestionStands(program) && form2.menu_file.Enabled;
}

bool OpenDroppedFile(Program& program, const std::string& path) {
  if (!TakesDroppedFiles(program) || !user::Activate(program.form2)) return false;
  const Drop drop = LookAt(program, path);
  if (drop.refusal != 0) {
    TellRefusal(program, drop);
    return true;
  }
  Workspace& workspace = program.workspace;
  const bool discards = MustAskBeforeLoading(program);
  if (discards) {
    if (!AgreesToDiscard(program)) return true;
    program.hooks.GivenUp();
    workspace.DataChanged = dirty::kNo;
  }
  ForgetWaitingList(program);
  SaveHistory(program);  // that of the machine that may be left
  if (!drop.listFirst.empty()) {
    Under(program, caller::kForm1, [&] { OpenAnyFile(program, drop.listFirst); });
  }
  Under(program, caller::kForm1, [&] {
    OpenAnyFile(program, path);
    SettleMachine(program);
  });
  // Nothing has come in the place of the changes: what was read would have left another word.
  if (discards && workspace.DataChanged == dirty::kNo) workspace.DataChanged = dirty::kYes;
  if (workspace.ResultWord == result::kNotGood) Tell(program, Message(workspace, kUnknownKindMessage));
  return true;
}

}  // namespace veldrin
