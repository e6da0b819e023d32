// Files opened under fixed numbers. A number that is in use cannot be opened again (fault 55), which some
// rules rest on: a file that an error left open hinders the next open of the same number.
#pragma once

#include "platform/files.h"
#include "runtime/text_file.h"

#include <map>
#include <memory>
#include <string>

namespace veldrin {

enum class Handle {
  Reader = 1,  // list and plan files on their way in
  Plan = 2,    // the plan being written
  Combination = 3,
  Reference = 4,  // quick-ratio and reference files
  WorkFile = 5,
  Captions = 6,
  OlderSettings = 7,
  Compare = 8,
};

class FileHandles {
 public:
  explicit FileHandles(Files& files) : files_(files) {}

  /// Opens a file for reading. Raises 55 when the number is in use or the file is being written, and the
  /// file system's faults.
  void OpenInput(Handle handle, const std::string& path);
  /// Opens a file for writing; what is written stands in its place after Close. Raises 55 when the number or
  /// the file is in use, and the file system's faults.
  void OpenOutput(Handle handle, const std::string& path);
  /// What is read from the handle. Raises 52 when it is not open for reading.
  TextReader& Reader(Handle handle);
  /// Writes to the handle. Raises 52 when it is not open for writing, and the file system's faults.
  void Write(Handle handle, const std::string& text);
  /// Closes the handle; one that is not open is no error. Raises the file system's faults of a writing that
  /// cannot be finished; the handle is closed all the same.
  void Close(Handle handle);
  /// Gives a writing up: the file stays as it was.
  void Abandon(Handle handle) { open_.erase(handle); }
  /// Path of the file that the handle is open on, empty when it is not.
  std::string PathOf(Handle handle) const {
    const auto found = open_.find(handle);
    return found == open_.end() ? "" : found->second.path;
  }
  bool IsOpen(Handle handle) const { return open_.count(handle) != 0; }

 private:
  struct OpenedFile {
    std::string path;
    std::unique_ptr<TextReader> reader;
    std::unique_ptr<FileWriter> writer;
  };

  Files& files_;
  std::map<Handle, OpenedFile> open_;
};

}  // namespace veldrin
