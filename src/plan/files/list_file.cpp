#include "plan/files/list_file.h"

#include "platform/disk.h"

#include <array>
#include <fstream>

namespace veldrin {

namespace {

constexpr std::size_t kLargestList = 1 << 20;  // bytes; what is larger is no list

std::optional<std::string> ReadBytes(const std::string& path, std::string& mistake) {
  const std::filesystem::path place = PathOfText(path);
  if (IsFolderOnDisk(place)) {
    mistake = "is a folder";
    return {};
  }
  std::ifstream file(OpenablePath(place), std::ios::binary);
  std::string bytes;
  std::array<char, 16384> part;
  while (file && bytes.size() <= kLargestList) {
    file.read(part.data(), part.size());
    bytes.append(part.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad() || !file.is_open()) {
    mistake = "cannot be read";
    return {};
  }
  if (bytes.size() > kLargestList) {
    mistake = "too large for a machine list";
    return {};
  }
  return bytes;
}

}  // namespace

std::optional<std::string> ReadListFile(const std::string& path, const CodePages& pages,
                                        std::optional<int> page, std::string& mistake) {
  const std::optional<std::string> bytes = ReadBytes(path, mistake);
  if (!bytes) return {};
  if (!page) return TextEncoding(pages).Decode(path, *bytes);
  std::optional<std::string> text = DecodeInPage(pages, *page, *bytes);
  if (!text) mistake = "is no text in the encoding given";
  return text;
}

bool IsKnownPage(const CodePages& pages, int page) {
  return DecodeInPage(pages, page, "A").has_value();
}

}  // namespace veldrin
