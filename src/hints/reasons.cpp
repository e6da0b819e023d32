#include "hints/reasons.h"

#include "hints/main_window_reasons.h"
#include "workspace/language.h"

namespace veldrin {

namespace {

BothLanguages NothingChosen() {
  return {"No file is chosen yet", "ファイルがまだ選ばれていません"};
}

/// What is out of use: the control, or the outermost of the panels and menus around it that are. Null where
/// all can be used. A printer with the no-drop pointer counts as out of use.
const Control* OffFor(const Program& program, const Control& control) {
  const Control* off = nullptr;
  for (const Control* around = &control; around->parent != nullptr; around = around->parent) {
    if (!around->Enabled) off = around;
  }
  const Picture& printer = program.form2.Picture28;
  return off == nullptr && &control == &printer && printer.MousePointer == kPointerNoDrop ? &printer : off;
}

BothLanguages ChooserReason(const Program& program, const Control& off) {
  const Form3& form3 = program.form3;
  if (&off != &form3.Command1) return {};
  if (!form3.Label4.Visible) return NothingChosen();
  const std::string& prompt = form3.Label4.Caption;
  if (prompt == Message(program.workspace, kReservedTargetMessage)) {
    return {"This file is about to be loaded: save under another name",
            "これから読み込むファイルです。別の名前で保存してください"};
  }
  const bool refused = prompt == Message(program.workspace, kUnknownKindMessage) ||
                       prompt == Message(program.workspace, kMissingFileMessage);
  return refused ? BothLanguages{"This file cannot be taken: choose another one",
                                 "このファイルは使えません。ほかのファイルを選んでください"}
                 : NothingChosen();
}

BothLanguages PlanDialogReason(const Program& program, const Control& off) {
  if (&off != &program.form4->Spin1) return {};
  return {"Only one plan was found", "見つかったプランは 1 つだけです"};
}

BothLanguages CompareReason(const Program& program, const Control& off) {
  const Form5& form5 = *program.form5;
  if (&off == &form5.Spin1) {
    return {"There is one plan only: Append adds others", "プランが 1 つだけです。Append で追加できます"};
  }
  if (&off == &form5.Command1) return {"Three plans are the limit", "比べられるのは 3 つまでです"};
  if (&off == &form5.Command4) return NothingChosen();
  return {};
}

BothLanguages SettingsReason(const Program& program, const Control& off) {
  if (&off != &program.form7->Combo1[4]) return {};
  return {"There is no printer", "プリンターがありません"};
}

}  // namespace

BothLanguages Reason(const Program& program, const Control& control) {
  const Control* const off = OffFor(program, control);
  if (off == nullptr) return {};
  const Window* const window = &control.window;
  if (window == &program.form2) return MainWindowReason(program, *off);
  if (window == &program.form3) return ChooserReason(program, *off);
  if (program.form4 && window == &*program.form4) return PlanDialogReason(program, *off);
  if (program.form5 && window == &*program.form5) return CompareReason(program, *off);
  if (program.form7 && window == &*program.form7) return SettingsReason(program, *off);
  return {};
}

}  // namespace veldrin
