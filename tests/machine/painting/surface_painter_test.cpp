#include "machine/painting/surface_painter.h"

#include "simulated/simulated_printer.h"

#include <QImage>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace veldrin {
namespace {

constexpr int kSize = 100;  // pixels
constexpr double kTwips = kSize * 15.0;

class SurfacePainterTest : public ::testing::Test {
 protected:
  SurfacePainterTest() { surface.SetSize(kTwips, kTwips); }

  QImage Painted(const QColor& background = Qt::white, int size = kSize) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    PaintDrawing(painter, surface.Drawing(), {QRectF(0, 0, size, size), size / kTwips, background});
    return image;
  }

  SimulatedMetrics metrics;
  Surface surface{metrics};
};

TEST_F(SurfacePainterTest, TwipsAreFifteenToThePixel) {
  surface.Line(150, 300, 450, 300, kRed);
  const QImage image = Painted();
  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(9, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(31, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 19), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 21), QColor(Qt::white));
}

TEST_F(SurfacePainterTest, NegativeHeightTurnsTheAxisUpward) {
  surface.SetScale({0, 200, 1000, -200});
  surface.Fill(0, 0, 100, 20, kRed);
  const QImage image = Painted();
  EXPECT_EQ(image.pixelColor(5, 95), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(5, 85), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(15, 95), QColor(Qt::white));
}

TEST_F(SurfacePainterTest, WhatStandsKeepsTheScaleThatItWasDrawnIn) {
  surface.SetScale({0, 0, 10, 10});
  surface.Fill(0, 0, 5, 5, kRed);
  surface.SetScale({0, 0, 1000, 1000});
  EXPECT_EQ(Painted().pixelColor(40, 40), QColor(Qt::red));
}

TEST_F(SurfacePainterTest, DrawingsStretchAndPensGrow) {
  surface.Line(0, 750, 1500, 750, kRed);
  const QImage image = Painted(Qt::white, 4 * kSize);
  int thickness = 0;
  for (int y = 0; y < image.height(); ++y) thickness += image.pixelColor(200, y) == QColor(Qt::red) ? 1 : 0;
  EXPECT_EQ(thickness, 4);
}

TEST_F(SurfacePainterTest, SlantedLinesAreSmooth) {
  surface.Line(0, 0, 1500, 500, kBlack);
  const QImage image = Painted();
  int between = 0;
  for (int y = 0; y < kSize; ++y) {
    const int grey = qGray(image.pixel(50, y));
    between += grey > 10 && grey < 245 ? 1 : 0;
  }
  EXPECT_GE(between, 1);
}

TEST_F(SurfacePainterTest, DottedLinesHaveGaps) {
  surface.drawStyle = kPenDotted;
  surface.Line(0, 750, 1500, 750, kBlack);
  const QImage image = Painted();
  int drawn = 0;
  for (int x = 0; x < kSize; ++x) drawn += qGray(image.pixel(x, 50)) < 128 ? 1 : 0;
  EXPECT_GT(drawn, 20);
  EXPECT_LT(drawn, 60);
}

TEST_F(SurfacePainterTest, InvertingFillShowsItsColourOnWhiteAndTheTextInverted) {
  surface.Fill(0, 0, 1500, 750, kBlack);
  surface.drawMode = DrawMode::NotXorPen;
  surface.Fill(0, 0, 1500, 1500, kDarkBlue);
  const QImage image = Painted();
  EXPECT_EQ(image.pixelColor(50, 75), QColor(0, 0, 128));
  EXPECT_EQ(image.pixelColor(50, 25), QColor(255, 255, 127));
}

TEST_F(SurfacePainterTest, NothingIsPaintedBesideTheArea) {
  surface.Line(-15000, -15000, 30000, 30000, kRed);
  QImage image(kSize * 2, kSize, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintDrawing(painter, surface.Drawing(), {QRect(0, 0, kSize / 2, kSize), 1 / 15.0, Qt::white});
  painter.end();
  for (int x = kSize / 2; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::white));
  }
}

/// The rows of the first and the last black pixel.
std::pair<int, int> Rows(const QImage& image) {
  int first = image.height();
  int last = -1;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) > 64) continue;
      first = std::min(first, y);
      last = y;
    }
  }
  return {first, last};
}

TEST_F(SurfacePainterTest, JapaneseTextsStandInTheirCellWhateverFontStandsIn) {
  constexpr int kCell = 40;  // pixels: 30 points
  for (const char* font : {"ＭＳ ゴシック", "ＭＳ Ｐゴシック"}) {
    surface.Clear();
    surface.font = {font, 30, false, false};
    surface.Print(150, 300, "国");  // fills its cell but for a thin edge
    const auto [first, last] = Rows(Painted());
    EXPECT_GE(first, 20) << font;
    EXPECT_LE(first, 20 + kCell / 8) << font;
    EXPECT_LT(last, 20 + kCell) << font;
    EXPECT_GE(last, 20 + kCell - kCell / 8) << font;
  }
}

TEST_F(SurfacePainterTest, CapitalsOfOtherFontsStandBelowTheirTop) {
  surface.font = {"Arial", 30, false, false};
  surface.Print(150, 300, "E");
  const auto [first, last] = Rows(Painted());
  EXPECT_GT(first, 20);
  EXPECT_LT(last, 20 + 40);
}

}  // namespace
}  // namespace veldrin
