#include "workspace/captions.h"

#include "runtime/conversion.h"
#include "runtime/text.h"

namespace veldrin {

void AlignCaption(int column, Label& label) {
  const std::string caption = label.Caption;
  const int length = Length(caption);
  if (length > column) return;
  const std::string atColumn = Mid(caption, column, 1);
  if (atColumn == "." || atColumn == ",") {
    label.Caption = caption + "0";
  } else if (length == column - 1) {
    label.Caption = " " + caption + "0";
  } else {
    label.Caption = " " + caption;
  }
}

void ShowSpeed(const Workspace& workspace, Label& label, float speed) {
  label.Caption = FormatSingle(workspace, speed, "###.#");
  AlignCaption(kSpeedColumn, label);
}

void ShowStep(const Workspace& workspace, Label& label, float step) {
  label.Caption = FormatSingle(workspace, step, "##.#");
  AlignCaption(kStepColumn, label);
}

void ShowBaseline(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  ShowSpeed(workspace, program.form2.Label2[gear], workspace.SpeedBaseline[gear]);
  if (gear < 2) return;
  const float step = ToSingle(workspace.SpeedBaseline[gear] - workspace.SpeedBaseline[gear - 1]);
  workspace.SpeedStepBaseline[gear - 1] = step;
  ShowStep(workspace, program.form2.Label39[gear - 1], step);
}

}  // namespace veldrin
