#include "machine/real_command_line.h"

#include "machine/files/real_path.h"
#include "platform/disk.h"
#include "platform/process_texts.h"
#include "runtime/fault.h"

#include <QCoreApplication>

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include "runtime/text.h"

#include <windows.h>
#endif

namespace veldrin {

#ifdef _WIN32

std::vector<std::string> CommandLineWords(int /*count*/, const char* const* /*arguments*/) {
  // main()'s are in a page that lacks most characters.
  std::vector<std::string> words;
  for (const QString& word : QCoreApplication::arguments().mid(1)) words.push_back(word.toStdString());
  return words;
}

#else

std::vector<std::string> CommandLineWords(int count, const char* const* arguments) {
  return ArgumentTexts(count, arguments);
}

#endif

namespace {

/// The words as they were written, with all their blanks.
std::vector<std::string> JoinedWords(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
  std::vector<std::string> ways{joined};
#ifdef _WIN32
  // The system hands over one line, with two blanks where a name has two.
  const std::string line = Trim(TextOfPath(std::wstring(GetCommandLineW())));
  const std::size_t end = line.starts_with('"') ? line.find('"', 1) : line.find(' ');
  if (end != std::string::npos) ways.push_back(Trim(line.substr(end + 1)));
#endif
  return ways;
}

bool IsFile(const std::string& path) {
  std::error_code failure;
  return std::filesystem::is_regular_file(StatusOnDisk(PathOfText(path), failure));
}

}  // namespace

std::string PathOfWord(const std::string& word) {
  std::string path = word;
  // A name that the system refuses is told when it is opened.
  Guarded([&] { path = TextOfPath(WholePath(NativePath(word))); });
  return path;
}

std::optional<std::string> PathOfWords(const std::vector<std::string>& words) {
  if (words.empty()) return "";
  if (words.size() == 1) return PathOfWord(words.front());
  for (const std::string& way : JoinedWords(words)) {
    const std::string path = PathOfWord(way);
    if (IsFile(path)) return path;
  }
  return std::nullopt;
}

}  // namespace veldrin
