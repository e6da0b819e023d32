#include "desktop/real_writer.h"

#include "desktop/real_fault.h"
#include "desktop/real_path.h"
#include "runtime/fault.h"

#include <QFileInfo>

#include <utility>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

bool IsReadOnly(const fs::path& path, fs::perms permissions) {
  // The system lets its administrator write everything; the file's owner meant otherwise.
  return (permissions & fs::perms::owner_write) == fs::perms::none ||
         !QFileInfo(PathString(path)).isWritable();
}

void CheckTarget(const fs::path& path) {
  std::error_code failure;
  const fs::file_status folder = fs::status(path.parent_path(), failure);
  if (folder.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::Write));
  if (!fs::is_directory(folder)) Raise(kFaultPathNotFound);
  const fs::file_status file = fs::status(path, failure);
  if (file.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::Write));
  if (!fs::exists(file)) return;
  if (!fs::is_regular_file(file)) Raise(kFaultPathAccess);
  if (IsReadOnly(path, file.permissions())) Raise(kFaultPermissionDenied);
}

}  // namespace

ReplacingFile::ReplacingFile(const fs::path& path) : file_(PathString(path)) {
  CheckTarget(path);
  if (file_.open(QIODevice::WriteOnly)) return;
  const bool folderDenies = !QFileInfo(PathString(path.parent_path())).isWritable();
  Raise(folderDenies ? kFaultPermissionDenied : kFaultPathAccess);
}

void ReplacingFile::Append(std::string_view bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  if (!failed_ && file_.write(bytes.data(), size) == size && file_.flush()) return;
  failed_ = true;
  Raise(kFaultDiskFull);
}

void ReplacingFile::StartOver() {
  failed_ = failed_ || !file_.seek(0) || !file_.resize(0);
}

void ReplacingFile::Commit() {
  if (failed_) file_.cancelWriting();
  const QFileInfo target(file_.fileName());
  if (file_.commit()) return;
  if (failed_ || file_.error() == QFileDevice::WriteError || file_.error() == QFileDevice::ResourceError) {
    Raise(kFaultDiskFull);
  }
  const QFileInfo folder(target.path());
  Raise(folder.isDir() && !folder.isWritable() ? kFaultPermissionDenied : kFaultPathAccess);
}

RealWriter::RealWriter(std::shared_ptr<TextEncoding> encoding, const fs::path& path)
    : encoding_(std::move(encoding)), path_(PathText(path)), file_(std::make_unique<ReplacingFile>(path)) {}

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
