#include "desktop/input/dragged_files.h"
#include "desktop/input/keyboard.h"
#include "desktop/windows/form_widget.h"
#include "dialogs/dropped_file.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QWheelEvent>

namespace veldrin {

namespace {

/// The file stays where it is: whoever drags it must not be told that it may go.
void AcceptCopy(QDropEvent& event) {
  if (event.possibleActions().testFlag(Qt::CopyAction)) event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

// ---- keys and the wheel ----

void FormWidget::AddZoomKeys() {
  const auto add = [this](const QKeySequence& keys, auto change) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, change);
  };
  for (const auto key : {Qt::Key_Plus, Qt::Key_Equal}) {
    add(QKeySequence(Qt::CTRL | key), [this] { stage_->zoom.Enlarge(); });
  }
  add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { stage_->zoom.Reduce(); });
  add(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { stage_->zoom.Set(1); });
}

void FormWidget::keyPressEvent(QKeyEvent* event) {
  const bool served = window_ != nullptr && ServeWindowKey(*stage_, *window_, *this, *event);
  if (!served) QWidget::keyPressEvent(event);
}

/// A turn of the wheel that no control has a use for.
void FormWidget::wheelEvent(QWheelEvent* event) {
  event->ignore();
  if (!Scrolls()) return;
  const QPoint turned = event->angleDelta();
  const bool asksAcross = event->modifiers() == Qt::ShiftModifier || qAbs(turned.x()) > qAbs(turned.y());
  QScrollBar* const down = scroll_->verticalScrollBar();
  const bool across = asksAcross || down->maximum() == down->minimum();
  // Not sent: a bar at its end would hand it back to its parents.
  (across ? scroll_->horizontalScrollBar() : down)->event(event);
}

// ---- closing, and coming back ----

void FormWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (window_ != nullptr) {
    stage_->input.Do([window = window_] { return user::Close(*window, CloseReason::User); });
  }
}

/// The user came to a window that does not answer while something modal, a box for one, stands in front.
/// Where that is minimised or behind he would not know why.
void FormWidget::BringModalBack() {
  // Behind Qt's own work with the window that became the active one.
  QTimer::singleShot(0, this, [this] {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == this || !isActiveWindow()) return;
    modal->setWindowState(modal->windowState() & ~Qt::WindowMinimized);
    modal->raise();
    modal->activateWindow();
  });
}

// ---- files ----

/// A window that is inside of an event of its own has a modal window or a box in front.
bool FormWidget::TakesFiles() const {
  const Program* program = stage_->input.Served();
  const bool rests = window_ != nullptr && program != nullptr && program->eventDepth == 0;
  return rests && stage_->fileDropped && TakesDroppedFiles(*program);
}

void FormWidget::dragEnterEvent(QDragEnterEvent* event) {
  if (TakesFiles() && !DroppedPath(*event->mimeData()).empty()) AcceptCopy(*event);
}

/// The program behind the drag waits for the answer, so the file is opened behind it.
void FormWidget::dropEvent(QDropEvent* event) {
  const std::string path = DroppedPath(*event->mimeData());
  if (path.empty() || !TakesFiles()) return;
  AcceptCopy(*event);
  QTimer::singleShot(0, this, [this, path] {
    if (TakesFiles()) stage_->fileDropped(path);
  });
}

}  // namespace veldrin
