#include "dialogs/dropped_file.h"
#include "window_script/widget_hand.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace veldrin {

bool WidgetHand::Resize(Program& program, Window& window, float width, float height) {
  FormWidget* const form = windows_.FormOf(window);
  const double inner = static_cast<double>(width - window.FrameWidth());
  const double innerHeight = static_cast<double>(height - window.FrameHeight());
  const QSize pixels(qRound(stage_.zoom.Pixels(inner)), qRound(stage_.zoom.Pixels(innerHeight)));
  const bool whole =
      stage_.zoom.Twips(pixels.width()) == inner && stage_.zoom.Twips(pixels.height()) == innerHeight;
  const bool serves = form != nullptr && form->isVisible() && form->UserCanResize() && whole;
  const QSize frame = serves ? form->FrameFor(pixels) : QSize();
  // Sizes between pixels, one that is there already, and less than the least no pointer can draw.
  if (!serves || frame == form->size() || frame != frame.expandedTo(form->minimumSize()) ||
      !user::Reachable(window)) {
    return ScriptHand::Resize(program, window, width, height);
  }
  return Through([&] { form->resize(frame); });
}

bool WidgetHand::Close(Program& program, Window& window, CloseReason reason) {
  FormWidget* const form = windows_.FormOf(window);
  if (form == nullptr || !form->isVisible() || reason != CloseReason::User) {
    return ScriptHand::Close(program, window, reason);
  }
  return Through([&] { form->close(); });
}

/// The drag brings a file of the real machine; which one of the simulated machine it stands for, the hand
/// knows.
bool WidgetHand::Drop(Program& program, Window& window, const std::string& path) {
  FormWidget* const form = windows_.FormOf(window);
  if (form == nullptr || !form->isVisible()) return ScriptHand::Drop(program, window, path);
  stage_.fileDropped = [&](const std::string&) {
    stage_.input.Do([&] { return OpenDroppedFile(program, path); });
  };
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile("/dropped")});
  return Through([&] {
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form, &enter);
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form, &drop);
    QCoreApplication::processEvents();
  });
}

}  // namespace veldrin
