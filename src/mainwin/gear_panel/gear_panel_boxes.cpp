#include "mainwin/gear_panel/gear_panel_boxes.h"

#include "mainwin/chart.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/refresh_display.h"
#include "model/decimal.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/control_states.h"
#include "workspace/notice_words.h"
#include "workspace/title.h"

#include <optional>
#include <string>

namespace veldrin {

namespace {

// ---- Scroll bars ----

/// Readers move the bars too, and go on after a fault: the word must not outlast it.
void RefreshForScroll(Program& program) {
  int fault = 0;
  Under(program, caller::kScroll, [&] { fault = Guarded([&] { RefreshPlan(program); }); });
  if (fault != 0) Raise(fault);
}

void HScroll1_Change(Program& program) {
  Workspace& workspace = program.workspace;
  const std::string& word = workspace.CallerWord;
  if (word == caller::kInit || word == caller::kOriginal) return;
  workspace.ShiftNe = ToInt16(program.form2.HScroll1.Value.get());
  program.form2.Text4.Text = std::to_string(workspace.ShiftNe);
  if (word == caller::kQuick || workspace.ModeWord == mode::kBasing) return;
  RefreshForScroll(program);
}

void HScroll2_Change(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.CheckNe = static_cast<float>(program.form2.HScroll2.Value.get());
  program.form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  if (workspace.CallerWord != caller::kInit) RefreshForScroll(program);
}

// ---- Boxes of the running conditions ----

/// The number of a text; nothing for one beyond all floats. Raises fault 13 for a text that is no number.
std::optional<double> NumberOf(const Workspace& workspace, const std::string& text) {
  double number = 0;
  const int fault = Guarded([&] { number = SystemNumber(workspace, text); });
  if (fault == kFaultOverflow) return std::nullopt;
  if (fault != 0) Raise(fault);
  return number;
}

void Refuse(Program& program, TextBox& box, int condition) {
  program.machine.sound.Beep();
  box.Text = "";
  TellRefusedNumber(program, ConditionName(condition), kConditions[condition].limits,
                    ConditionUnit(condition));
}

/// The number of a box. One with letters or outside the range is refused by a beep and an emptied box.
/// Kept: a text that is no number ends the program.
std::optional<double> ValidNumber(Program& program, TextBox& box, const std::string& text, int condition) {
  if (!HasLetter(text)) {
    const std::optional<double> number = NumberOf(program.workspace, text);
    if (number && kConditions[condition].limits.Holds(*number)) return number;
  }
  Refuse(program, box, condition);
  return std::nullopt;
}

/// Kept: an empty box is a text without a number like any other, so leaving one that a refusal or a double
/// click has emptied ends the program.
std::optional<double> ValidRevolutions(Program& program, TextBox& box, int condition) {
  return ValidNumber(program, box, box.Text, condition);
}

/// An empty box is refused as well.
std::optional<double> ValidTyreLength(Program& program, TextBox& box) {
  if (!box.Text.get().empty()) {
    return ValidNumber(program, box, FixDecimal(program.workspace, box.Text), kTyreCondition);
  }
  Refuse(program, box, kTyreCondition);
  return std::nullopt;
}

void ValidateCheckNe(Program& program) {
  Form2& form2 = program.form2;
  const auto number = ValidRevolutions(program, form2.Text2, kCheckNeCondition);
  if (!number) return;
  const std::int16_t revolutions = ToInt16(*number);
  program.workspace.CheckNe = revolutions;
  form2.HScroll2.Value = revolutions;
}

void ValidateShiftNe(Program& program) {
  Form2& form2 = program.form2;
  const auto number = ValidRevolutions(program, form2.Text4, kShiftNeCondition);
  if (!number) return;
  program.workspace.ShiftNe = ToInt16(*number);
  form2.HScroll1.Value = program.workspace.ShiftNe;
}

/// Kept: every validation refreshes, so leaving the box counts as a change also where its number stayed.
void ValidateTyreLength(Program& program) {
  Workspace& workspace = program.workspace;
  TextBox& box = program.form2.Text3;
  const auto number = ValidTyreLength(program, box);
  if (!number) return;
  workspace.TyreLength = ToSingle(*number);
  // A valid length is the user's, whoever's word still stands: a list's reader leaves its own, and under that
  // of a quick ratio writing the box would begin a search.
  StayUnder(program, caller::kUser);
  box.Text = SingleText(workspace, workspace.TyreLength);
  RefreshPlan(program);
}

/// A reader that hides the panel takes the focus away as well; that is no leaving of the box.
template <void (*validate)(Program&)>
void Box_LostFocus(Program& program) {
  if (program.workspace.CallerWord != caller::kModule1) validate(program);
}

void Text2_DblClick(Program& program) {
  program.form2.Text2.Text = "";
}

void Text2_KeyDown(Program& program, int key) {
  if (key == kKeyEnter) ValidateCheckNe(program);
}

void Text3_DblClick(Program& program) {
  program.form2.Text3.Text = "";
}

void Text3_KeyDown(Program& program, int key) {
  if (key == kKeyEnter) ValidateTyreLength(program);
}

void Text4_DblClick(Program& program) {
  program.form2.Text4.Text = "";
}

void Text4_KeyDown(Program& program, int key) {
  if (key == kKeyEnter) ValidateShiftNe(program);
}

/// The chooser writes the box when it shows a quick-ratio or reference file: the search for its speeds
/// begins.
void Text3_Change(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord != caller::kQuick) return;
  if (workspace.ModeWord != mode::kReferenceInForce) workspace.ModeWord = mode::kChange;
  program.form2.f_calc.Enabled = false;
  EnableOutput(program, true);
  program.form2.Command2.MouseUp(kLeftButton);
  program.form2.Command6.Click();
}

// ---- Remark ----

void Text6_Change(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord == caller::kModule1 || workspace.RemarkChanged == dirty::kYes) return;
  workspace.DataChanged = dirty::kYes;
  workspace.RemarkChanged = dirty::kYes;
  EnableRestore(program, true);
  MarkTitle(program);
}

}  // namespace

void AttachGearPanelBoxes(Program& program) {
  Form2& form2 = program.form2;
  On(program, form2.HScroll1.Change, HScroll1_Change);
  On(program, form2.HScroll2.Change, HScroll2_Change);
  On(program, form2.Text2.DblClick, Text2_DblClick);
  On(program, form2.Text2.KeyDown, Text2_KeyDown);
  On(program, form2.Text2.LostFocus, Box_LostFocus<ValidateCheckNe>);
  On(program, form2.Text3.DblClick, Text3_DblClick);
  On(program, form2.Text3.KeyDown, Text3_KeyDown);
  On(program, form2.Text3.LostFocus, Box_LostFocus<ValidateTyreLength>);
  On(program, form2.Text3.Change, Text3_Change);
  On(program, form2.Text4.DblClick, Text4_DblClick);
  On(program, form2.Text4.KeyDown, Text4_KeyDown);
  On(program, form2.Text4.LostFocus, Box_LostFocus<ValidateShiftNe>);
  On(program, form2.Text6.Change, Text6_Change);
}

}  // namespace veldrin
