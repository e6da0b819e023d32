// Files and folders as the program asks for them. Paths follow the machine's own rules; texts are UTF-8 here
// and in the machine's code page on the disk.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace veldrin {

/// How the machine spells paths.
struct PathRules {
  char separator = '\\';
  /// Characters of a root that stay when its separator is cut: 2 keeps "C:" of "C:\", 0 keeps nothing of "/".
  int rootLength = 2;
  /// Whether two names that differ in case alone may be two files.
  bool caseCounts = false;
};

/// A file being written. What was written stands under the file's name only after Close; a writer that is
/// destroyed without it leaves the file as it was.
struct FileWriter {
  virtual ~FileWriter() = default;
  /// Appends `text` as it stands. Raises fault 61 on a full disk.
  virtual void Write(const std::string& text) = 0;
  /// Puts what was written in the file's place. Raises faults 61, 70 and 75.
  virtual void Close() = 0;
};

/// The file system. Names are found without regard to case. Operations raise 52 for a name that the system
/// refuses, 53 for a file that is not there, 70 where reading or writing is denied, 71 for a drive that is
/// not ready, 75 where the path is a folder or cannot be had, 76 for a folder that is not there.
struct Files {
  virtual ~Files() = default;

  virtual PathRules Rules() const = 0;

  /// The whole text of a file.
  virtual std::string ReadText(const std::string& path) = 0;
  virtual std::unique_ptr<FileWriter> OpenForWriting(const std::string& path) = 0;
  virtual void Delete(const std::string& path) = 0;
  /// Gives a file the name by which `path` finds it, with its case.
  virtual void Respell(const std::string& path) = 0;
  /// Bytes of a file.
  virtual std::int64_t Size(const std::string& path) = 0;

  /// Whether a file of this name is there; false for folders and for every failure.
  virtual bool FileExists(const std::string& path) const = 0;
  virtual bool FolderExists(const std::string& path) const = 0;
  /// Name on disk, without folder, of the first file that matches `pattern`, whose last part may hold "*"
  /// and "?"; empty when none does. Names come in their order.
  virtual std::string FindFirst(const std::string& pattern) const = 0;
  /// Name on disk of the last part of `path`, a file or a folder, in its long form; empty when it is not
  /// there.
  virtual std::string LongName(const std::string& path) const = 0;

  /// Names of the files of a folder that match `pattern` (several parted by ";"), in their order.
  virtual std::vector<std::string> FileNames(const std::string& folder, const std::string& pattern) const = 0;
  /// Names of the folders of a folder, in their order.
  virtual std::vector<std::string> FolderNames(const std::string& folder) const = 0;
  /// `path` as the system spells it; raises 76 when there is no such folder, 71 when its drive is not ready.
  virtual std::string ResolveFolder(const std::string& path) const = 0;

  /// Drives as the drive box offers them, such as "C:".
  virtual std::vector<std::string> Drives() const = 0;
  /// The drive that `path` lies on, as Drives() spells it; empty for none of them.
  virtual std::string DriveOf(const std::string& path) const = 0;

  virtual std::string CurrentFolder() const = 0;
  /// Makes a folder, and its drive, the current one. Raises 71 and 76.
  virtual void SetCurrentFolder(const std::string& path) = 0;
};

}  // namespace veldrin
