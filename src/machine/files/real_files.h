// The system's files and folders. Texts go through the rule of text_encoding.h; names are found by the rule
// of real_path.h; what is written replaces the old file when it is closed.
#pragma once

#include "platform/files.h"
#include "platform/text_encoding.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

class RealFiles : public Files {
 public:
  explicit RealFiles(CodePages pages);

  PathRules Rules() const override;

  /// Raises fault 75 for what is no plain file, cannot be read or is no text by its size (256 MB).
  std::string ReadText(const std::string& path) override;
  /// Raises fault 52 also for "*" and "?" in the name, which the program's lists take for patterns.
  std::unique_ptr<FileWriter> OpenForWriting(const std::string& path) override;
  /// Replaces a file by these bytes, at once or not at all. Raises the faults of writing a file.
  void WriteBytes(const std::string& path, std::string_view bytes);
  void Delete(const std::string& path) override;
  void Respell(const std::string& path) override;
  std::int64_t Size(const std::string& path) override;

  bool FileExists(const std::string& path) const override;
  bool FolderExists(const std::string& path) const override;
  /// Every failure gives the empty text. An empty last part stands for all files.
  std::string FindFirst(const std::string& pattern) const override;
  std::string LongName(const std::string& path) const override;

  /// Names in the order of their small letters, without the hidden ones. Both raise what ResolveFolder
  /// raises.
  std::vector<std::string> FileNames(const std::string& folder, const std::string& pattern) const override;
  std::vector<std::string> FolderNames(const std::string& folder) const override;
  /// Raises fault 75 for a folder that may not be entered, 68 for a drive that is not there.
  std::string ResolveFolder(const std::string& path) const override;

  std::vector<std::string> Drives() const override;
  std::string DriveOf(const std::string& path) const override;

  std::string CurrentFolder() const override;
  void SetCurrentFolder(const std::string& path) override;

 private:
  /// Shared with the writers, which may outlive this.
  std::shared_ptr<TextEncoding> encoding_;
};

}  // namespace veldrin
