// The icons of Windows, which a script of the machine that builds puts together.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr int kHead = 6;
constexpr int kEntry = 16;
constexpr int kBitmapHead = 40;
constexpr int kSizes[] = {16, 24, 32, 48, 64, 128, 256};

template <class Number>
Number At(const QByteArray& bytes, int at) {
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

QByteArray Icon(const QString& name) {
  const QTemporaryDir folder;
  const QString file = folder.path() + "/icon.ico";
  QProcess maker;
  maker.start("python3",
              {"-B", QDir(VELDRIN_SHARE).filePath("../../packaging/windows/make_ico.py"), name, file});
  EXPECT_TRUE(maker.waitForFinished() && maker.exitCode() == 0) << maker.readAllStandardError().toStdString();
  QFile made(file);
  EXPECT_TRUE(made.open(QIODevice::ReadOnly));
  return made.readAll();
}

/// The picture of an entry, whichever way it is stored.
QImage Picture(const QByteArray& image, int size) {
  if (image.startsWith("\x89PNG"))
    return QImage::fromData(image, "PNG").convertToFormat(QImage::Format_ARGB32);
  EXPECT_EQ(At<qint32>(image, 0), kBitmapHead);
  EXPECT_EQ(At<qint32>(image, 4), size);
  EXPECT_EQ(At<qint32>(image, 8), 2 * size) << "picture and mask";
  QImage picture(size, size, QImage::Format_ARGB32);
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      picture.setPixel(x, y, At<quint32>(image, kBitmapHead + 4 * ((size - 1 - y) * size + x)));
    }
  }
  return picture;
}

/// What the artwork has drawn.
QImage Drawn(const QString& name, int size) {
  const QString place = QString("../icons/hicolor/%1x%1/%2.png").arg(size).arg(name);
  return QImage(QDir(VELDRIN_SHARE).filePath(place)).convertToFormat(QImage::Format_ARGB32);
}

TEST(WindowsIcon, HoldsWhatTheArtworkDrawsInAllSizes) {
  for (const char* name :
       {"apps/veldrin", "mimetypes/application-x-veldrin-plan", "mimetypes/application-x-veldrin-list"}) {
    const QByteArray icon = Icon(name);
    ASSERT_GT(icon.size(), kHead) << name;
    EXPECT_EQ(At<quint16>(icon, 2), 1);
    ASSERT_EQ(At<quint16>(icon, 4), std::size(kSizes));
    int entry = kHead;
    for (const int size : kSizes) {
      EXPECT_EQ(static_cast<unsigned char>(icon[entry]), size % 256);
      const QByteArray image = icon.mid(At<qint32>(icon, entry + 12), At<qint32>(icon, entry + 8));
      EXPECT_EQ(image.startsWith("\x89PNG"), size > 48) << size;
      ASSERT_FALSE(Drawn(name, size).isNull()) << name << " " << size;
      EXPECT_EQ(Picture(image, size), Drawn(name, size)) << name << " " << size;
      entry += kEntry;
    }
  }
}

}  // namespace
}  // namespace veldrin
