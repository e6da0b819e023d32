#include "platform/process_texts.h"

#ifdef _WIN32
#include "platform/disk.h"

#include <windows.h>
#else
#include <cstdlib>
#endif

namespace veldrin {

#ifdef _WIN32

std::vector<std::string> ArgumentTexts(int /*count*/, const char* const* /*words*/) {
  std::vector<std::string> texts;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; words != nullptr && i < count; ++i) texts.push_back(TextOfPath(words[i]));
  LocalFree(words);
  return texts;
}

std::string VariableText(const char* name) {
  const std::wstring wanted = PathOfText(name).wstring();
  std::wstring value;
  DWORD size = GetEnvironmentVariableW(wanted.c_str(), nullptr, 0);
  while (size > value.size()) {
    value.resize(size);
    size = GetEnvironmentVariableW(wanted.c_str(), value.data(), size);
  }
  value.resize(size);
  return TextOfPath(value);
}

ConsoleInUtf8::ConsoleInUtf8() : before_(GetConsoleOutputCP()) {
  if (before_ != 0) SetConsoleOutputCP(CP_UTF8);
}

ConsoleInUtf8::~ConsoleInUtf8() {
  if (before_ != 0) SetConsoleOutputCP(before_);
}

#else

std::vector<std::string> ArgumentTexts(int count, const char* const* words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

std::string VariableText(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

ConsoleInUtf8::ConsoleInUtf8() = default;
ConsoleInUtf8::~ConsoleInUtf8() = default;

#endif

}  // namespace veldrin
