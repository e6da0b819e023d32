#include "machine/files/real_writer.h"

#include "platform/disk.h"
#include "runtime/fault.h"

#include <utility>

namespace veldrin {

namespace fs = std::filesystem;

RealWriter::RealWriter(std::shared_ptr<TextEncoding> encoding, const fs::path& path)
    : encoding_(std::move(encoding)), path_(TextOfPath(path)), file_(std::make_unique<ReplacingFile>(path)) {}

void RealWriter::Write(const std::string& text) {
  if (!file_) Raise(kFaultBadFileName);
  file_->Append(text);
  text_ += text;
}

void RealWriter::Close() {
  if (!file_) return;
  const std::unique_ptr<ReplacingFile> file = std::move(file_);
  // Which page serves is known only with the whole text. Other pages take no more room than UTF-8.
  const std::string bytes = encoding_->Encode(path_, text_);
  if (bytes != text_) {
    file->StartOver();
    file->Append(bytes);
  }
  file->Commit();
}

}  // namespace veldrin
