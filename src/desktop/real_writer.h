// Files on their way to the disk. What is written goes to a neighbour of the file, which takes the file's
// place when it is finished: a crash or a full disk leaves the old file whole.
#pragma once

#include "platform/files.h"
#include "platform/text_encoding.h"

#include <QSaveFile>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace veldrin {

/// The bytes of a file that replace those on the disk at once or not at all.
class ReplacingFile {
 public:
  /// Raises fault 76 where the folder is not there, 75 where `path` is no plain file, 70 where the file or
  /// its folder denies writing, 52 for a name that the system refuses. A file whose owner may not write it
  /// counts as denied for everybody.
  explicit ReplacingFile(const std::filesystem::path& path);

  /// Raises fault 61 when there is no room; Commit then raises it again.
  void Append(std::string_view bytes);
  /// Drops what was appended.
  void StartOver();
  /// Raises faults 61, 70 and 75, and leaves the file as it was then.
  void Commit();

 private:
  QSaveFile file_;
  bool failed_ = false;
};

/// A text file being written, in the page that its text goes by.
class RealWriter : public FileWriter {
 public:
  /// `path` as the disk spells it. Raises what ReplacingFile raises.
  RealWriter(std::shared_ptr<TextEncoding> encoding, const std::filesystem::path& path);

  /// Raises fault 61 on a full disk and 52 after Close.
  void Write(const std::string& text) override;
  /// A second Close does nothing.
  void Close() override;

 private:
  std::shared_ptr<TextEncoding> encoding_;
  std::string path_;
  std::string text_;
  /// Takes the room for the text from the first write on. Gone after Close.
  std::unique_ptr<ReplacingFile> file_;
};

}  // namespace veldrin
