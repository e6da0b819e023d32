// Drawing surfaces: what is kept of what was drawn, where the position goes, and how a primitive reads.
#include "platform/canvas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A machine whose letters are all 10 twips wide and 24 high for each point of their size.
struct PlainMetrics : TextMetrics {
  TextSize Measure(const Font& font, const std::string& text) const override {
    return {static_cast<double>(font.size) * 10 * static_cast<double>(text.size()),
            static_cast<double>(font.size) * 24};
  }
};

struct Canvas : testing::Test {
  PlainMetrics metrics;
  Surface surface{metrics};
  int changes = 0;

  Canvas() {
    surface.SetSize(4000, 2000);
    surface.changed = [this] { ++changes; };
  }

  std::string Last() const { return Describe(surface.Drawing().back()); }
};

TEST_F(Canvas, WithoutAScaleUnitsAreTwips) {
  EXPECT_EQ(surface.PhysicalWidth(), 4000);
  EXPECT_EQ(surface.PhysicalHeight(), 2000);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 4000, 2000}));
  surface.SetSize(1000, 500);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 1000, 500}));
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(Surface(metrics).UserScale(), (Scale{0, 0, 0, 0}));
}

TEST_F(Canvas, AScaleStaysWhenTheSizeChanges) {
  surface.SetScale({0, 340, 15000, -340});
  EXPECT_EQ(changes, 1);
  surface.SetSize(1000, 500);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 340, 15000, -340}));
  EXPECT_EQ(surface.PhysicalWidth(), 1000);
}

TEST_F(Canvas, WidthAndHeightOfTheScaleChangeByThemselves) {
  surface.SetScaleWidth(15000);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 15000, 2000}));
  surface.SetScaleHeight(-340);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 15000, -340}));
  EXPECT_EQ(changes, 2);
  surface.SetScale({5, 6, 7, 8});
  surface.SetScaleWidth(9);
  EXPECT_EQ(surface.UserScale(), (Scale{5, 6, 9, 8}));
}

TEST_F(Canvas, WhatIsDrawnStaysUntilItIsCleared) {
  surface.Line(0, 0, 10, 20, kRed);
  surface.Fill(1, 2, 3, 4, kWhite);
  surface.Print(5, 6, "a");
  EXPECT_EQ(surface.Drawing().size(), 3U);
  EXPECT_EQ(changes, 3);
  surface.SetScale({0, 0, 1, 1});
  EXPECT_EQ(surface.Drawing().size(), 3U);
  surface.Clear();
  EXPECT_TRUE(surface.Drawing().empty());
  EXPECT_EQ(changes, 5);
}

TEST_F(Canvas, ASurfaceThatNobodyListensToDrawsAlike) {
  surface.changed = nullptr;
  surface.SetScale({0, 0, 1, 1});
  surface.Line(0, 0, 1, 1, kRed);
  Surface other(metrics);
  other.CopyDrawing(surface);
  EXPECT_EQ(other.Drawing().size(), 1U);
  surface.Clear();
  EXPECT_TRUE(surface.Drawing().empty());
}

TEST_F(Canvas, EachPrimitiveKeepsItsScale) {
  surface.Line(0, 0, 1, 1, kRed);
  surface.SetScale({0, 340, 15000, -340});
  surface.Line(0, 0, 1, 1, kRed);
  EXPECT_EQ(surface.Drawing()[0].scale, (Scale{0, 0, 4000, 2000}));
  EXPECT_EQ(surface.Drawing()[1].scale, (Scale{0, 340, 15000, -340}));
}

TEST_F(Canvas, ThePositionIsTheEndOfWhatWasDrawn) {
  EXPECT_EQ(surface.CurrentX(), 0);
  EXPECT_EQ(surface.CurrentY(), 0);
  surface.Line(1, 2, 30, 40, kRed);
  EXPECT_EQ(surface.CurrentX(), 30);
  EXPECT_EQ(surface.CurrentY(), 40);
  surface.Fill(5, 6, 7, 8, kRed);
  EXPECT_EQ(surface.CurrentX(), 7);
  EXPECT_EQ(surface.CurrentY(), 8);
  surface.font.size = 10;
  surface.Print(500, 600, "abc");
  EXPECT_EQ(surface.CurrentX(), 500 + 300) << "the right top corner of the text";
  EXPECT_EQ(surface.CurrentY(), 600);
}

TEST_F(Canvas, ClearPutsThePositionToTheLeftTopCornerOfTheScale) {
  surface.Line(1, 2, 30, 40, kRed);
  surface.Clear();
  EXPECT_EQ(surface.CurrentX(), 0);
  EXPECT_EQ(surface.CurrentY(), 0);
  surface.SetScale({5000, 340, 10000, -340});
  surface.Line(1, 2, 30, 40, kRed);
  surface.Clear();
  EXPECT_EQ(surface.CurrentX(), 5000);
  EXPECT_EQ(surface.CurrentY(), 340);
}

