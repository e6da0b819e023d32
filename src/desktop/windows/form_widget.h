// A window of the program on the screen. It is built by walking the window's controls: nothing here knows
// which window it is.
//
// The program counts a window's outer size with a frame of its own time, 120 twips wider and 690 (405 without
// a menu) higher than the area inside. The real frame and menu bar are as large as the desktop makes them;
// the area inside is what is kept to. Where that is larger than the screen it scrolls, and so does what a
// maximised window has no room for: the inside is never smaller there than before. A window that the user
// draws smaller than it is described tells the program so, and scrolls what it has no room for.
//
//   form_widget.cpp            what the program tells of it, the focus, showing and hiding, also in front of
//   others form_widget_controls.cpp   the widgets of the controls inside, as these come and go
//   form_widget_frame.cpp      zoom, place and state, by the program and by the desktop
//   form_widget_size.cpp       size, and what scrolls
//   form_widget_input.cpp      what the user does with the window as a whole: keys, the wheel, closing,
//   coming
//                              back to it, dropping files on it
//
// The rules for sizes and states stand in frame_rules.h, in numbers.
#pragma once

#include "desktop/input/reach_ring.h"
#include "desktop/windows/client_area.h"
#include "desktop/windows/frame_rules.h"
#include "desktop/windows/message_strip.h"

#include <QMenuBar>
#include <QPixmap>
#include <QPointer>
#include <QScrollArea>
#include <QSize>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <memory>
#include <unordered_map>

namespace veldrin {

class FormWidget : public QWidget {
 public:
  /// Finds the widget of another window; null while there is none.
  using FormFinder = std::function<FormWidget*(const Window&)>;

  FormWidget(Window& window, Stage& stage, FormFinder formOf);
  ~FormWidget() override;

  /// The window; null once it is unloaded.
  Window* Shows() const { return window_; }
  /// The record is about to go. The widget hides; it is deleted by its owner when no event runs.
  void LetGo();

  /// The view of a control of this window; null where there is none, or none any more.
  ControlView* ViewOf(const Control& control) const;

  /// A slot of the window or one of its controls was written; what is drawn on one changed.
  void Take(Control& control, std::string_view slot);
  void TakeContent(Control& control);
  /// An event has ended.
  void Settle();
  /// The zoom changed. The frame stays where it is, so its place in twips is another one.
  void Rescale();
  /// Scrolls a widget inside into sight, where the window is too small for its content. Null does nothing.
  void Reveal(QWidget* widget);
  /// Cuts the window to an ellipse, in pixels of the program.
  void CutToEllipse(const QRect& box);
  /// What the window has to be shown as before it is shown modally.
  void BecomeModal();
  /// The window as it looks without its frame, whole even where the screen has no room for it.
  QPixmap Picture();
  /// Whether the area inside follows when the user draws at the frame now.
  bool UserCanResize() const { return CanResize() && !KeepsSize() && ellipse_.isNull(); }
  /// The frame, with its scroll bars, that leaves this much of the area inside to be seen.
  QSize FrameFor(const QSize& inside) const;
  /// The area that the controls have where so much of it is to be seen.
  QSize ContentFor(const QSize& inside) const;
  /// The title as the program wrote it.
  std::string Title() const;
  /// The area that the controls lie on.
  ClientArea& Client() { return *client_; }
  /// The ring around what F6 has reached of them.
  ReachRing& Ring() { return *ring_; }
  /// The line below the area, in the window with the menu; null in the others.
  MessageStrip* Strip() { return strip_; }
  /// The way of the user's doings with what is inside.
  ProgramInput& Input() { return stage_->input; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  /// Qt must not move the focus by itself: the program does, by Tab and when a control is put out of reach.
  bool focusNextPrevChild(bool /*next*/) override { return false; }

 private:
  /// What a window's real frame and the desktop's bars may take of the screen.
  static constexpr QSize kFrameRoom{16, 48};

  void FollowControls();
  void MakeMissingViews();
  void DropLostViews();
  void DeleteUnusedViews();
  void ArrangeMenus();
  void Stack(const Control& parent);
  void TakeWindowSlot(std::string_view slot);
  void TakeZoom();
  void TakeSize();
  void TakePosition();
  void TakeState();
  void TakeVisible();
  void TakeKind();
  void StandBeforeOwner();
  void BringModalBack();
  void TakeFocus();
  void FitFrame();
  void PlaceInside();
  void KeepOnScreen();
  void AddZoomKeys();
  void FrameStateChanged(const FrameState& before);
  FrameState State() const;
  void EndRestoring();
  QSize InsideOfFrame() const;
  QSize RoomOnScreen(const QSize& otherwise) const;
  Extent Bars() const;
  Extent LeastFrame() const;
  void ShowBars();
  void TellFrameSoon();
  void TellFrame();
  void TellSize();
  void TellPlace();
  bool TakesFiles() const;
  int MenuHeight() const;
  int StripHeight() const { return strip_ == nullptr ? 0 : strip_->Room(); }
  /// What lies above and below the area inside.
  int AroundHeight() const { return MenuHeight() + StripHeight(); }
  void MakeRoomForStrip();
  int Rounding() const;
  QPoint Corner() const;
  /// Whether the program lays its window out for any size.
  bool CanResize() const { return window_->Resize.Claims() > 0; }
  /// Whether the area inside keeps at least its normal size, however small the frame is.
  bool KeepsSize() const { return memory_.Clipped() || isMaximized(); }
  /// Whether the inside may be larger than the frame.
  bool Scrolls() const;
  bool FillsScreen() const;
  QSize InsidePixels(const TwipExtent& outer) const;

  Window* window_;
  Stage* stage_;
  FormFinder formOf_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  /// The controls that have been looked at, in the order of the screen.
  std::vector<Control*> known_;
  std::size_t controlCount_ = 0;  // how many there were when the program last told of them
  /// Views without a widget, also those of entries that are gone from a menu.
  std::vector<std::unique_ptr<ControlView>> owned_;
  QMenuBar* menuBar_ = nullptr;
  QScrollArea* scroll_;
  ClientArea* client_;
  ReachRing* ring_;
  MessageStrip* strip_ = nullptr;
  QRect ellipse_;             // in pixels of the program; null for none
  QPointer<QWidget> raised_;  // a panel that came to the front in this event

  const TwipExtent asDescribed_;  // outer size; nothing is laid out for less
  FrameMemory memory_;
  bool wasActive_ = false;
  bool tellingFrame_ = false;  // the program hears of a place or size that the frame has already
  bool frameUntold_ = false;   // it could not be told: something modal stands in front
};

}  // namespace veldrin
