#include "desktop/real_command_line.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace veldrin {

#ifdef _WIN32

std::vector<std::string> CommandLineWords(int /*count*/, const char* const* /*arguments*/) {
  // main()'s are in a page that lacks most characters.
  std::vector<std::string> words;
  for (const QString& word : QCoreApplication::arguments().mid(1)) words.push_back(word.toStdString());
  return words;
}

std::string WholePath(const std::string& word) {
  const QString path = QFileInfo(QString::fromStdString(word)).absoluteFilePath();
  return word.empty() ? "" : QDir::toNativeSeparators(path).toStdString();
}

#else

std::vector<std::string> CommandLineWords(int count, const char* const* arguments) {
  std::vector<std::string> words;
  for (int i = 1; i < count; ++i) words.emplace_back(arguments[i]);
  return words;
}

std::string WholePath(const std::string& word) {
  namespace fs = std::filesystem;
  if (word.empty()) return "";
  std::error_code failure;
  const fs::path whole = fs::absolute(word, failure).lexically_normal();
  // From a folder that is gone nothing can be found anyway.
  if (failure) return word;
  return (whole.has_filename() ? whole : whole.parent_path()).string();
}

#endif

}  // namespace veldrin
