// Whether the system is a Japanese one, which decides in which code page an older list is read. The windows
// ask their toolkit for it; the console does without one and asks the same of the system.
#pragma once

#include <functional>
#include <string>

namespace veldrin {

/// A variable of the process by its name; empty when it is not set.
using VariableOf = std::function<std::string(const char* name)>;

/// Whether the variables name a Japanese locale: the first of LC_ALL, LC_MESSAGES and LANG that is set and,
/// unless that is "C" or "POSIX", the first entry of LANGUAGE before it. Raises nothing.
bool IsJapaneseLocale(const VariableOf& variable);

/// Whether the user's country is Japan; where the system has no setting for it, by the locale.
bool IsJapaneseSystem();

}  // namespace veldrin
