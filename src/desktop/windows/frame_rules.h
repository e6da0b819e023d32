// The rules for the size and the state of a window's frame, in numbers: how a frame fits the area inside,
// what of it scrolls, which length the program hears of, and what a frame remembers while it is maximised,
// minimised or drawn at. Lengths are logical pixels, and twips where they are the program's.
#pragma once

#include "desktop/windows/zoom.h"

namespace veldrin {

struct Extent {
  int width = 0;
  int height = 0;

  bool operator==(const Extent&) const = default;
  Extent operator+(const Extent& more) const { return {width + more.width, height + more.height}; }
  Extent operator-(const Extent& less) const { return {width - less.width, height - less.height}; }
};

/// An outer size as the program counts it.
struct TwipExtent {
  double width = 0;
  double height = 0;

  bool operator==(const TwipExtent&) const = default;
};

/// What scroll bars take where `whole` has no room in `room`: the width of the one beside it, the height of
/// the one below. `bars` are those of the two bars.
Extent BarsFor(const Extent& whole, const Extent& room, const Extent& bars);

/// What bars take around an area of which this much is to be seen, while `content` lies in it.
Extent BarsAround(const Extent& seen, const Extent& content, const Extent& bars);

/// In either direction the larger of the two.
Extent Larger(const Extent& a, const Extent& b);

/// What the frame is for a window, and what its user may draw it to.
struct FrameFit {
  bool clipped = false;  // the screen has no room for all of the window, so that it scrolls
  Extent size;
  Extent least;
  Extent most;
};

inline constexpr int kLargestFrame = (1 << 24) - 1;

/// What a window allows of its frame.
struct FrameKind {
  bool hasFrame = true;
  bool canResize = false;
};

/// Fits a frame that asks for `whole` onto a screen with this room. `least` is the smallest that could be
/// worked in. A window without a frame is never clipped; one that cannot be resized can only be drawn
/// smaller, and only where it is clipped.
FrameFit FitOnScreen(const Extent& whole, const Extent& room, const Extent& bars, const Extent& least,
                     const FrameKind& kind);

/// One side of a window as the program has it.
struct Side {
  float outer;         // twips
  float inner;         // twips
  int pixels;          // of the inner length
  double normalOuter;  // twips of the normal state
  int normalPixels;
};

/// The outer length in twips to tell of an inner one of `pixels`. One that was not drawn at keeps its length
/// to the twip, and gets its normal one back so.
float OuterLength(int pixels, const Side& side, const Zoom& zoom);

/// Pixels of an inner length, at least one.
int InnerPixels(double twips, const Zoom& zoom);

/// What the desktop has made of a frame.
struct FrameState {
  bool minimised = false;
  bool maximised = false;

  bool IsNormal() const { return !minimised && !maximised; }
};

/// What a frame needs after its state has changed.
enum class AfterState {
  Nothing,      // it cannot be seen
  FillInside,   // the area inside follows the maximised frame
  ShowBars,     // it is as it was
  RestoreSoon,  // its normal size belongs to another zoom
  RestoreLater  // the same, and the desktop is yet to give it that size
};

/// What a frame remembers of its normal state, and of a change that is under way.
class FrameMemory {
 public:
  FrameMemory(const TwipExtent& size, double zoom)
      : normal_(size), normalBefore_(size), zoom_(zoom), normalZoom_(zoom) {}

  /// The outer size when the frame is neither maximised nor minimised.
  const TwipExtent& Normal() const { return normal_; }
  bool Clipped() const { return clipped_; }
  /// Whether the frame is on its way back to a size that belongs to another zoom.
  bool Restoring() const { return restoring_; }

  void SetClipped(bool clipped) { clipped_ = clipped; }

  /// The window took a size in its normal state; by the desktop's word or the program's. What the desktop
  /// leaves of a frame that is larger than its screen is not the window's size.
  void Sized(const TwipExtent& size, bool byDesktop);
  /// The program is about to hear of a size. Should it be that of a frame on its way to being maximised,
  /// the one before it was the normal one.
  void AboutToTell() { normalBefore_ = normal_; }
  /// Takes a zoom and gives the one before.
  double Zoomed(double zoom);
  /// The desktop changed the state. It gives a maximised window the size of the screen before or behind its
  /// word that it is maximised.
  AfterState StateChanged(const FrameState& before, const FrameState& now, bool fillsScreen);
  /// The frame has its normal size again. Whether it was on its way there.
  bool Restored();

 private:
  TwipExtent normal_;
  TwipExtent normalBefore_;  // before the desktop last changed it
  double zoom_;              // that the window's place in twips belongs to
  double normalZoom_;        // when the frame was last in its normal state
  bool clipped_ = false;
  bool restoring_ = false;
};

}  // namespace veldrin
