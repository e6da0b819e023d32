#include "desktop/accessible_name.h"

#include "desktop/fitted_text.h"

#include <cmath>
#include <limits>

namespace veldrin {

namespace {

constexpr float kFar = 1e9F;
constexpr float kAboveCounts = 3;  // what stands above is as far as this many times its distance beside

/// How far a label is from the control that it may head, from 0 up; kFar where it does not.
float DistanceOfHead(const PlacedControl& head, const PlacedControl& control) {
  const float headRight = head.Left + head.Width;
  const float headBottom = head.Top + head.Height;
  const bool sameRow = head.Top < control.Top + control.Height && control.Top < headBottom;
  const bool sameColumn = head.Left < control.Left + control.Width && control.Left < headRight;
  if (sameRow && head.Left < control.Left) return std::max(0.0F, control.Left - headRight);
  if (sameColumn && headBottom <= control.Top + 1) return (control.Top - headBottom) * kAboveCounts;
  return kFar;
}

QString OwnCaption(const Control& control) {
  switch (control.kind) {
    case ControlKind::Label:
      return QString::fromStdString(static_cast<const Label&>(control).Caption.get());
    case ControlKind::Button:
      return WithoutMarks(QString::fromStdString(static_cast<const Button&>(control).Caption.get()));
    case ControlKind::OptionButton:
      return QString::fromStdString(static_cast<const OptionButton&>(control).Caption.get());
    default:
      return {};
  }
}

/// The caption of the label that heads the control among its siblings.
QString HeadOf(const PlacedControl& control) {
  float nearest = kFar;
  QString head;
  for (const Control* sibling : control.parent->children) {
    if (sibling->kind != ControlKind::Label) continue;
    const float distance = DistanceOfHead(static_cast<const PlacedControl&>(*sibling), control);
    const QString caption = OwnCaption(*sibling).trimmed();
    if (distance >= nearest || caption.isEmpty()) continue;
    nearest = distance;
    head = caption;
  }
  return head;
}

}  // namespace

QString AccessibleName(const Control& control) {
  // A label's text speaks for itself, and so does a window's title.
  if (control.kind == ControlKind::Label || control.parent == nullptr) return {};
  QString name = OwnCaption(control).trimmed();
  if (name.isEmpty()) name = HeadOf(static_cast<const PlacedControl&>(control));
  if (name.isEmpty() && control.parent->kind == ControlKind::Picture) {
    name = HeadOf(static_cast<const PlacedControl&>(*control.parent));
  }
  if (control.index != Control::kNoIndex) name += QStringLiteral(" %1").arg(control.index);
  return name.trimmed();
}

}  // namespace veldrin
