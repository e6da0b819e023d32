#include "dialogs/settings_validation.h"

#include "model/decimal.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "workspace/notice_words.h"

#include <iterator>
#include <string>

namespace veldrin {

namespace {

constexpr int kBoxes = static_cast<int>(std::size(kConditions));

/// Whether the language is one of the program's, or its caption file is there.
bool LanguageIsKnown(const Program& program, const std::string& language) {
  if (language == kEnglish || language == kJapanese) return true;
  const Files& files = program.machine.files;
  return files.FileExists(JoinPath(files.Rules(), program.workspace.AppPath, language + ".CAP"));
}

/// A text that is no number at all lies in no range. Of a whole number only what it begins with is looked at.
bool BoxIsInRange(const Program& program, int box) {
  const Condition& condition = kConditions[box];
  const std::string& text = program.form7->Text1[box].Text;
  double number = 0;
  const int fault = Guarded(
      [&] { number = condition.whole ? LeadingNumber(text) : RepairedSingle(program.workspace, text); });
  return fault == 0 && condition.limits.Holds(number);
}

void TellRange(Program& program, int box) {
  TellRefusedNumber(program, ConditionName(box), kConditions[box].limits, ConditionUnit(box));
}

/// Runs the checks; false at the first failure, whose box is emptied.
bool PassesChecks(Program& program) {
  Form7& form7 = *program.form7;
  if (!LanguageIsKnown(program, form7.Combo1[0].Text)) {
    form7.Combo1[0].Text = "";
    return false;
  }
  for (int box = 0; box < kBoxes; ++box) {
    // Kept: what sorts before "9" passes, digits or not.
    if (!HasLetter(form7.Text1[box].Text.get())) continue;
    form7.Text1[box].Text = " ";
    TellRange(program, box);
    return false;
  }
  for (int box = 0; box < kBoxes; ++box) {
    if (BoxIsInRange(program, box)) continue;
    form7.Text1[box].Text = "";
    TellRange(program, box);
    return false;
  }
  return true;
}

}  // namespace

void Validate(Program& program) {
  program.settingsDialog.ValidationResult = PassesChecks(program) ? kValid : kInvalid;
}

std::string StoredNumber(const Program& program, int box) {
  const Workspace& workspace = program.workspace;
  const std::string& text = program.form7->Text1[box].Text;
  if (kConditions[box].whole) return std::to_string(SystemInt16(workspace, text));
  return SingleText(workspace, RepairedSingle(workspace, text));
}

}  // namespace veldrin
