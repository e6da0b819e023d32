// Bytes on their way to the disk. They go to a neighbour of the file, which takes the file's place when it is
// finished: a crash or a full disk leaves the old file whole.
//
// Where names are bytes, they go through as they are, also those that are no UTF-8. A link stays a link: what
// it leads to is replaced. The new file gets the rights of the old one and, where that is allowed, its owner.
#pragma once

#ifdef _WIN32
#include <QSaveFile>
#endif

#include <filesystem>
#include <string_view>

namespace veldrin {

/// The bytes of a file that replace those on the disk at once or not at all.
class ReplacingFile {
 public:
  /// Raises fault 76 where the folder is not there, 75 where `path` is no plain file, 70 where the file or
  /// its folder denies writing, 61 where there is no room, 52 for a name that the system refuses. A file
  /// whose owner may not write it counts as denied for everybody.
  explicit ReplacingFile(const std::filesystem::path& path);
  /// Drops what was not committed.
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  /// Raises fault 61 when there is no room and 71 when the disk does not answer; Commit then raises it again.
  void Append(std::string_view bytes);
  /// Drops what was appended.
  void StartOver();
  /// Returns when the bytes are on the disk and not only on their way. Raises faults 61, 70, 71 and 75, and
  /// leaves the file as it was then.
  void Commit();

 private:
#ifdef _WIN32
  QSaveFile file_;
  bool failed_ = false;
#else
  void Keep(int fault);

  std::filesystem::path target_;
  std::filesystem::path neighbour_;  // empty when there is none any more
  int file_ = -1;
  int fault_ = 0;  // the first of Append and StartOver
#endif
};

}  // namespace veldrin
