#include "desktop/windows/frame_rules.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veldrin {

namespace {

Extent Smaller(const Extent& a, const Extent& b) {
  return {std::min(a.width, b.width), std::min(a.height, b.height)};
}

}  // namespace

Extent BarsFor(const Extent& whole, const Extent& room, const Extent& bars) {
  bool down = whole.height > room.height;
  const bool across = whole.width > room.width - (down ? bars.width : 0);
  down = down || (across && whole.height > room.height - bars.height);
  return {down ? bars.width : 0, across ? bars.height : 0};
}

Extent BarsAround(const Extent& seen, const Extent& content, const Extent& bars) {
  return {content.height > seen.height ? bars.width : 0, content.width > seen.width ? bars.height : 0};
}

Extent Larger(const Extent& a, const Extent& b) {
  return {std::max(a.width, b.width), std::max(a.height, b.height)};
}

FrameFit FitOnScreen(const Extent& whole, const Extent& room, const Extent& bars, const Extent& least,
                     const FrameKind& kind) {
  FrameFit fit;
  fit.clipped = kind.hasFrame && (whole.width > room.width || whole.height > room.height);
  const Extent withBars = fit.clipped ? whole + BarsFor(whole, room, bars) : whole;
  fit.size = fit.clipped ? Smaller(withBars, room) : whole;
  fit.least = kind.canResize || fit.clipped ? Smaller(least, fit.size) : fit.size;
  fit.most = kind.canResize ? Extent{kLargestFrame, kLargestFrame} : withBars;
  return fit;
}

float OuterLength(int pixels, const Side& side, const Zoom& zoom) {
  if (pixels == side.pixels) return side.outer;
  if (pixels == side.normalPixels) return static_cast<float>(side.normalOuter);
  return static_cast<float>(zoom.Twips(pixels)) + (side.outer - side.inner);
}

int InnerPixels(double twips, const Zoom& zoom) {
  return std::max(1, static_cast<int>(std::lround(zoom.Pixels(twips))));
}

void FrameMemory::Sized(const TwipExtent& size, bool byDesktop) {
  if (!byDesktop || !clipped_) normal_ = size;
  if (!byDesktop) normalBefore_ = normal_;
}

double FrameMemory::Zoomed(double zoom) {
  return std::exchange(zoom_, zoom);
}

AfterState FrameMemory::StateChanged(const FrameState& before, const FrameState& now, bool fillsScreen) {
  restoring_ = false;
  if (before.IsNormal()) normalZoom_ = zoom_;
  if (now.maximised && !before.maximised && fillsScreen) normal_ = normalBefore_;
  if (now.minimised) return AfterState::Nothing;
  if (now.maximised) return AfterState::FillInside;
  if (normalZoom_ == zoom_) return AfterState::ShowBars;
  restoring_ = true;
  return before.maximised && fillsScreen ? AfterState::RestoreLater : AfterState::RestoreSoon;
}

bool FrameMemory::Restored() {
  return std::exchange(restoring_, false);
}

}  // namespace veldrin
