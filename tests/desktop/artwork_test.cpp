#include "machine/painting/artwork.h"

#include "tests/desktop/test_window.h"

#include <QImage>
#include <QPainter>

#include <functional>

namespace veldrin {
namespace {

constexpr int kButton = 13;  // pixels
constexpr int kPictureWide = 478;
constexpr int kPictureHigh = 322;

QImage Painted(const QSize& size, const QColor& back, const std::function<void(QPainter&)>& paint) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(back);
  QPainter painter(&image);
  paint(painter);
  return image;
}

/// A picture resource in the middle of a transparent image, with as much room around it as it has itself.
QImage PaintedImage(int number, int size = kButton) {
  return Painted({3 * size, 3 * size}, Qt::transparent,
                 [&](QPainter& painter) { PaintImage(painter, QRectF(size, size, size, size), number); });
}

QImage PaintedWindow(const std::string& window, const QSize& size, const QColor& back) {
  return Painted(size, back, [&](QPainter& painter) {
    PaintWindowPicture(painter, QRectF(QPointF(), QSizeF(size)), window);
  });
}

QImage LastColumn(const QImage& image, int fromTheEnd = 0) {
  return image.copy(image.width() - 1 - fromTheEnd, 0, 1, image.height());
}

QImage LastRow(const QImage& image, int fromTheEnd = 0) {
  return image.copy(0, image.height() - 1 - fromTheEnd, image.width(), 1);
}

/// The far edges show what lies just inside of them, and not a mixture with what is behind the picture.
void ExpectWholeEdges(const QImage& picture) {
  EXPECT_EQ(LastColumn(picture), LastColumn(picture, 1));
  EXPECT_EQ(LastRow(picture), LastRow(picture, 1));
}

TEST(Artwork, ButtonsDifferFromEachOther) {
  constexpr int kNumbers[] = {2004, 2005, 2006, 2007};
  for (const int one : kNumbers) {
    for (const int other : kNumbers) {
      if (one >= other) continue;
      EXPECT_NE(PaintedImage(one), PaintedImage(other)) << one << " " << other;
    }
  }
}

TEST(Artwork, ButtonsArePaintedInTheirRoomAlone) {
  for (const int number : {2004, 2005, 2006, 2007}) {
    for (const int size : {kButton, 23, 2 * kButton}) {
      QImage image = PaintedImage(number, size);
      const QRect room(size, size, size, size);
      EXPECT_GT(qAlpha(image.pixel(room.center())), 0) << number << " " << size;
      QPainter painter(&image);
      painter.setCompositionMode(QPainter::CompositionMode_Clear);
      painter.fillRect(room, Qt::transparent);
      painter.end();
      EXPECT_EQ(image, PaintedImage(0, size)) << number << " " << size;
    }
  }
}

TEST(Artwork, OtherNumbersPaintNothing) {
  const QImage nothing = Painted({3 * kButton, 3 * kButton}, Qt::transparent, [](QPainter&) {});
  for (const int number : {-1, 0, 1, 2003, 2008}) EXPECT_EQ(PaintedImage(number), nothing) << number;
}

TEST(Artwork, AboutPictureCoversItsWholeRoom) {
  for (const QSize size : {QSize(kPictureWide, kPictureHigh), QSize(837, 564), QSize(239, 161),
                           QSize(3 * kPictureWide, 3 * kPictureHigh)}) {
    const QImage picture = PaintedWindow("Form10", size, Qt::magenta);
    EXPECT_EQ(picture, PaintedWindow("Form10", size, Qt::green)) << size.width();
    EXPECT_EQ(picture, PaintedWindow("Form10", size, Qt::transparent)) << size.width();
    ExpectWholeEdges(picture);
  }
}

TEST(Artwork, AboutTellsInSmallLettersWhatTheProgramIsFor) {
  const QImage picture = PaintedWindow("Form10", {kPictureWide, kPictureHigh}, Qt::magenta);
  QRect letters;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor colour = picture.pixelColor(x, y);
      if (colour.red() > 200 && colour.green() > 150 && colour.blue() < 100) letters |= QRect(x, y, 1, 1);
    }
  }
  // Of 11 points, below the name and above the panels.
  EXPECT_TRUE(QRect(20, 84, 180, 26).contains(letters))
      << letters.left() << ' ' << letters.top() << ' ' << letters.width() << ' ' << letters.height();
  EXPECT_GT(letters.width(), 60);
}

TEST(Artwork, OtherWindowsHaveNoPicture) {
  const QSize size(kPictureWide, kPictureHigh);
  const QImage nothing = Painted(size, Qt::magenta, [](QPainter&) {});
  for (const char* window : {"Form1", "Form2", "Form3", "Form4", "Form5", "Form6", "Form7", "Form9", ""})
    EXPECT_EQ(PaintedWindow(window, size, Qt::magenta), nothing) << window;
}

// At this zoom the window's sides are 836 and a half and 563 and a half pixels.
TEST_F(WidgetsTest, AboutPictureReachesTheEdgesOfItsWindowAtAnOddZoom) {
  const Form10& form10 = program->form10.Load();
  program->form10->Show();
  stage.zoom.Set(1.75);
  QWidget& client = windows.FormOf(form10)->Client();
  EXPECT_EQ(client.size(), QSize(837, 564));
  const QImage shown = client.grab().toImage().convertToFormat(QImage::Format_ARGB32);
  ExpectWholeEdges(shown);
  // No control stands at the far edges.
  const QImage picture = PaintedWindow("Form10", {837, 564}, Qt::magenta);
  EXPECT_EQ(LastColumn(shown), LastColumn(picture));
  EXPECT_EQ(LastRow(shown), LastRow(picture));
  program->form10->UnloadWindow();
}

}  // namespace
}  // namespace veldrin
