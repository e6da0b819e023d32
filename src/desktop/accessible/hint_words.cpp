#include "desktop/accessible/hint_words.h"

#include "desktop/accessible/accessible_name.h"
#include "hints/hint.h"

namespace veldrin {

QString HintOf(const Program* program, const Control& control) {
  return program == nullptr ? QString() : QString::fromStdString(Hint(*program, control));
}

QString SpokenHintOf(const Program* program, const Control& control) {
  if (program == nullptr) return {};
  const bool turns = control.kind == ControlKind::SpinButton;
  const std::string value = turns ? AccessibleValue(control).toStdString() : ValueOf(control);
  return QString::fromStdString(HintWithValue(*program, control, value));
}

}  // namespace veldrin