TEST_F(Canvas, ClearLeavesPenFontAndScale) {
  surface.drawStyle = kPenDotted;
  surface.drawWidth = 3;
  surface.drawMode = DrawMode::NotXorPen;
  surface.foreColour = kRed;
  surface.font = {"Courier New", 12, true, true};
  surface.SetScale({1, 2, 3, 4});
  surface.Clear();
  EXPECT_EQ(surface.UserScale(), (Scale{1, 2, 3, 4}));
  surface.Line(0, 0, 1, 1, kWhite);
  EXPECT_EQ(Last(), "line 0 0 1 1 255,255,255 style=2 width=3");
  surface.Fill(0, 0, 1, 1, kWhite);
  EXPECT_EQ(Last(), "fill 0 0 1 1 255,255,255 mode=notxor");
  surface.Print(0, 0, "x");
  EXPECT_EQ(Last(), "text 0 0 \"x\" 255,0,0 font=\"Courier New\" size=12 bold=True italic=True");
}

TEST_F(Canvas, ThePenIsSolidThinAndBlackAtFirst) {
  surface.font.name = "Arial";
  surface.Line(1, 2, 3, 4, kYellow);
  EXPECT_EQ(Last(), "line 1 2 3 4 255,255,0 style=0 width=1");
  surface.Fill(1, 2, 3, 4, Rgb(1, 2, 3));
  EXPECT_EQ(Last(), "fill 1 2 3 4 1,2,3 mode=copy");
  surface.Print(1, 2, "say \"a\"");
  EXPECT_EQ(Last(), "text 1 2 \"say \"\"a\"\"\" 0,0,0 font=\"Arial\" size=9 bold=False italic=False");
}

TEST_F(Canvas, PenStylesAreThePlatformsNumbers) {
  EXPECT_EQ(std::vector<int>({kPenSolid, kPenDotted, kPenDashDot, kPenDashDotDot}),
            std::vector<int>({0, 2, 3, 4}));
}

TEST_F(Canvas, TextsAreMeasuredInUnitsWithoutSign) {
  surface.font.size = 10;
  EXPECT_EQ(surface.TextWidth("abcd"), 400);
  EXPECT_EQ(surface.TextHeight("abcd"), 240);
  surface.SetScale({0, 340, -8000, -500});
  EXPECT_EQ(surface.TextWidth("abcd"), 800) << "twice the units for each twip";
  EXPECT_EQ(surface.TextHeight("abcd"), 60) << "a quarter of them";
  const Surface flat(metrics);
  EXPECT_EQ(flat.TextWidth("ab"), 180) << "without a size, twips";
  EXPECT_EQ(flat.TextHeight("ab"), 216);
}

TEST_F(Canvas, ACopyShowsTheSameDrawingInTheSameScale) {
  surface.SetScale({0, 340, 15000, -340});
  surface.Line(1, 2, 3, 4, kRed);
  Surface copy(metrics);
  int copied = 0;
  copy.changed = [&] { ++copied; };
  copy.Line(0, 0, 9, 9, kWhite);
  copied = 0;
  copy.CopyDrawing(surface);
  EXPECT_EQ(copied, 1);
  EXPECT_EQ(copy.PhysicalWidth(), 4000);
  EXPECT_EQ(copy.PhysicalHeight(), 2000);
  EXPECT_EQ(copy.UserScale(), (Scale{0, 340, 15000, -340}));
  ASSERT_EQ(copy.Drawing().size(), 1U);
  EXPECT_EQ(Describe(copy.Drawing()[0]), "line 1 2 3 4 255,0,0 style=0 width=1");
  surface.Clear();
  EXPECT_EQ(copy.Drawing().size(), 1U);
  Surface plain(metrics);
  plain.SetSize(70, 80);
  copy.CopyDrawing(plain);
  EXPECT_EQ(copy.UserScale(), (Scale{0, 0, 70, 80})) << "also that it has none of its own";
}

TEST_F(Canvas, NumbersReadWithAtMostSevenDigits) {
  struct Case {
    double value;
    const char* text;
  };
  const Case cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-1, "-1"},
      {10, "10"},
      {2.5, "2.5"},
      {-2.50, "-2.5"},
      {100.125, "100.125"},
      {0.1, "0.1"},
      {1.0 / 3, "0.3333333"},
      {200.0 / 3, "66.66667"},
      {999999.94, "999999.9"},
      {1234567.4, "1234567"},
      {1234567.6, "1234568"},
      {12345678, "12345678"},
      {1e12, "1000000000000"},
      {0.000123456789, "0.0001234568"},
  };
  for (const Case& c : cases) {
    surface.Line(c.value, 0, 0, 0, kBlack);
    EXPECT_EQ(Last(), std::string("line ") + c.text + " 0 0 0 0,0,0 style=0 width=1");
  }
}

}  // namespace
}  // namespace veldrin
