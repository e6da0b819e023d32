#include "tests/monkey/memory.h"

namespace veldrin::monkey {

bool IsRequestMode(const std::string& mode) {
  return mode == mode::kSpeed || mode == mode::kRpm;
}

bool NamesChooser(const std::string& mode) {
  return mode == mode::kList || mode == mode::kData || mode == mode::kQuickRatio || mode == mode::kReference;
}

/// Enter and the arrows are the keys of a request box; others do nothing.
static bool DrawsRequests(const Deed& deed) {
  const std::string key = deed.Argument();
  return deed.Is("key") &&
         (key == "Enter" || key == "Left" || key == "Up" || key == "Right" || key == "Down");
}

void Memory::Learn(const Program& program, const Deed& deed, bool blocked, const Moment& before,
                   const Moment& now) {
  const std::string modeBefore = mode;
  // Under a question Restore brings back the plan and leaves the word to the question.
  const bool restored = (deed.On("Form2", "Command7") || deed.On("Form2", "f_rest")) && !blocked &&
                        !program.form2.Label38.Visible;
  if (!NamesChooser(now.mode)) mode = now.mode;
  if (NamesChooser(now.mode) && restored) mode = mode::kChange;
  const bool isRed = program.form2.Label12[3].BackColor == kRed;

  // A box that is left by speed is drawn; by revolutions, or under a question, only its own keys draw it.
  const bool inBox = deed.On("Form2", "Text1") && !blocked;
  const bool left = before.focus.starts_with("Text1(") && now.focus != before.focus &&
                    before.mode == mode::kSpeed && now.mode == mode::kSpeed;
  if (inBox && (deed.Is("enter") || deed.Is("type") || deed.Is("dblclick"))) {
    requestTyped = true;
  } else if (left || (inBox && DrawsRequests(deed)) || !IsRequestMode(mode)) {
    requestTyped = false;
  }

  if (modeBefore == mode::kBasing && mode == mode::kChange) firstPlan = true;
  if (mode == mode::kBasing) firstPlan = false;
  if (mode == mode::kChange) planWasOnShow = true;
  if (mode == mode::kBasing) planWasOnShow = false;

  const bool leftEntry = IsRequestMode(modeBefore) && !IsRequestMode(mode);
  const bool enteredIt = !IsRequestMode(modeBefore) && IsRequestMode(mode);
  if (enteredIt) entryNotOpened = deed.On("Form4", "Command2");
  if (leftEntry) entryNotOpened = false;

  if (leftEntry && isRed) redThroughRequests = true;
  if (!isRed || before.rows[4] != now.rows[4] || before.rows[5] != now.rows[5]) redThroughRequests = false;

  if (modeBefore == mode::kReferenceInForce && mode == mode::kChange) takenFromReference = true;
  if (program.form2.loaded && program.form2.Command7.Enabled) takenFromReference = false;
  if (before.dataChanged != now.dataChanged && now.dataChanged == dirty::kOne) takenFromReference = false;

  if (deed.Is("close") && deed.window == "Form4" && !blocked) dialogClosed = true;
  if (!IsRequestMode(mode)) dialogClosed = false;
}

}  // namespace veldrin::monkey
