#include "desktop/input/dropped_file.h"

#include "machine/files/real_path.h"
#include "model/list_tables.h"
#include "platform/paths.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "view/user_input.h"
#include "workspace/language.h"
#include "workspace/machine_list.h"
#include "workspace/working_files.h"

#include <QUrl>

#include <algorithm>
#include <memory>

namespace veldrin {

namespace {

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

/// The machine of a plan file by its tag; empty where the tag names none.
std::string MachineOfPlan(const std::string& tag) {
  constexpr std::size_t kNameStart = 5;  // behind "FROM:"
  const std::size_t end = tag.find('.');
  return end == std::string::npos || end <= kNameStart ? "" : tag.substr(kNameStart, end - kNameStart);
}

/// Key of the machine whose list follows in the reader; empty where it cannot be understood. The tables of
/// the machine that is loaded must not feel the attempt, so it fills others.
std::string KeyOfList(TextReader& reader, const Workspace& workspace) {
  const auto attempt = std::make_unique<Workspace>(workspace);
  return ReadListTables(reader, *attempt, [] {}) ? attempt->MachineKey : "";
}

/// The same of a list file. Raises the faults of a file that cannot be read.
std::string KeyOfListFile(const Program& program, const std::string& path) {
  TextReader reader(program.machine.files.ReadText(path));
  return reader.Field().starts_with("LIST") ? KeyOfList(reader, program.workspace) : "";
}

Drop LookAtPlan(const Program& program, const std::string& tag) {
  const Workspace& workspace = program.workspace;
  const std::string machine = MachineOfPlan(tag);
  if (machine.empty()) return {.refusal = kUnknownKindMessage, .listFirst = ""};
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
  if (tag.starts_with("FROM")) return LookAtPlan(program, tag);
  const bool serves = tag.starts_with("LIST") && !KeyOfList(reader, program.workspace).empty();
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

void Open(Program& program, const std::string& path) {
  program.workspace.CallerWord = caller::kForm1;
  OpenAnyFile(program, path);
}

}  // namespace

bool CarriesFiles(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

std::string DroppedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1) return "";
  return BytesOfLocalFile(urls[0]);
}

bool TakesDroppedFiles(const Program& program) {
  const Form2& form2 = program.form2;
  return !program.ended && user::Reachable(form2) && !form2.Picture20.Visible && form2.menu_file.Enabled;
}

void OpenDroppedFile(Program& program, const std::string& path) {
  if (!TakesDroppedFiles(program)) return;
  const Drop drop = LookAt(program, path);
  if (drop.refusal != 0) {
    TellRefusal(program, drop);
    return;
  }
  Workspace& workspace = program.workspace;
  if (HasUnsavedChanges(program)) {
    if (!AgreesToDiscard(program)) return;
    workspace.DataChanged = dirty::kNo;
  }
  SaveHistory(program);  // that of the machine that may be left
  if (!drop.listFirst.empty()) Open(program, drop.listFirst);
  Open(program, path);
  workspace.CallerWord = caller::kUser;
  if (workspace.ResultWord == result::kNotGood) Tell(program, Message(workspace, kUnknownKindMessage));
}

}  // namespace veldrin
