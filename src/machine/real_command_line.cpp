#include "machine/real_command_line.h"

#include "machine/files/real_path.h"
#include "platform/disk.h"
#include "runtime/fault.h"

#include <QCoreApplication>

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
  std::vector<std::string> words;
  for (int i = 1; i < count; ++i) words.emplace_back(arguments[i]);
  return words;
}

#endif

std::string PathOfWord(const std::string& word) {
  std::string path = word;
  // A name that the system refuses is told when it is opened.
  Guarded([&] { path = TextOfPath(WholePath(NativePath(word))); });
  return path;
}

}  // namespace veldrin
