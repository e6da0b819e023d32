#include "desktop/accessible/accessible_name.h"

#include "desktop/controls/shown_control.h"
#include "machine/painting/fitted_text.h"
#include "view/window.h"

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <limits>

namespace veldrin {

namespace {

constexpr double kAboveCounts = 3;  // a head above is as far as this many times its distance beside
constexpr double kClose = 60;       // twips: a head below, or overlapping, has to be as close as that
constexpr double kNoHead = std::numeric_limits<double>::infinity();

/// Where a control lies in its window by its slots, in twips.
QRectF PlaceInWindow(const Control& control) {
  QPointF corner;
  for (const Control* around = &control; around->parent != nullptr; around = around->parent) {
    const auto& placed = static_cast<const PlacedControl&>(*around);
    corner += QPointF(static_cast<double>(placed.Left), static_cast<double>(placed.Top));
  }
  const auto& placed = static_cast<const PlacedControl&>(control);
  return {corner, QSizeF(static_cast<double>(placed.Width), static_cast<double>(placed.Height))};
}

bool IsInside(const Control& control, const Control& panel) {
  const Control* around = control.parent;
  while (around != nullptr && around != &panel) around = around->parent;
  return around != nullptr;
}

/// How far a label is from the control that it may head.
double DistanceOfHead(const QRectF& head, const QRectF& control, bool mayStandBelow) {
  const bool sameRow = head.top() < control.bottom() && control.top() < head.bottom();
  const bool sameColumn = head.left() < control.right() && control.left() < head.right();
  if (sameRow && head.left() < control.left() && head.right() <= control.left() + kClose) {
    return std::max(0.0, control.left() - head.right());
  }
  if (!sameColumn) return kNoHead;
  if (head.bottom() <= control.top() + kClose)
    return std::max(0.0, control.top() - head.bottom()) * kAboveCounts;
  const double below = head.top() - control.bottom();
  return mayStandBelow && below >= 0 && below <= kClose ? below : kNoHead;
}

QString CaptionOf(const Control& label) {
  return QString::fromStdString(static_cast<const Label&>(label).Caption.get()).trimmed();
}

/// What a label says of what it heads: the head of its column where it is one of a column's rows.
QString HeadText(const Control& label) {
  if (label.index > 0) {
    for (const Control* other : label.window.controls) {
      if (other->name == label.name && other->index == 0) return CaptionOf(*other);
    }
  }
  return CaptionOf(label);
}

struct Head {
  double distance = kNoHead;
  QString text;
};

/// The nearest head among the labels inside of a panel or window.
Head NearestHead(const Control& control, const Control& panel) {
  const QRectF place = PlaceInWindow(control);
  Head nearest;
  for (const Control* other : control.window.controls) {
    if (other->kind != ControlKind::Label || !IsInside(*other, panel)) continue;
    // What stands below in a panel of its own heads that panel's column.
    const double distance = DistanceOfHead(PlaceInWindow(*other), place, other->parent == &panel);
    if (distance >= nearest.distance) continue;
    const QString text = HeadText(*other);
    if (!text.isEmpty()) nearest = {distance, text};
  }
  return nearest;
}

/// The head in the control's own panel, or a close one in the panel around that where the own is not close.
/// Panels on a window's ground lie over one another, so there only a panel without heads looks around.
QString HeadOf(const Control& control) {
  const Control& panel = *control.parent;
  const Head own = NearestHead(control, panel);
  const bool mayLookAround =
      panel.parent != nullptr && (own.text.isEmpty() || panel.parent->parent != nullptr);
  if (own.distance <= kClose || !mayLookAround) return own.text;
  const Head around = NearestHead(control, *panel.parent);
  return around.distance <= kClose || own.text.isEmpty() ? around.text : own.text;
}

QString OwnCaption(const Control& control) {
  switch (control.kind) {
    case ControlKind::Button:
      return WithoutMarks(QString::fromStdString(static_cast<const Button&>(control).Caption.get()));
    case ControlKind::OptionButton:
      return QString::fromStdString(static_cast<const OptionButton&>(control).Caption.get());
    default:
      return {};
  }
}

/// Whether a control needs its number, the gear's, beside its name. The first place of a row holds what is
/// meant for all gears, and a box with a head of its own is told by that.
bool NeedsNumber(const Control& control, const QString& head) {
  if (control.index <= 0) return false;
  if (head.isEmpty()) return true;
  const auto& controls = control.window.controls;
  return std::any_of(controls.begin(), controls.end(), [&](const Control* other) {
    return other != &control && other->name == control.name && HeadOf(*other) == head;
  });
}

/// Panels hold what has names.
bool HasName(const Control& control) {
  return control.kind != ControlKind::Window && control.kind != ControlKind::Label &&
         control.kind != ControlKind::Picture;
}

}  // namespace

QString AccessibleName(const Control& control) {
  if (control.kind != ControlKind::Label && *control.look.spoken != '\0') return control.look.spoken;
  if (!HasName(control)) return {};
  const QString caption = OwnCaption(control).trimmed();
  const QString head = caption.isEmpty() ? HeadOf(control) : QString();
  const QString number = NeedsNumber(control, head) ? QStringLiteral(" %1").arg(control.index) : QString();
  return (caption + head + number).trimmed();
}

QString AccessibleValue(const Control& control) {
  const QRectF place = PlaceInWindow(control);
  double nearest = kNoHead;
  QString text;
  for (const Control* other : control.window.controls) {
    if (other->kind != ControlKind::Label || !IsShown(*other)) continue;
    const QRectF label = PlaceInWindow(*other);
    const bool sameRow = label.top() <= place.center().y() && place.center().y() <= label.bottom();
    const double distance = std::max(place.left() - label.right(), label.left() - place.right());
    if (!sameRow || distance < -kClose || distance >= nearest) continue;
    nearest = distance;
    text = CaptionOf(*other);
  }
  return text;
}

}  // namespace veldrin
