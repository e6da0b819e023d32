// Text files on their way to the disk, where they replace the old ones as real_replacing_file.h tells.
#pragma once

#include "machine/files/real_replacing_file.h"
#include "platform/files.h"
#include "platform/text_encoding.h"

#include <filesystem>
#include <memory>
#include <string>

namespace veldrin {

/// A text file being written, in the page that its text goes by.
class RealWriter : public FileWriter {
 public:
  /// `path` as the disk spells it. Raises what ReplacingFile raises.
  RealWriter(std::shared_ptr<TextEncoding> encoding, const std::filesystem::path& path);

  /// Raises what ReplacingFile raises, and 52 after Close.
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
