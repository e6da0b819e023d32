#include "machine/registry/real_file_type.h"

#include "runtime/text.h"

namespace veldrin {

namespace {

constexpr char kIconNumber[] = ",1";
constexpr std::string_view kPathInQuotes = " \"%1\"";

std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

}  // namespace

bool BelongsToFileType(const std::string& key) {
  const std::string type = LowerCase(kFileType);
  const std::string lower = LowerCase(key);
  return lower == type || lower.starts_with(type + "\\");
}

std::string FileTypeText(const std::string& key, const std::string& text, const std::string& program) {
  if (EqualsIgnoringCase(key, kFileTypeIcon)) return Quoted(program) + kIconNumber;
  if (EqualsIgnoringCase(key, kFileTypeCommand)) return Quoted(program).append(kPathInQuotes);
  return text;
}

std::string ProgramOfCommand(const std::string& command) {
  const std::size_t end = command.find('"', 1);
  const bool quoted = command.starts_with('"') && end != std::string::npos;
  if (!quoted || command.substr(end + 1) != kPathInQuotes) return "";
  return command.substr(1, end - 1);
}

}  // namespace veldrin
