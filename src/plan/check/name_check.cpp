#include "plan/check/name_check.h"

#include "runtime/text.h"

namespace veldrin {

namespace {

/// A character that a machine's name had better not hold, and what becomes of its plan files.
struct BadCharacter {
  char character;
  const char* shown;
  const char* consequence;
};

constexpr char kCutShort[] = "where plan files end it, so they are not opened again";

constexpr BadCharacter kBadCharacters[] = {
    {'\n', "line end", kCutShort},
    {'\r', "line end", kCutShort},
    {'.', "\".\"", kCutShort},
    {',', "\",\"", kCutShort},
    {'*', "\"*\"", "so plan files cannot be saved"},
    {'?', "\"?\"", "so plan files cannot be saved"},
    {';', "\";\"", "so the chooser does not find plan files"},
};

}  // namespace

void CheckMachineName(const ScannedField& name, const std::string& baseName, ListRemarks& remarks) {
  remarks.CheckQuotes(name);
  if (!EqualsIgnoringCase(name.text, baseName)) {
    remarks.Warn(name.line, "the name " + Quoted(name.text) +
                                " differs from the file's, so plan files will not find it");
  }
  for (const BadCharacter& bad : kBadCharacters) {
    if (name.text.find(bad.character) == std::string::npos) continue;
    remarks.Warn(name.line,
                 "the name " + Quoted(name.text) + " holds a " + bad.shown + ", " + bad.consequence);
    return;
  }
}

}  // namespace veldrin
