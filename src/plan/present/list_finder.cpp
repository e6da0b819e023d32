#include "plan/present/list_finder.h"

#include "plan/files/bad_input.h"
#include "runtime/text.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// The folder that holds LIST and DAT of the installed program, after the user's choice.
fs::path ProgramFolder() {
  if (const std::string named = Variable("VELDRIN_HOME"); !named.empty()) return named;
  if (const std::string data = Variable("XDG_DATA_HOME"); !data.empty()) return fs::path(data) / "veldrin";
  const std::string home = Variable("HOME");
  return home.empty() ? fs::path() : fs::path(home) / ".local" / "share" / "veldrin";
}

std::string FileIn(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
    if (EqualsIgnoringCase(entry.path().filename().string(), name)) return entry.path().string();
  }
  return "";
}

/// A folder inside another, whatever the case of its name.
fs::path FolderIn(const fs::path& folder, const std::string& name) {
  const std::string found = FileIn(folder, name);
  return found.empty() ? folder / name : fs::path(found);
}

}  // namespace

std::string FindListOf(const std::string& planPath, const std::string& machine) {
  const fs::path folder =
      fs::path(planPath).has_parent_path() ? fs::path(planPath).parent_path() : fs::path(".");
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
  const fs::path place(path);
  const fs::path folder = place.has_parent_path() ? place.parent_path() : fs::path(".");
  return FileIn(folder, place.stem().string() + extension);
}

}  // namespace veldrin
