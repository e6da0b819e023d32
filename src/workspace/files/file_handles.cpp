#include "workspace/files/file_handles.h"

#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <utility>

namespace veldrin {

void FileHandles::OpenInput(Handle handle, const std::string& path) {
  if (IsOpen(handle)) Raise(kFaultFileAlreadyOpen);
  const bool written = std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
    return entry.second.writer && EqualsIgnoringCase(entry.second.path, path);
  });
  if (written) Raise(kFaultFileAlreadyOpen);
  auto reader = std::make_unique<TextReader>(files_.ReadText(path));
  open_[handle] = {path, std::move(reader), nullptr};
}

void FileHandles::OpenOutput(Handle handle, const std::string& path) {
  const bool used = IsOpen(handle) || std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
                      return EqualsIgnoringCase(entry.second.path, path);
                    });
  if (used) Raise(kFaultFileAlreadyOpen);
  auto writer = files_.OpenForWriting(path);
  open_[handle] = {path, nullptr, std::move(writer)};
}

TextReader& FileHandles::Reader(Handle handle) {
  const auto found = open_.find(handle);
  if (found == open_.end() || !found->second.reader) Raise(kFaultBadFileName);
  return *found->second.reader;
}

void FileHandles::Write(Handle handle, const std::string& text) {
  const auto found = open_.find(handle);
  if (found == open_.end() || !found->second.writer) Raise(kFaultBadFileName);
  found->second.writer->Write(text);
}

void FileHandles::Close(Handle handle) {
  const auto found = open_.find(handle);
  if (found == open_.end()) return;
  const OpenedFile file = std::move(found->second);
  open_.erase(found);
  if (file.writer) file.writer->Close();
}

}  // namespace veldrin
