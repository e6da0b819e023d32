#include "workspace/files/working_files.h"

#include "model/setting_names.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "workspace/files/kept_machine.h"
#include "workspace/history_menu.h"
#include "workspace/settings.h"

#include <algorithm>
#include <limits>

namespace veldrin {

namespace {

constexpr int kLastWorkFile = 999;
constexpr char kWorkFilePattern[] = "veld???.tmp";
constexpr char kCountValue[] = "0";

std::string WorkFileName(int number) {
  const std::string digits = std::to_string(number);
  return "VELD" + std::string(3 - digits.size(), '0') + digits + ".TMP";
}

std::string InTempDir(const Program& program, const std::string& name) {
  return JoinPath(program.machine.files.Rules(), program.workspace.TempDir, name);
}

bool WorkFileExists(const Program& program) {
  return !program.machine.files.FindFirst(InTempDir(program, kWorkFilePattern)).empty();
}

void DeleteLeftovers(Program& program) {
  Files& files = program.machine.files;
  // With its separator the folder of a drive's root is the root, not the drive's current folder.
  for (const std::string& name : files.FileNames(InTempDir(program, ""), kWorkFilePattern)) {
    Guarded([&] { files.Delete(InTempDir(program, name)); });
  }
}

/// The key that holds the loaded machine's history.
std::string HistoryKey(const Workspace& workspace) {
  const std::string slot = workspace.ExtSlot == 0 ? "Sub" : std::to_string(workspace.ExtSlot);
  return ExtensionKey(slot);
}

int StoredCount(const Program& program, const std::string& key) {
  double count = 0;
  Guarded([&] { count = RoundHalfToEven(LeadingNumber(Stored(program, key, kCountValue))); });
  return static_cast<int>(std::clamp<double>(count, 0, std::numeric_limits<std::int16_t>::max()));
}

void ShowHistoryFrame(Program& program) {
  program.form2.menu_files[0].Visible = true;
  program.form2.menu_his_clear[0].Visible = true;
  program.form2.menu_his_clear[1].Visible = true;
}

/// Entries 2 to `last` take the paths above them; entry 1 takes `path`.
void PushDown(Program& program, int last, const std::string& path) {
  ControlArray<Menu>& entries = program.form2.menu_files;
  for (int i = last; i >= 2; --i) entries[i].Caption = entries[i - 1].Caption.get();
  entries[1].Caption = path;
}

void UnloadLastEntry(Program& program) {
  program.form2.menu_files.Unload(program.workspace.HistoryCount);
  --program.workspace.HistoryCount;
}

void StoreEntries(Program& program) {
  const Workspace& workspace = program.workspace;
  const std::string key = HistoryKey(workspace);
  if (workspace.ExtSlot == 0) Store(program, key, kDefaultValue, workspace.LoadedMachine);
  for (int i = 1; i <= workspace.HistoryCount; ++i) {
    Store(program, key, std::to_string(i), program.form2.menu_files[i].Caption);
  }
  Store(program, key, kCountValue, std::to_string(workspace.HistoryCount));
}

void StoreWindowPlace(Program& program) {
  Workspace& workspace = program.workspace;
  const Form2& form2 = program.form2;
  if (form2.WindowState == static_cast<int>(WindowState::Normal)) {
    Guarded([&] { workspace.LastLeft = ToInt16(form2.Left); });
    Guarded([&] { workspace.LastTop = ToInt16(form2.Top); });
  }
  Store(program, kLastTopValue, std::to_string(workspace.LastTop));
  Store(program, kLastLeftValue, std::to_string(workspace.LastLeft));
}

}  // namespace

void FindTempDir(Program& program) {
  program.workspace.TempDir =
      TrimRoot(program.machine.files.Rules(), program.machine.environment.Variable("TEMP"));
}

int ChooseWorkFile(Program& program) {
  Workspace& workspace = program.workspace;
  FindTempDir(program);
  if (program.machine.instances.Others() == 0 && WorkFileExists(program)) {
    DeleteLeftovers(program);
    workspace.TempCleaned = true;
  }
  int number = 0;
  while (program.machine.files.FileExists(InTempDir(program, WorkFileName(number)))) {
    if (++number > kLastWorkFile) throw EndOfProgram{};
  }
  workspace.WorkFile = InTempDir(program, WorkFileName(number));
  program.files.OpenOutput(Handle::WorkFile, workspace.WorkFile);
  program.files.Write(Handle::WorkFile, std::string(kCrLf));
  program.files.Close(Handle::WorkFile);
  return number + 1;
}

void LoadHistory(Program& program) {
  Workspace& workspace = program.workspace;
  ControlArray<Menu>& entries = program.form2.menu_files;
  const std::string key = HistoryKey(workspace);
  if (workspace.ExtSlot == 0 && Stored(program, key, kDefaultValue) != workspace.MachineName) return;
  const int count = StoredCount(program, key);
  if (count == 0) return;
  for (int i = 1; i <= count; ++i) {
    const std::string path = Stored(program, key, std::to_string(i));
    if (path.empty() || !program.machine.files.FileExists(path)) continue;
    ++workspace.HistoryCount;
    entries.Load(workspace.HistoryCount).Caption = path;
  }
  if (workspace.HistoryCount == 0) return;
  for (int i = 1; i <= workspace.HistoryCount; ++i) entries[i].Visible = true;
  ShowHistoryFrame(program);
}

void SaveHistory(Program& program) {
  const Workspace& workspace = program.workspace;
  // Tables of no machine have no history, and what the store holds is another one's.
  if (!workspace.LoadedMachine.empty()) StoreEntries(program);
  StoreWindowPlace(program);
}

void AddToHistory(Program& program, const std::string& path) {
  Workspace& workspace = program.workspace;
  ControlArray<Menu>& entries = program.form2.menu_files;
  ShowHistoryFrame(program);
  for (int i = 1; i <= workspace.HistoryCount; ++i) {
    if (!EqualsIgnoringCase(entries[i].Caption.get(), path)) continue;
    if (i > 1) PushDown(program, i, path);
    return;
  }
  ++workspace.HistoryCount;
  entries.Load(workspace.HistoryCount);
  PushDown(program, workspace.HistoryCount, path);
  if (workspace.HistoryCount > workspace.HistoryMax) UnloadLastEntry(program);
  entries[workspace.HistoryCount].Visible = true;
}

bool RemoveFromHistory(Program& program, const std::string& path) {
  Workspace& workspace = program.workspace;
  ControlArray<Menu>& entries = program.form2.menu_files;
  if (!entries[0].Visible) return false;
  int place = 1;
  while (place <= workspace.HistoryCount && entries[place].Caption != path) ++place;
  if (place > workspace.HistoryCount) return false;
  const bool wasOnly = workspace.HistoryCount == 1;
  for (int i = place; i < workspace.HistoryCount; ++i) entries[i].Caption = entries[i + 1].Caption.get();
  UnloadLastEntry(program);
  if (wasOnly) entries[0].Visible = false;
  return wasOnly;
}

void ClearHistory(Program& program) {
  Files& files = program.machine.files;
  EmptyHistoryMenu(program);
  // A remnant of older versions: nothing else reads or writes this file.
  const std::string remnant = JoinPath(files.Rules(), program.workspace.AppPath, "veldrin.his");
  if (files.FileExists(remnant)) Guarded([&] { files.Delete(remnant); });
}

void EndProgram(Program& program) {
  SettleMachine(program);
  Files& files = program.machine.files;
  const std::string& workFile = program.workspace.WorkFile;
  if (files.FileExists(workFile)) Guarded([&] { files.Delete(workFile); });
  FindTempDir(program);
  if (!WorkFileExists(program)) SaveHistory(program);
  throw EndOfProgram{};
}

}  // namespace veldrin
