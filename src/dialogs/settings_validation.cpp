#include "dialogs/settings_validation.h"

#include "model/decimal.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

#include <string>

namespace veldrin {

namespace {

/// Both ends are allowed.
struct Limits {
  double low;
  double high;
};

constexpr int kBoxes = 5;
constexpr int kTyreBox = 0;
constexpr Limits kLimits[kBoxes] = {{1.0, 3.0}, {5000, 24000}, {5000, 24000}, {100, 340}, {5000, 24000}};

/// Whether the language is one of the program's, or its caption file is there.
bool LanguageIsKnown(const Program& program, const std::string& language) {
  if (language == kEnglish || language == kJapanese) return true;
  const Files& files = program.machine.files;
  return files.FileExists(JoinPath(files.Rules(), program.workspace.AppPath, language + ".CAP"));
}

bool LiesWithin(double number, const Limits& limits) {
  return number >= limits.low && number <= limits.high;
}

/// A text that is no number at all lies in no range.
bool TyreIsInRange(const Workspace& workspace, const std::string& text) {
  float length = 0;
  const int fault =
      Guarded([&] { length = ParseSingle(FixDecimal(workspace, text), DecimalSeparator(workspace)); });
  return fault == 0 && LiesWithin(length, kLimits[kTyreBox]);
}

bool NumberIsInRange(const std::string& text, const Limits& limits) {
  double number = 0;
  const int fault = Guarded([&] { number = LeadingNumber(text); });
  return fault == 0 && LiesWithin(number, limits);
}

bool BoxIsInRange(const Program& program, int box) {
  const std::string& text = program.form7->Text1[box].Text;
  return box == kTyreBox ? TyreIsInRange(program.workspace, text) : NumberIsInRange(text, kLimits[box]);
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
    return false;
  }
  for (int box = 0; box < kBoxes; ++box) {
    if (BoxIsInRange(program, box)) continue;
    form7.Text1[box].Text = "";
    return false;
  }
  return true;
}

}  // namespace

void Validate(Program& program) {
  program.settingsDialog.ValidationResult = PassesChecks(program) ? kValid : kInvalid;
}

}  // namespace veldrin
