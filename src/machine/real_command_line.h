// What stands on the command line, in the system's own bytes: names of files need not be UTF-8.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

/// The words behind the program's name, from what QApplication has left of main()'s.
std::vector<std::string> CommandLineWords(int count, const char* const* arguments);

/// The path that a word names, whole: the program goes into its own folder before it reads it. The empty word
/// stays empty.
std::string PathOfWord(const std::string& word);

/// The path that the words name: the empty path without any, one word as PathOfWord takes it, several where
/// together, with blanks between them, they name a file that is there. Somebody has passed that on without
/// quotes. Nothing for other words.
std::optional<std::string> PathOfWords(const std::vector<std::string>& words);

}  // namespace veldrin
