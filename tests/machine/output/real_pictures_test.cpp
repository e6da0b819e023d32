#include "machine/output/real_pictures.h"

#include "platform/system_code_pages.h"
#include "runtime/fault.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

struct NoMetrics : TextMetrics {
  TextSize Measure(const Font& /*font*/, const std::string& /*text*/) const override { return {0, 0}; }
};

class RealPicturesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // 20 by 16 pixels, of which the upper left quarter is red in a scale that runs upward.
    surface.SetSize(300, 240);
    surface.SetScale({0, 100, 100, -100});
    surface.Fill(0, 100, 50, 50, kRed);
  }

  NoMetrics metrics;
  Surface surface{metrics};
  QTemporaryDir folder;
  RealFiles files{SystemCodePages(false)};
  RealPictures pictures{files};
};

TEST_F(RealPicturesTest, ABitmapHasTheSizeAskedForAndTheSurfacesLeftTopPart) {
  const std::string path = folder.path().toStdString() + "/plan.BMP";
  pictures.SaveBitmap(path, surface, 12, 10);
  QFile file(folder.path() + "/plan.BMP");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  // File header, information header, rows from the bottom up filled to four bytes.
  ASSERT_EQ(bytes.size(), 54 + 10 * 36);
  EXPECT_EQ(bytes.left(2), "BM");
  EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 2), bytes.size());
  EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 18), 12);
  EXPECT_EQ(qFromLittleEndian<qint32>(bytes.constData() + 22), 10);
  EXPECT_EQ(qFromLittleEndian<qint16>(bytes.constData() + 28), 24);
  const auto pixel = [&](int x, int y) { return bytes.mid(54 + (9 - y) * 36 + x * 3, 3).toHex(); };
  EXPECT_EQ(pixel(0, 0), "0000ff");
  EXPECT_EQ(pixel(9, 7), "0000ff");
  EXPECT_EQ(pixel(10, 0), "ffffff");
  EXPECT_EQ(pixel(0, 8), "ffffff");
  EXPECT_EQ(pixel(11, 9), "ffffff");
}

TEST_F(RealPicturesTest, InvertingFillsInvertWhatIsBelow) {
  surface.drawMode = DrawMode::NotXorPen;
  surface.Fill(0, 100, 100, 0, kDarkBlue);
  const QImage image = PictureOf(surface, 20, 16);
  // White stays the pen's colour; red and dark blue differ everywhere but in green.
  EXPECT_EQ(image.pixelColor(19, 15), QColor(0, 0, 128));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(0, 255, 127));
}

TEST_F(RealPicturesTest, AnExistingBitmapIsReplaced) {
  const std::string path = folder.path().toStdString() + "/plan.BMP";
  pictures.SaveBitmap(path, surface, 12, 10);
  pictures.SaveBitmap(path, surface, 2, 2);
  EXPECT_EQ(QFile(folder.path() + "/plan.BMP").size(), 54 + 2 * 8);
}

TEST_F(RealPicturesTest, APictureThatCannotBeSavedIsAFault) {
  const std::string path = folder.path().toStdString() + "/none/none/plan.BMP";
  EXPECT_EQ(Guarded([&] { pictures.SaveBitmap(path, surface, 12, 10); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { pictures.SaveBitmap(folder.path().toStdString(), surface, 12, 10); }),
            kFaultPathAccess);
}

TEST_F(RealPicturesTest, TheClipboardTakesTheBitmap) {
  pictures.PutOnClipboard(surface, 640, 480);
  const QImage image = QGuiApplication::clipboard()->image();
  EXPECT_EQ(image.size(), QSize(640, 480));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(639, 479), QColor(Qt::white));
  pictures.ClearClipboard();
  EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}

TEST_F(RealPicturesTest, APictureOfNothingIsNoFault) {
  EXPECT_TRUE(PictureOf(surface, 0, 10).isNull());
  EXPECT_TRUE(PictureOf(surface, -1, -1).isNull());
}

}  // namespace
}  // namespace veldrin
