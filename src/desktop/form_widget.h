// A window of the program on the screen. It is built by walking the window's controls: nothing here knows
// which window it is.
//
// The program counts a window's outer size with a frame of its own time, 120 twips wider and 690 (405 without
// a menu) higher than the area inside. The real frame and menu bar are as large as the desktop makes them;
// the area inside is what is kept to. Where that is larger than the screen it scrolls.
#pragma once

#include "desktop/client_area.h"

#include <QMenuBar>
#include <QPixmap>
#include <QScrollArea>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <unordered_map>

namespace veldrin {

class FormWidget : public QWidget {
 public:
  FormWidget(Window& window, Stage& stage);
  ~FormWidget() override;

  /// The window; null once it is unloaded.
  Window* Shows() const { return window_; }
  /// The record is about to go. The widget hides; it is deleted by its owner when no event runs.
  void LetGo();

  /// The view of a control of this window; null where there is none.
  ControlView* ViewOf(const Control& control) const;

  /// A slot of the window or one of its controls was written; what is drawn on one changed.
  void Take(Control& control, std::string_view slot);
  void TakeContent(Control& control);
  /// An event has ended.
  void Settle();
  /// The zoom changed.
  void Rescale();
  /// Cuts the window to an ellipse, in pixels of the program.
  void CutToEllipse(const QRect& box);
  /// What the window has to be shown as before it is shown modally.
  void BecomeModal();
  /// The window as it looks without its frame, whole even where the screen has no room for it.
  QPixmap Picture();
  /// Whether the user can draw the window larger and smaller.
  bool CanBeDrawnAt() const { return CanResize() && !clipped_ && ellipse_.isNull(); }
  /// The title as the program wrote it.
  std::string Title() const;
  /// The area that the controls lie on.
  ClientArea& Client() { return *client_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  /// Qt must not move the focus by itself: the program does, by Tab and when a control is put out of reach.
  bool focusNextPrevChild(bool /*next*/) override { return false; }

 private:
  void FollowControls();
  void MakeMissingViews();
  void DropLostViews();
  void ArrangeMenus();
  void Stack(const Control& parent);
  void TakeWindowSlot(std::string_view slot);
  void TakeSize();
  void TakePosition();
  void TakeState();
  void TakeVisible();
  void TakeFocus();
  void PlaceInside();
  void AddZoomKeys();
  int MenuHeight() const;
  bool CanResize() const { return window_->Resize.Claims() > 0; }

  Window* window_;
  Stage* stage_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  /// The controls that have been looked at, in the order of the screen.
  std::vector<Control*> known_;
  std::size_t told_ = 0;  // how many controls there were when last told
  /// Views without a widget, also those of entries that are gone from a menu.
  std::vector<std::unique_ptr<ControlView>> owned_;
  QMenuBar* menuBar_ = nullptr;
  QScrollArea* scroll_;
  ClientArea* client_;
  bool clipped_ = false;  // the area inside is larger than the screen has room for
  QRect ellipse_;         // in pixels of the program; null for none
};

}  // namespace veldrin
