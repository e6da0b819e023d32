// What shows one control. It takes the control's slots over one by one as they are written, and keeps them in
// the widget; nothing but gestures goes the other way.
//
// A control's record may go during an event of its own widget. Its view then lets go of it and does nothing
// any more; the widget itself stays until no event is running.
#pragma once

#include "desktop/windows/stage.h"
#include "view/user_input.h"

#include <QFont>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRect>
#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

class FocusEdge;

/// What a user sees of a control, in the words of its slots; nothing where the widget does not show it.
struct Shown {
  std::optional<std::string> text;
  std::optional<std::string> path;
  std::optional<std::vector<std::string>> entries;
  std::optional<std::vector<std::string>> cells;  // row by row
  std::optional<bool> visible;
  std::optional<bool> enabled;
  std::optional<bool> chosen;
  std::optional<int> value;
  std::optional<int> listIndex;
  std::optional<Colour> fore;
  std::optional<Colour> back;
  std::optional<QRect> place;
  std::optional<QFont> font;
};

class ControlView {
 public:
  ControlView(Control& control, Stage& stage) : control_(&control), stage_(&stage) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  /// The control; null once its record is gone.
  Control* Shows() const { return control_; }
  void LetGo() { control_ = nullptr; }

  /// The widget that children lie on; null for views without one.
  virtual QWidget* Widget() { return nullptr; }
  /// A slot was written.
  virtual void Take(std::string_view slot) = 0;
  /// Everything, when the view is new.
  virtual void TakeAll();
  /// What is drawn on the control, or its entries, changed.
  virtual void TakeContent() {}
  /// The zoom, or the units of the parent, changed.
  virtual void Rescale() {}
  /// The keyboard has come to the control, or to its window that has just come up: what can be written over
  /// is selected.
  virtual void OfferText() {}
  /// An event has ended: time for what need not be done at every write.
  virtual void Settle() {}
  virtual Shown WhatShows() const { return {}; }
  /// An event has ended: the hint may be another one, by the state of the program.
  virtual void TakeHint() {}
  /// The hint as it is shown and as it is spoken; empty for none.
  QString HintText() const;
  QString SpokenHint() const;

 protected:
  bool Do(const std::function<bool()>& gesture) { return stage_->input.Do(gesture); }

  Control* control_;
  Stage* stage_;
};

/// The view of a control with a place in its window.
class PlacedView : public ControlView {
 public:
  PlacedView(Control& control, Stage& stage) : ControlView(control, stage) {}

  void Take(std::string_view slot) override;
  void TakeAll() override;
  void Rescale() override;
  Shown WhatShows() const override;
  void TakeHint() override;

  /// The focus came or went, or the widget has another size: its edge shows who has the focus.
  void MarkFocus(const QEvent& event);
  /// The focus came to the widget by a way of Qt's own.
  void FocusCame();
  /// A click that neither mouse nor keys did: a screen reader's.
  void ClickedOtherwise();

 protected:
  /// Whether the pointer is down on the widget.
  bool IsPressed() const { return pressed_ != Qt::NoButton; }
  const PlacedControl& Placed() const { return static_cast<const PlacedControl&>(*control_); }
  const QWidget& ConstWidget() const { return *const_cast<PlacedView*>(this)->Widget(); }

  /// Sets up a new widget.
  void Prepare(QWidget& widget);

  // Slots of several kinds at once.
  virtual void TakePlace();
  virtual void TakeColours();
  virtual void TakeFont();

  /// How the control's text stands.
  Qt::Alignment TextAlignment() const;
  /// The border of the control, none once its record is gone.
  double BorderWidth() const;
  void PaintBorder(QPainter& painter) const;

  // Mouse and keys, as the widget's own functions hear of them.
  /// Whether the widget may see the press as well. Not where the press could not be done, or hid the widget
  /// or switched it off: it would look pressed when it comes back.
  bool Pressed(const QMouseEvent& event);
  /// Whether the widget may see the second press of a double click as well. Not where it opened something,
  /// since another thing may lie under the pointer by now.
  bool PressedTwice(const QMouseEvent& event);
  void Released(const QMouseEvent& event);
  /// Shows the hint where the pointer rests, off or not; `cutText` is what the widget had no room for.
  /// Whether there was anything to tell.
  bool ShowHint(const QEvent& event, QWidget& over, const QString& cutText = {}) const;
  /// Whether the key was served, so that the widget must not see it.
  bool KeyPressed(QKeyEvent& event);
  /// A turn of the wheel that the widget has no use for may scroll its window. Whether it did.
  bool HandOnWheel(QEvent& event);

  /// Whether a click inside fires the control's own Click. Lists pick what was clicked.
  virtual bool ClicksItself() const { return true; }
  /// A left click on such a list, and a double one; false where the second press is just one more press.
  virtual void PickAt(const QPoint& /*point*/) {}
  virtual bool OpenAt(const QPoint& /*point*/) { return false; }
  /// What a key does to this kind beside its event; true where the widget must not see it.
  virtual bool OwnKey(QKeyEvent& /*event*/) { return false; }

 private:
  Qt::MouseButtons pressed_ = Qt::NoButton;  // each gets its own release
  FocusEdge* edge_ = nullptr;                // the widget's, made at the first focus
};

}  // namespace veldrin
