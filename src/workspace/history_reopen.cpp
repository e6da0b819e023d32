#include "workspace/history_reopen.h"

#include "platform/paths.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/language.h"

#include <string>
#include <vector>

namespace veldrin {

namespace {

/// The folder of a path as a file box takes it: a drive's root keeps its separator.
std::string BoxFolder(const Files& files, const std::string& path) {
  const std::string folder = ParentFolder(files.Rules(), path);
  return folder.empty() ? files.CurrentFolder() : folder;
}

/// The path of what is selected in the chooser.
std::string SelectedPath(const Program& program) {
  const PathRules rules = program.machine.files.Rules();
  const FileBox& box = program.form3.File1;
  return JoinPath(rules, TrimRoot(rules, box.Path), box.FileName);
}

/// Whether the chooser's filters are those of the loaded machine's plans.
bool OffersPlans(const Program& program) {
  const std::vector<std::string>& patterns = program.form3.Combo2.entries;
  return !patterns.empty() && patterns.back() == DataPattern(program.workspace);
}

/// Opens the entry without the chooser's OK; the file box follows where it can. The word holds back the
/// double click that following fires, and no other: the chooser that tells of a failure is the user's.
void OpenBesideChooser(Program& program, const std::string& path) {
  FileBox& box = program.form3.File1;
  const Files& files = program.machine.files;
  Under(program, caller::kCloseOpen, [&] {
    if (!OffersPlans(program)) SetUpDataChooser(program);
    Guarded([&] { box.Path = BoxFolder(files, path); });
    Guarded([&] { box.FileName = LastPartOf(files.Rules(), path); });
    OpenAnyFile(program, path);
  });
  if (program.workspace.ResultWord == result::kNotGood) ShowChooser(program, program.form3.File1);
}

/// Moves the file box to the entry; the double click that this fires runs the chooser's OK.
void OpenThroughChooser(Program& program, const std::string& path) {
  FileBox& box = program.form3.File1;
  const Files& files = program.machine.files;
  box.Path = BoxFolder(files, path);
  // An entry that is selected already would fire nothing.
  box.FileName = "";
  box.FileName = LastPartOf(files.Rules(), path);
}

void OpenEntry(Program& program, const std::string& path) {
  ForgetWaitingList(program);
  Form3& form3 = program.form3;
  const std::string& dataRole = Message(program.workspace, kDataTitleMessage);
  const bool inDataRole = form3.Caption == dataRole;
  form3.Caption = dataRole;
  if (inDataRole && SelectedPath(program) == path) {
    OpenAnyFile(program, path);
  } else if (!inDataRole && program.machine.files.FileExists(path)) {
    OpenThroughChooser(program, path);
  } else {
    // A file that vanished cannot be selected; opening it anyway drops it from the history.
    OpenBesideChooser(program, path);
  }
}

void AskForChanges(Program& program, int index) {
  AskQuestion(program, Question::HistoryLoadWithChanges);
  program.workspace.PendingHistoryIndex = static_cast<std::int16_t>(index);
}

}  // namespace

void ReopenFromHistory(Program& program, int index) {
  Workspace& workspace = program.workspace;
  if (ShowsForbiddenPair(program.form2)) workspace.DataChanged = dirty::kNo;
  // An entry may be gone by the time that a question about it is answered.
  if (index < 1 || !program.form2.menu_files.Has(index)) return;
  const std::string path = program.form2.menu_files[index].Caption;
  if (workspace.DataChanged != dirty::kYes || workspace.QuickQuit == kYesWord) {
    OpenEntry(program, path);
    SettleMachine(program);
  } else {
    AskForChanges(program, index);
  }
}

}  // namespace veldrin
