#include "hints/hint.h"

#include "hints/answer_hints.h"
#include "hints/reasons.h"
#include "runtime/text.h"
#include "view/hints/hints.h"
#include "workspace/language.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace veldrin {

namespace {

/// What the button Mode would do now, and its menu entry. Their hints in the table are those for a plan on
/// show.
BothLanguages ModeHint(const Program& program) {
  const std::string& mode = program.workspace.ModeWord;
  if (mode == mode::kBasing) {
    return {"Mode: makes a plan of the lowest rows", "Mode：一番低い組み合わせからプランを作ります"};
  }
  if (mode == mode::kSpeed) {
    return {"Mode: back to the plan; right button: on to entering revolutions",
            "Mode：プランに戻ります。右ボタンでは回転数で入力します"};
  }
  if (mode == mode::kRpm) {
    return {"Mode: back to the plan; right button: back to entering speeds",
            "Mode：プランに戻ります。右ボタンでは速度の入力に戻ります"};
  }
  return {};
}

BothLanguages ModeEntryHint(const Program& program) {
  const std::string& mode = program.workspace.ModeWord;
  if (mode == mode::kBasing) {
    return {"Makes a plan of the lowest rows, as the button Mode does",
            "一番低い組み合わせからプランを作ります（ボタン Mode と同じ）"};
  }
  if (mode == mode::kSpeed || mode == mode::kRpm) {
    return {"Back to the plan, as the button Mode does", "プランに戻ります（ボタン Mode と同じ）"};
  }
  return {};
}

/// What a control does in the present state, where that differs from what its window's table says.
BothLanguages StateHint(const Program& program, const Control& control) {
  const Form2& form2 = program.form2;
  if (&control == &form2.Command2) return ModeHint(program);
  if (&control == &form2.f_mode) return ModeEntryHint(program);
  if (&control == &form2.Command8 || &control == &form2.Command9) return AnswerHint(program, control);
  return {};
}

std::string FirstLines(const Program& program, const Control& control, bool inJapanese) {
  const std::string ofState = StateHint(program, control).In(inJapanese);
  return ofState.empty() ? TableHint(control, inJapanese) : ofState;
}

/// Whether a hint begins with what the control shows, as that of a heading does.
bool NamesValue(std::string_view hint, std::string_view value) {
  if (!hint.starts_with(value)) return false;
  const std::string_view rest = hint.substr(value.size());
  return rest.starts_with(':') || rest.starts_with("：") || rest.starts_with(' ');
}

/// A first line without the mark by which its sentence goes on, or ends.
std::string_view WithoutStop(std::string_view line) {
  for (const std::string_view stop : {";", "。"}) {
    if (line.ends_with(stop)) line.remove_suffix(stop.size());
  }
  return line;
}

std::string WithReason(std::string hint, const Program& program, const Control& control, bool inJapanese) {
  const std::string reason = hint.empty() ? "" : Reason(program, control).In(inJapanese);
  return reason.empty() ? hint : hint + "\n" + reason;
}

}  // namespace

std::string Hint(const Program& program, const Control& control) {
  const bool inJapanese = SpeaksJapanese(program.workspace);
  return WithReason(FirstLines(program, control, inJapanese), program, control, inJapanese);
}

std::string ValueOf(const Control& control) {
  switch (control.kind) {
    case ControlKind::Label:
      return Trim(static_cast<const Label&>(control).Caption.get());
    case ControlKind::TextBox:
      return static_cast<const TextBox&>(control).Text;
    case ControlKind::ScrollBar:
      return std::to_string(static_cast<const ScrollBar&>(control).Value.get());
    case ControlKind::ComboBox:
      return static_cast<const ComboBox&>(control).Text;
    default:
      return "";
  }
}

std::string HintWithValue(const Program& program, const Control& control, const std::string& value) {
  const bool inJapanese = SpeaksJapanese(program.workspace);
  std::string hint = FirstLines(program, control, inJapanese);
  if (hint.empty()) return value;
  if (!value.empty() && !NamesValue(hint, value)) {
    const std::size_t end = std::min(hint.find('\n'), hint.size());
    const std::string_view first = WithoutStop(std::string_view(hint).substr(0, end));
    hint = std::string(first) + (inJapanese ? "：" : ": ") + value + hint.substr(end);
  }
  return WithReason(std::move(hint), program, control, inJapanese);
}

}  // namespace veldrin
