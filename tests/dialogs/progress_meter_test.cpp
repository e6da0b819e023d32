#include "dialogs/progress_meter.h"

#include "tests/dialogs/drawn_meter.h"

#include <cstdint>
#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace veldrin {
namespace {

TEST_F(Meter, TakingASurfaceClearsItAndShowsNothing) {
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 100, 1000}));
  // A character is 4.5 wide now: 50 - 9 / 2, and (1000 - 216) / 2.
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 100 1000 255,255,255 mode=copy", Text("45.5 392", "0%"),
                   "fill 0 0 0 1000 0,0,128 mode=notxor", "fill 0 0 100 1000 255,255,255 mode=notxor"}));
  surface.Line(0, 0, 1, 1, kRed);
  meter.SetPicture(surface);
  EXPECT_EQ(Drawn().size(), 4U);
}

TEST_F(Meter, FillsFromTheLeft) {
  Drawn();
  meter.SetValue(30);
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 100 1000 255,255,255 mode=copy", Text("43.25 392", "30%"),
                   "fill 0 0 30 1000 0,0,128 mode=notxor", "fill 30 0 100 1000 255,255,255 mode=notxor"}));
  EXPECT_EQ(surface.drawMode, DrawMode::NotXorPen);
  EXPECT_EQ(surface.foreColour, Rgb(0, 0, 128));
}

TEST_F(Meter, FillsFromTheBottomWithPartsThatDoNotMeet) {
  meter.SetDirection(1);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 100, 100}));
  Drawn();
  meter.SetValue(30);
  // A line is 21.6 high now. The lower part begins at 70, the upper one ends at 30.
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 100 100 255,255,255 mode=copy", Text("43.25 39.2", "30%"),
                   "fill 0 100 100 70 0,0,128 mode=notxor", "fill 0 0 100 30 255,255,255 mode=notxor"}));
  meter.SetValue(80);
  // Now they overlap from 20 to 80.
  EXPECT_EQ(Drawn()[2], "fill 0 100 100 20 0,0,128 mode=notxor");
  meter.SetValue(80);
  EXPECT_EQ(Drawn()[3], "fill 0 0 100 80 255,255,255 mode=notxor");
}

TEST_F(Meter, FromTheBottomNothingHasTheWholeHeightAndEverythingNone) {
  struct Case {
    std::int32_t value;
    std::int32_t held;
    const char* full;
    const char* empty;
  };
  const Case cases[] = {{0, 0, "fill 0 100 100 100 ", "fill 0 0 100 0 "},
                        {-1, 0, "fill 0 100 100 100 ", "fill 0 0 100 0 "},
                        {1, 1, "fill 0 100 100 99 ", "fill 0 0 100 1 "},
                        {50, 50, "fill 0 100 100 50 ", "fill 0 0 100 50 "},
                        {99, 99, "fill 0 100 100 1 ", "fill 0 0 100 99 "},
                        {100, 100, "fill 0 100 100 0 ", "fill 0 0 100 100 "},
                        {101, 100, "fill 0 100 100 0 ", "fill 0 0 100 100 "}};
  meter.SetDirection(1);
  meter.SetText("");
  meter.SetShowNumber(false);
  for (const Case& c : cases) {
    Drawn();
    meter.SetValue(c.value);
    EXPECT_EQ(meter.Value(), c.held) << c.value;
    EXPECT_EQ(Drawn(),
              (Lines{"fill 0 0 100 100 255,255,255 mode=copy", std::string(c.full) + "0,0,128 mode=notxor",
                     std::string(c.empty) + "255,255,255 mode=notxor"}))
        << c.value;
  }
}

TEST_F(Meter, AnyOtherDirectionDrawsNoBar) {
  for (const int direction : {2, -1, std::numeric_limits<int>::max()}) {
    meter.SetDirection(direction);
    Drawn();
    meter.SetValue(30);
    EXPECT_EQ(Drawn(), (Lines{"fill 0 0 100 100 255,255,255 mode=copy", Text("43.25 39.2", "30%")}))
        << direction;
    EXPECT_EQ(meter.Direction(), direction);
  }
}

TEST_F(Meter, NothingIsAllEmptyAndEverythingIsAllFull) {
  Drawn();
  meter.SetValue(0);
  Lines lines = Drawn();
  EXPECT_EQ(lines[2], "fill 0 0 0 1000 0,0,128 mode=notxor");
  EXPECT_EQ(lines[3], "fill 0 0 100 1000 255,255,255 mode=notxor");
  meter.SetValue(100);
  lines = Drawn();
  EXPECT_EQ(lines[2], "fill 0 0 100 1000 0,0,128 mode=notxor");
  EXPECT_EQ(lines[3], "fill 100 0 100 1000 255,255,255 mode=notxor");
}

TEST_F(Meter, WithoutNumberAndTextTheBarHasNoText) {
  meter.SetText("");
  meter.SetShowNumber(false);
  Drawn();
  meter.SetValue(40);
  EXPECT_EQ(Drawn(), (Lines{"fill 0 0 100 1000 255,255,255 mode=copy", "fill 0 0 40 1000 0,0,128 mode=notxor",
                            "fill 40 0 100 1000 255,255,255 mode=notxor"}));
}

