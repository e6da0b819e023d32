#include "plan/present/list_finder.h"

#include "plan/files/bad_input.h"
#include "platform/disk.h"
#include "platform/process_texts.h"
#include "runtime/text.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

/// The folder that holds LIST and DAT of the installed program, after the user's choice.
fs::path ProgramFolder() {
  if (const std::string named = VariableText("VELDRIN_HOME"); !named.empty()) return PathOfText(named);
#ifdef _WIN32
  const std::string data = VariableText("LOCALAPPDATA");
  return data.empty() ? fs::path() : PathOfText(data) / "veldrin";
#else
  if (const std::string data = VariableText("XDG_DATA_HOME"); !data.empty())
    return fs::path(data) / "veldrin";
  const std::string home = VariableText("HOME");
  return home.empty() ? fs::path() : fs::path(home) / ".local" / "share" / "veldrin";
#endif
}

fs::path FolderAround(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

std::string FileIn(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  for (const FolderEntry& entry : EntriesOnDisk(folder, ignored)) {
    if (EqualsIgnoringCase(TextOfPath(entry.name), name)) return TextOfPath(folder / entry.name);
  }
  return "";
}

/// A folder inside another, whatever the case of its name.
fs::path FolderIn(const fs::path& folder, const std::string& name) {
  const std::string found = FileIn(folder, name);
  return found.empty() ? folder / name : PathOfText(found);
}

}  // namespace

std::string FindListOf(const std::string& planPath, const std::string& machine) {
  const fs::path folder = FolderAround(PathOfText(planPath));
  std::vector<fs::path> folders = {folder, FolderIn(folder / "..", "LIST")};
  if (const fs::path program = ProgramFolder(); !program.empty())
    folders.push_back(FolderIn(program, "LIST"));
  for (const fs::path& place : folders) {
    const std::string path = FileIn(place, machine + ".RAT");
    if (!path.empty()) return path;
  }
  RefuseLine(planPath, 1, "the list " + machine + ".RAT is not found; type its path behind the plan's");
}

std::string FileBeside(const std::string& path, const std::string& extension) {
  const fs::path place = PathOfText(path);
  return FileIn(FolderAround(place), TextOfPath(place.stem()) + extension);
}

}  // namespace veldrin
