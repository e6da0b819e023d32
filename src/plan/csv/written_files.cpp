#include "plan/csv/written_files.h"

#include "plan/files/bad_input.h"
#include "platform/disk.h"

#include <fstream>
#include <system_error>

namespace veldrin {

namespace {

bool IsThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(StatusOnDisk(PathOfText(path), ignored));
}

std::string Neighbour(const std::string& path) {
  return path + ".new";
}

void RemoveAll(const std::vector<std::string>& paths) {
  std::error_code ignored;
  for (const std::string& path : paths) RemoveOnDisk(PathOfText(path), ignored);
}

}  // namespace

void WriteFiles(const std::vector<WrittenFile>& files) {
  for (const WrittenFile& file : files) {
    if (IsThere(file.path)) RefuseFile(file.path, "exists already; type another name or take it away");
    if (IsThere(Neighbour(file.path))) RefuseFile(Neighbour(file.path), "is in the way; take it away");
  }
  std::vector<std::string> made;
  for (const WrittenFile& file : files) {
    made.push_back(Neighbour(file.path));
    std::ofstream out(OpenablePath(PathOfText(Neighbour(file.path))), std::ios::binary);
    out.write(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
    out.close();
    if (out) continue;
    RemoveAll(made);
    RefuseFile(file.path, "cannot be written");
  }
  for (const WrittenFile& file : files) {
    std::error_code error;
    RenameOnDisk(PathOfText(Neighbour(file.path)), PathOfText(file.path), error);
    if (error) {
      RemoveAll(made);
      RefuseFile(file.path, "cannot be written");
    }
    made.push_back(file.path);
  }
}

}  // namespace veldrin