TEST_F(Meter, TextStandsBehindTheNumberOrAlone) {
  Drawn();
  meter.SetText(" MB");
  EXPECT_EQ(Drawn()[1], Text("41 392", "0 MB"));
  meter.SetShowNumber(false);
  EXPECT_EQ(Drawn()[1], Text("43.25 392", " MB"));
  // A character from beyond ASCII is twice as wide.
  meter.SetText("空き");
  EXPECT_EQ(Drawn()[1], Text("41 392", "空き"));
}

TEST_F(Meter, ColoursAreTakenAtOnce) {
  meter.SetValue(30);
  Drawn();
  meter.SetBarColor(kRed);
  Lines lines = Drawn();
  EXPECT_EQ(lines[1], Text("43.25 392", "30%", "255,0,0"));
  EXPECT_EQ(lines[2], "fill 0 0 30 1000 255,0,0 mode=notxor");
  meter.SetBackColor(kYellow);
  lines = Drawn();
  // What is below stays white.
  EXPECT_EQ(lines[0], "fill 0 0 100 1000 255,255,255 mode=copy");
  EXPECT_EQ(lines[3], "fill 30 0 100 1000 255,255,0 mode=notxor");
  EXPECT_EQ(meter.BarColor(), kRed);
  EXPECT_EQ(meter.BackColor(), kYellow);
}

TEST_F(Meter, RefreshDrawsTheSameAgain) {
  meter.SetValue(30);
  Drawn();
  meter.Refresh();
  const Lines first = Drawn();
  meter.Refresh();
  EXPECT_EQ(Drawn(), first);
  EXPECT_EQ(first[2], "fill 0 0 30 1000 0,0,128 mode=notxor");
}

TEST_F(Meter, TheSurfaceIsRefreshedInTheEnd) {
  Drawn();
  std::vector<std::size_t> drawn;
  surface.changed = [&] { drawn.push_back(surface.Drawing().size()); };
  meter.SetValue(30);
  // The surface tells each of the four, and the meter that it is done.
  EXPECT_EQ(drawn, (std::vector<std::size_t>{1, 2, 3, 4, 4}));
  surface.changed = nullptr;
}

TEST_F(Meter, TheTextIsDrawnInTheInvertedModeAndTheBarsColour) {
  meter.SetBarColor(kRed);
  Drawn();
  surface.drawMode = DrawMode::Copy;
  surface.foreColour = kBlack;
  bool told = false;
  surface.changed = [&] {
    const std::vector<Primitive>& drawing = surface.Drawing();
    if (told || drawing.empty() || !std::holds_alternative<TextPrimitive>(drawing.back().shape)) return;
    told = true;
    EXPECT_EQ(surface.drawMode, DrawMode::NotXorPen);
    EXPECT_EQ(surface.foreColour, kRed);
    EXPECT_EQ(drawing.size(), 2U);
  };
  meter.SetValue(30);
  EXPECT_TRUE(told);
  surface.changed = nullptr;
}

TEST_F(Meter, TextStandsInTheMiddleOfTheWholeNumbers) {
  surface.SetScale({0, 0, 101.5, 41.5});
  Drawn();
  meter.SetValue(30);
  // The middle is that of 102 by 42; the text is as large as the scale itself makes it: 3 * 90 * 101.5 / 2000
  // by 216 * 41.5 / 1000.
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 102 42 255,255,255 mode=copy", Text("44.14875 16.518", "30%"),
                   "fill 0 0 30 42 0,0,128 mode=notxor", "fill 30 0 102 41.5 255,255,255 mode=notxor"}));
}

TEST_F(Meter, DefaultsAreThoseOfAPercentage) {
  const clsProgressBar fresh;
  EXPECT_EQ(fresh.Value(), 0);
  EXPECT_EQ(fresh.BarColor().bgr, 0x800000U);
  EXPECT_EQ(fresh.BackColor().bgr, 0xFFFFFFU);
  EXPECT_EQ(fresh.Max(), 100);
  EXPECT_EQ(fresh.Text(), "%");
  EXPECT_TRUE(fresh.ShowNumber());
  EXPECT_EQ(fresh.Direction(), 0);
}

TEST_F(Meter, WithoutASurfaceItKeepsWhatItIsTold) {
  clsProgressBar fresh;
  fresh.SetMax(10);
  fresh.SetValue(20);
  fresh.SetText("x");
  fresh.SetShowNumber(false);
  fresh.SetDirection(1);
  EXPECT_EQ(fresh.Value(), 10);
  EXPECT_EQ(fresh.Text(), "x");
  Drawn();
  // A new surface begins at 0, with the scale's width alone.
  fresh.SetPicture(surface);
  EXPECT_EQ(fresh.Value(), 0);
  EXPECT_EQ(surface.UserScale().width, 10);
}

}  // namespace
}  // namespace veldrin
