#include "desktop/windows/client_area.h"

#include "desktop/windows/first_steps.h"
#include "machine/painting/artwork.h"

#include <QPainter>

#include <cmath>

namespace veldrin {

ClientArea::ClientArea(Window& window, Stage& stage, QWidget* parent)
    : ControlWidget(window, stage, parent), window_(window.name), fullSize_(window.Width, window.Height) {}

/// Size, place and visibility are the frame's.
void ClientArea::Take(std::string_view slot) {
  const Applying applying(*stage_);
  if (slot == "BackColor" || slot == "ForeColor") TakeColours();
}

void ClientArea::TakeAll() {
  Take("BackColor");
}

bool ClientArea::IsUncovered(const QWidget& widget) const {
  const QWidget* met = childAt(PlaceOf(widget).center());
  return met == &widget || (met != nullptr && widget.isAncestorOf(met));
}

void ClientArea::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  // In whole pixels, as the window is.
  const double width = std::round(stage_->zoom.Pixels(fullSize_.width()));
  const double height = std::round(stage_->zoom.Pixels(fullSize_.height()));
  PaintWindowPicture(painter, {0, 0, width, height}, window_);
  if (firstSteps_) PaintFirstSteps(painter, stage_->zoom.Factor(), stage_->input.InJapanese());
}

void ClientArea::Follow() {
  const Program* const program = stage_->input.Served();
  const bool wanted = program != nullptr && window_ == program->form2.name && AwaitsFirstPlan(*program);
  const bool same = wanted == firstSteps_ && (!wanted || stage_->input.InJapanese() == japanese_);
  firstSteps_ = wanted;
  japanese_ = stage_->input.InJapanese();
  if (!same) update();
}

}  // namespace veldrin
