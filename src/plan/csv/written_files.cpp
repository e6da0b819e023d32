#include "plan/csv/written_files.h"

#include "plan/files/bad_input.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

std::string Neighbour(const std::string& path) {
  return path + ".new";
}

void RemoveAll(const std::vector<std::string>& paths) {
  std::error_code ignored;
  for (const std::string& path : paths) fs::remove(path, ignored);
}

}  // namespace

void WriteFiles(const std::vector<WrittenFile>& files) {
  std::error_code error;
  for (const WrittenFile& file : files) {
    if (fs::exists(file.path, error))
      RefuseFile(file.path, "exists already; type another name or take it away");
    if (fs::exists(Neighbour(file.path), error))
      RefuseFile(Neighbour(file.path), "is in the way; take it away");
  }
  std::vector<std::string> made;
  for (const WrittenFile& file : files) {
    made.push_back(Neighbour(file.path));
    std::ofstream out(Neighbour(file.path), std::ios::binary);
    out.write(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
    out.close();
    if (out) continue;
    RemoveAll(made);
    RefuseFile(file.path, "cannot be written");
  }
  for (const WrittenFile& file : files) {
    fs::rename(Neighbour(file.path), file.path, error);
    if (error) {
      RemoveAll(made);
      RefuseFile(file.path, "cannot be written");
    }
    made.push_back(file.path);
  }
}

}  // namespace veldrin
