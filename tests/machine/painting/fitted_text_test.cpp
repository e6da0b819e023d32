#include "machine/painting/fitted_text.h"

#include "machine/painting/fonts.h"

#include <QImage>
#include <gtest/gtest.h>

#include <optional>

namespace veldrin {
namespace {

QFont Arial(int pixels) {
  QFont font("Arial");
  font.setPixelSize(pixels);
  return font;
}

/// The box around everything that was drawn for a text in a room that leaves wide margins on all sides.
QRect InkOf(const QString& text, const QSize& room, const QFont& font, Qt::Alignment align = Qt::AlignLeft) {
  constexpr int kMargin = 100;
  QImage image(room.width() + 2 * kMargin, room.height() + 2 * kMargin, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  DrawFitted(painter, QRectF(QPointF(kMargin, kMargin), room), text, font, align);
  painter.end();
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x - kMargin, y - kMargin, 1, 1);
    }
  }
  return ink;
}

/// Rows of the room that hold ink, counted as bands with clear rows between them.
int BandsOf(const QString& text, const QSize& room, const QFont& font) {
  QImage image(room, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  DrawFitted(painter, QRectF(QPointF(0, 0), room), text, font, Qt::AlignLeft);
  painter.end();
  int bands = 0;
  bool inside = false;
  for (int y = 0; y < image.height(); ++y) {
    bool inked = false;
    for (int x = 0; x < image.width(); ++x) inked = inked || qGray(image.pixel(x, y)) < 128;
    if (inked && !inside) ++bands;
    inside = inked;
  }
  return bands;
}

TEST(FittedText, WhatHangsBelowTheLineStaysInATightRoom) {
  const QSize room(160, 21);
  const QRect ink = InkOf("(x1000rpm)", room, Arial(20));
  ASSERT_FALSE(ink.isEmpty());
  EXPECT_TRUE(QRect(QPoint(0, 0), room).contains(ink)) << ink.top() << ".." << ink.bottom();
}

TEST(FittedText, ALowRoomMakesATextAsSmallAsItTakes) {
  const QSize room(400, 20);
  const QRect ink = InkOf("(x1000rpm)", room, Arial(37));
  ASSERT_FALSE(ink.isEmpty());
  EXPECT_TRUE(QRect(QPoint(0, 0), room).contains(ink)) << ink.top() << ".." << ink.bottom();
}

TEST(FittedText, AWideTextIsDrawnSmallerBeforeItIsCut) {
  const QSize room(100, 24);
  const double whole = QFontMetricsF(Arial(20)).horizontalAdvance("Calcurate it");
  ASSERT_GT(whole, room.width());
  const QRect ink = InkOf("Calcurate it", room, Arial(20));
  EXPECT_TRUE(QRect(QPoint(0, 0), room).contains(ink));
  EXPECT_GT(ink.width(), 80);
}

TEST(FittedText, ATextFarTooWideIsCutWithinItsRoom) {
  const QSize room(60, 24);
  const QRect ink = InkOf("A text that is much wider than its room", room, Arial(20));
  EXPECT_GT(ink.width(), room.width() / 2) << "as much as there is room for is drawn";
  EXPECT_LE(ink.right(), room.width() + 1);
}

TEST(FittedText, WhatIsCutIsToldAndAPathKeepsItsEnd) {
  QImage image(120, 24, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const QRectF room(0, 0, 120, 24);
  EXPECT_TRUE(DrawFitted(painter, room, "/home/anna", Arial(14), Qt::AlignLeft));
  EXPECT_FALSE(
      DrawFitted(painter, room, "Wet race, tyres of Friday, long straight", Arial(14), Qt::AlignLeft));
  painter.end();
  const auto picture = [&](const QString& text) {
    QImage drawn(120, 24, QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter own(&drawn);
    EXPECT_FALSE(DrawFitted(own, room, text, Arial(14), Qt::AlignLeft));
    return drawn;
  };
  const QString begin = "/home/anna/veldrin/plans/2026/suzuka/";
  EXPECT_NE(picture(begin + "RAIN"), picture(begin + "DRY1")) << "the end of a path is what is cut";
}

TEST(FittedText, TwoJapaneseLinesKeepTheirSizeInARoomForTwo) {
  // Thirteen letters' width, blanks among them, and then the second half: each half on a line of its own.
  const QFont font = Arial(18);
  const QString text = QString::fromUtf8("計算中です　　　　　　　　お待ち下さい");
  const QSize room(13 * 18 + 9, 48);
  EXPECT_EQ(BandsOf(text, room, font), 2);
  const QRect ink = InkOf(text, room, font);
  EXPECT_TRUE(QRect(QPoint(0, 0), room).contains(ink));
  EXPECT_LT(ink.width(), 6 * 18 + 9) << "the second half begins on the first line";
}

TEST(FittedText, JapaneseLettersStandInTheMiddleWhateverFontTheyComeFrom) {
  const QSize room(200, 40);
  for (const char* name : {"Arial", "ＭＳ ゴシック", "ＭＳ Ｐゴシック"}) {
    const QFont font = FontFor({name, 15, false, false}, 96);  // 20 pixels
    const QRect ink = InkOf(QString::fromUtf8("国"), room, font);
    EXPECT_NEAR(ink.top() + ink.bottom() + 1, room.height(), 3) << name;
  }
}

TEST(FittedText, TextsStandToTheLeftInTheMiddleOrToTheRight) {
  const QSize room(200, 40);
  const QRect left = InkOf("HHH", room, Arial(20), Qt::AlignLeft);
  const QRect middle = InkOf("HHH", room, Arial(20), Qt::AlignHCenter);
  const QRect right = InkOf("HHH", room, Arial(20), Qt::AlignRight);
  EXPECT_LE(left.left(), 4);
  EXPECT_NEAR(middle.left() + middle.right() + 1, room.width(), 4);
  EXPECT_GE(right.right(), room.width() - 5);
}

TEST(FittedText, ARoomForOneLineDoesNotWrap) {
  EXPECT_EQ(BandsOf("none near none near none near", QSize(60, 30), Arial(18)), 1);
}

TEST(FittedText, MarksOfKeysAreLeftOut) {
  EXPECT_EQ(WithoutMarks("File(&F)"), "File(F)");
  EXPECT_EQ(WithoutMarks("a && b"), "a & b");
  EXPECT_EQ(WithoutMarks("last &"), "last &");
}

}  // namespace
}  // namespace veldrin
