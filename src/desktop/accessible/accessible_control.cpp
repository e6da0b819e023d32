#include "desktop/accessible/accessible_control.h"

#include "desktop/accessible/accessible_name.h"
#include "desktop/controls/spin_widget.h"
#include "desktop/input/reach.h"
#include "desktop/windows/form_widget.h"

#include <QAccessibleWidget>
#include <QRegularExpression>
#include <QScrollBar>

#include <limits>

namespace veldrin {

namespace {

/// The number that a text begins with; 0 for none.
double LeadingNumber(const QString& text) {
  static const QRegularExpression kNumber(QStringLiteral("^[+-]?\\d+(\\.\\d+)?"));
  return kNumber.match(text).captured().toDouble();
}

/// What is described by its hint, the value included.
class AccessibleView : public QAccessibleWidget {
 public:
  AccessibleView(QWidget& widget, PlacedView& view, QAccessible::Role role)
      : QAccessibleWidget(&widget, role), view_(&view) {}

  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Description || what == QAccessible::Help) return view_->SpokenHint();
    return QAccessibleWidget::text(what);
  }

 protected:
  PlacedView* view_;
};

/// A spin button. What it turns is a text beside it; not all of them are numbers, so each way to a higher or
/// lower one is one turn.
class AccessibleSpin : public AccessibleView, public QAccessibleValueInterface {
 public:
  AccessibleSpin(QWidget& widget, PlacedView& view) : AccessibleView(widget, view, QAccessible::SpinBox) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Value) return Turned();
    return AccessibleView::text(what);
  }

  QStringList actionNames() const override {
    if (!widget()->isEnabled()) return {};
    return {increaseAction(), decreaseAction()};
  }

  void doAction(const QString& name) override {
    if (name == increaseAction()) Turn(true);
    if (name == decreaseAction()) Turn(false);
  }

  QVariant currentValue() const override { return LeadingNumber(Turned()); }
  void setCurrentValue(const QVariant& value) override {
    const double now = LeadingNumber(Turned());
    if (value.toDouble() != now) Turn(value.toDouble() > now);
  }
  QVariant maximumValue() const override { return std::numeric_limits<double>::max(); }
  QVariant minimumValue() const override { return std::numeric_limits<double>::lowest(); }
  QVariant minimumStepSize() const override { return 1.0; }

 private:
  QString Turned() const { return view_->Shows() == nullptr ? QString() : AccessibleValue(*view_->Shows()); }
  void Turn(bool up) const {
    if (widget()->isEnabled()) dynamic_cast<SpinWidget&>(*view_).Turn(up);
  }
};

/// A scroll bar. It tells the control's value, which may lie beyond the end where the thumb stands; what is
/// set moves the thumb and stays within the ends.
class AccessibleScrollBar : public AccessibleView, public QAccessibleValueInterface {
 public:
  AccessibleScrollBar(QScrollBar& widget, PlacedView& view)
      : AccessibleView(widget, view, QAccessible::ScrollBar), bar_(&widget) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text what) const override {
    return what == QAccessible::Value ? QString::number(Value()) : AccessibleView::text(what);
  }

  QVariant currentValue() const override { return Value(); }
  void setCurrentValue(const QVariant& value) override { bar_->setValue(value.toInt()); }
  QVariant maximumValue() const override { return bar_->maximum(); }
  QVariant minimumValue() const override { return bar_->minimum(); }
  QVariant minimumStepSize() const override { return bar_->singleStep(); }

 private:
  int Value() const {
    const Control* const control = view_->Shows();
    return control == nullptr ? bar_->value() : static_cast<const ScrollBar*>(control)->Value.get();
  }

  QScrollBar* bar_;
};

/// A label: it is called by its text, if by nothing else.
class AccessibleLabel : public AccessibleView {
 public:
  AccessibleLabel(QWidget& widget, PlacedView& view, QAccessible::Role role = QAccessible::StaticText)
      : AccessibleView(widget, view, role) {}

  QString text(QAccessible::Text what) const override {
    const QString text = AccessibleView::text(what);
    if (what != QAccessible::Name || !text.isEmpty() || view_->Shows() == nullptr) return text;
    return QString::fromStdString(view_->WhatShows().text.value_or(""));
  }
};

/// What a hint says before it goes on to more.
QString FirstWords(const QString& hint) {
  static const QRegularExpression kGoesOn(QStringLiteral("[;\n。]"));
  return hint.section(kGoesOn, 0, 0).trimmed();
}

/// A label or picture that is pressed like a button; one without any text is called by what it shows. Where
/// only the second click does something, both are one press; what the right button may do there is asked for
/// like a menu.
class AccessiblePress : public AccessibleLabel {
 public:
  AccessiblePress(QWidget& widget, PlacedView& view) : AccessibleLabel(widget, view, QAccessible::Button) {}

  QString text(QAccessible::Text what) const override {
    const QString text = AccessibleLabel::text(what);
    return what == QAccessible::Name && text.isEmpty() ? FirstWords(view_->SpokenHint()) : text;
  }

  QStringList actionNames() const override {
    if (view_->Shows() == nullptr || !widget()->isEnabled()) return {};
    QStringList names{pressAction()};
    if (KnowsButtons()) names.append(showMenuAction());
    return names;
  }

  void doAction(const QString& name) override {
    Control* const control = view_->Shows();
    auto* const form = dynamic_cast<FormWidget*>(widget()->window());
    if (control == nullptr || form == nullptr || !actionNames().contains(name)) return;
    form->Input().Do([&] {
      if (name == showMenuAction()) return user::Click(*control, kRightButton);
      const bool twice = IsHandled(*control, "DblClick") && !IsHandled(*control, "Click");
      return twice ? user::DoubleClick(*control) : user::Click(*control);
    });
  }

 private:
  /// Whether there are events that tell the buttons apart.
  bool KnowsButtons() const {
    return IsHandled(*view_->Shows(), "MouseDown") || IsHandled(*view_->Shows(), "MouseUp");
  }
};

/// Qt asks while the widget is being made: its kind is known by its control, but not yet by its class.
QAccessibleInterface* MakeAccess(const QString& /*className*/, QObject* object) {
  auto* view = dynamic_cast<PlacedView*>(object);
  if (view == nullptr || view->Shows() == nullptr) return nullptr;
  auto& widget = *static_cast<QWidget*>(object);
  if (view->Shows()->kind == ControlKind::SpinButton) return new AccessibleSpin(widget, *view);
  if (view->Shows()->kind == ControlKind::ScrollBar) {
    return new AccessibleScrollBar(static_cast<QScrollBar&>(widget), *view);
  }
  if (AnswersClicks(*view->Shows())) return new AccessiblePress(widget, *view);
  if (view->Shows()->kind == ControlKind::Label) return new AccessibleLabel(widget, *view);
  if (view->Shows()->kind == ControlKind::Picture)
    return new AccessibleView(widget, *view, QAccessible::Client);
  return nullptr;
}

}  // namespace

void InstallAccessibleControls() {
  QAccessible::removeFactory(MakeAccess);
  QAccessible::installFactory(MakeAccess);
}

}  // namespace veldrin
