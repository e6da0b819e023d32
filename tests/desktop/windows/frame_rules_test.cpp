// The size and the state of a window's frame, in numbers.
#include "desktop/windows/frame_rules.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr Extent kBars{14, 16};

void ExpectExtent(const Extent& extent, int width, int height) {
  EXPECT_EQ(extent.width, width);
  EXPECT_EQ(extent.height, height);
}

TEST(BarsFor, OneBarMayCallForTheOther) {
  struct Case {
    Extent whole;
    Extent room;
    Extent bars;
  };
  const Case cases[] = {
      {{500, 400}, {500, 400}, {0, 0}},    // all fits
      {{500, 401}, {514, 400}, {14, 0}},   // too high; the bar beside it has room
      {{500, 401}, {513, 400}, {14, 16}},  // the bar beside takes what the width needs
      {{501, 384}, {500, 400}, {0, 16}},   // too wide; the bar below has room
      {{501, 385}, {500, 400}, {14, 16}},  // the bar below takes what the height needs
      {{900, 900}, {500, 400}, {14, 16}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(BarsFor(c.whole, c.room, kBars), c.bars) << c.whole.width << " by " << c.whole.height;
  }
}

TEST(BarsAround, EachStandsWhereTheContentIsLargerThanWhatIsSeen) {
  ExpectExtent(BarsAround({500, 400}, {500, 400}, kBars), 0, 0);
  ExpectExtent(BarsAround({500, 400}, {500, 401}, kBars), 14, 0);
  ExpectExtent(BarsAround({500, 400}, {501, 400}, kBars), 0, 16);
  ExpectExtent(BarsAround({500, 400}, {501, 401}, kBars), 14, 16);
}

TEST(Larger, TakesEitherDirectionByItself) {
  ExpectExtent(Larger({500, 300}, {400, 600}), 500, 600);
}

constexpr Extent kLeast{250, 220};
constexpr FrameKind kFixed{true, false};
constexpr FrameKind kFree{true, true};

TEST(FitOnScreen, WindowThatFitsIsAsLargeAsItAsksFor) {
  const FrameFit fixed = FitOnScreen({500, 400}, {500, 400}, kBars, kLeast, kFixed);
  EXPECT_FALSE(fixed.clipped);
  ExpectExtent(fixed.size, 500, 400);
  ExpectExtent(fixed.least, 500, 400);
  ExpectExtent(fixed.most, 500, 400);
  const FrameFit free = FitOnScreen({500, 400}, {500, 400}, kBars, kLeast, kFree);
  EXPECT_FALSE(free.clipped);
  ExpectExtent(free.size, 500, 400);
  ExpectExtent(free.least, 250, 220);
  ExpectExtent(free.most, kLargestFrame, kLargestFrame);
}

TEST(FitOnScreen, WindowThatDoesNotFitTakesRoomForItsBarsWhereThereIsSome) {
  const FrameFit fixed = FitOnScreen({500, 700}, {800, 600}, kBars, kLeast, kFixed);
  EXPECT_TRUE(fixed.clipped);
  ExpectExtent(fixed.size, 514, 600);
  ExpectExtent(fixed.least, 250, 220);
  ExpectExtent(fixed.most, 514, 700);
  const FrameFit free = FitOnScreen({900, 400}, {800, 600}, kBars, kLeast, kFree);
  EXPECT_TRUE(free.clipped);
  ExpectExtent(free.size, 800, 416);
  ExpectExtent(free.least, 250, 220);
  ExpectExtent(free.most, kLargestFrame, kLargestFrame);
}

TEST(FitOnScreen, LeastFrameIsNoLargerThanTheScreen) {
  const FrameFit fit = FitOnScreen({500, 700}, {200, 600}, kBars, kLeast, kFree);
  ExpectExtent(fit.size, 200, 600);
  ExpectExtent(fit.least, 200, 220);
}

TEST(FitOnScreen, WindowWithoutAFrameIsNeverClipped) {
  const FrameFit fit = FitOnScreen({900, 700}, {800, 600}, kBars, kLeast, {false, false});
  EXPECT_FALSE(fit.clipped);
  ExpectExtent(fit.size, 900, 700);
  ExpectExtent(fit.least, 900, 700);
  ExpectExtent(fit.most, 900, 700);
}

TEST(OuterLength, SideThatWasNotDrawnAtKeepsItsTwips) {
  // 9727 twips inside a frame of 120: 648 pixels, and some twips that no pixel tells.
  const Side side{9847, 9727, 648, 7507, 492};
  const Zoom zoom;
  EXPECT_EQ(OuterLength(648, side, zoom), 9847);
  EXPECT_EQ(OuterLength(492, side, zoom), 7507) << "the normal length comes back to the twip";
  EXPECT_EQ(OuterLength(700, side, zoom), 700 * 15 + 120);
  Zoom twice;
  twice.Set(2);
  EXPECT_EQ(OuterLength(700, side, twice), 350 * 15 + 120);
}

TEST(InnerPixels, AreRoundedAndNeverNone) {
  Zoom zoom;
  EXPECT_EQ(InnerPixels(9600, zoom), 640);
  EXPECT_EQ(InnerPixels(9607, zoom), 640);
  EXPECT_EQ(InnerPixels(9608, zoom), 641);
  EXPECT_EQ(InnerPixels(0, zoom), 1);
  EXPECT_EQ(InnerPixels(-600, zoom), 1);
  zoom.Set(1.5);
  EXPECT_EQ(InnerPixels(9600, zoom), 960);
}

// ---- what a frame remembers ----

constexpr FrameState kNormal{};
constexpr FrameState kMinimised{.minimised = true};
constexpr FrameState kMaximised{.maximised = true};
constexpr TwipExtent kSize{9720, 7400};
constexpr TwipExtent kDrawn{12000, 9000};
constexpr TwipExtent kScreen{28800, 16200};

TEST(FrameMemory, SizeOfTheNormalStateIsTheLastOneTaken) {
  FrameMemory memory(kSize, 1);
  EXPECT_EQ(memory.Normal(), kSize);
  memory.Sized(kDrawn, true);
  EXPECT_EQ(memory.Normal(), kDrawn);
  memory.Sized(kSize, false);
  EXPECT_EQ(memory.Normal(), kSize);
}

TEST(FrameMemory, WhatTheScreenLeavesOfAWindowIsNotItsSize) {
  FrameMemory memory(kSize, 1);
  memory.SetClipped(true);
  EXPECT_TRUE(memory.Clipped());
  memory.Sized(kDrawn, true);
  EXPECT_EQ(memory.Normal(), kSize);
  memory.Sized(kDrawn, false);
  EXPECT_EQ(memory.Normal(), kDrawn) << "the program's word counts";
}

TEST(FrameMemory, SizeThatCameAheadOfTheMaximisedStateWasNotTheNormalOne) {
  FrameMemory memory(kSize, 1);
  memory.AboutToTell();
  memory.Sized(kScreen, true);
  EXPECT_EQ(memory.StateChanged(kNormal, kMaximised, true), AfterState::FillInside);
  EXPECT_EQ(memory.Normal(), kSize);
  EXPECT_EQ(memory.StateChanged(kMaximised, kNormal, false), AfterState::ShowBars);
  EXPECT_EQ(memory.Normal(), kSize);
}

TEST(FrameMemory, SizeThatTheUserDrewOutlastsTheMaximisedState) {
  FrameMemory memory(kSize, 1);
  memory.AboutToTell();
  memory.Sized(kDrawn, true);
  // The desktop's word comes first here; the size of the screen follows.
  EXPECT_EQ(memory.StateChanged(kNormal, kMaximised, false), AfterState::FillInside);
  EXPECT_EQ(memory.Normal(), kDrawn);
  memory.AboutToTell();
  EXPECT_EQ(memory.StateChanged(kMaximised, kMaximised, true), AfterState::FillInside);
  EXPECT_EQ(memory.Normal(), kDrawn);
}

TEST(FrameMemory, MinimisedWindowNeedsNothing) {
  FrameMemory memory(kSize, 1);
  EXPECT_EQ(memory.StateChanged(kNormal, kMinimised, false), AfterState::Nothing);
  EXPECT_EQ(memory.StateChanged(kMinimised, kNormal, false), AfterState::ShowBars);
  EXPECT_FALSE(memory.Restoring());
}

TEST(FrameMemory, WindowThatComesBackAtAnotherZoomWaitsForItsNormalSize) {
  FrameMemory memory(kSize, 1);
  memory.StateChanged(kNormal, kMinimised, false);
  EXPECT_EQ(memory.Zoomed(1.5), 1);
  EXPECT_EQ(memory.StateChanged(kMinimised, kNormal, false), AfterState::RestoreSoon);
  EXPECT_TRUE(memory.Restoring());
  EXPECT_TRUE(memory.Restored());
  EXPECT_FALSE(memory.Restoring());
  EXPECT_FALSE(memory.Restored()) << "once is enough";
}

TEST(FrameMemory, DesktopMayStillHaveToShrinkAWindowThatWasMaximised) {
  FrameMemory memory(kSize, 1);
  memory.StateChanged(kNormal, kMaximised, true);
  memory.Zoomed(2);
  EXPECT_EQ(memory.StateChanged(kMaximised, kNormal, true), AfterState::RestoreLater);
  // It is maximised again before that.
  EXPECT_EQ(memory.StateChanged(kNormal, kMaximised, true), AfterState::FillInside);
  EXPECT_FALSE(memory.Restoring());
}

TEST(FrameMemory, ZoomThatIsBackAsItWasNeedsNoWait) {
  FrameMemory memory(kSize, 1);
  memory.StateChanged(kNormal, kMaximised, true);
  EXPECT_EQ(memory.Zoomed(2), 1);
  EXPECT_EQ(memory.Zoomed(1), 2);
  EXPECT_EQ(memory.StateChanged(kMaximised, kNormal, false), AfterState::ShowBars);
}

TEST(FrameMemory, WindowThatWasMinimisedWhileMaximisedKeepsItsNormalZoom) {
  FrameMemory memory(kSize, 1);
  memory.StateChanged(kNormal, kMaximised, true);
  memory.StateChanged(kMaximised, {.minimised = true, .maximised = true}, true);
  memory.Zoomed(2);
  EXPECT_EQ(memory.StateChanged({.minimised = true, .maximised = true}, kMaximised, true),
            AfterState::FillInside);
  EXPECT_EQ(memory.StateChanged(kMaximised, kNormal, false), AfterState::RestoreSoon);
}

}  // namespace
}  // namespace veldrin
