#include "plan/system_country.h"

#include "platform/process_texts.h"
#include "runtime/text.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace veldrin {

bool IsJapaneseLocale(const VariableOf& variable) {
  std::string name;
  for (const char* source : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (name.empty()) name = variable(source);
  }
  if (name == "C" || name == "POSIX") return false;
  const std::string wanted = variable("LANGUAGE");
  const std::string first = wanted.substr(0, wanted.find(':'));
  if (!name.empty() && !first.empty()) name = first;
  const std::string language = name.substr(0, name.find_first_of("_-.@"));
  return EqualsIgnoringCase(language, "ja") || EqualsIgnoringCase(language, "jpn");
}

bool IsJapaneseSystem() {
#ifdef _WIN32
  wchar_t number[16] = {};
  if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICOUNTRY, number, 16) > 0) {
    return std::wstring(number) == L"81";
  }
#endif
  return IsJapaneseLocale(VariableText);
}

}  // namespace veldrin
