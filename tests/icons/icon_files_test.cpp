#include "icons/icon_files.h"

#include "machine/painting/icons.h"

#include <QFile>
#include <QImage>
#include <QSet>
#include <gtest/gtest.h>

#include <cstdlib>

namespace veldrin {
namespace {

QByteArray Stored(const QString& place) {
  QFile file(QString(VELDRIN_SHARE) + "/../icons/hicolor/" + place);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// By how much pictures of one size differ, a channel of a pixel in the mean. Another Qt may smooth edges
/// otherwise, which comes to a small part of one.
double Difference(const QImage& one, const QImage& other) {
  double sum = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) +
             std::abs(qAlpha(a) - qAlpha(b));
    }
  }
  return sum / (4.0 * one.width() * one.height());
}

TEST(IconFilesTest, WhatIsInstalledIsWhatTheProgramDraws) {
  for (const auto& [place, bytes] : IconFiles()) {
    const QByteArray stored = Stored(place);
    ASSERT_FALSE(stored.isEmpty()) << qPrintable(place) << ": scripts/make-icons draws it";
    if (place.endsWith(".svg")) {
      EXPECT_EQ(stored.toStdString(), bytes.toStdString()) << qPrintable(place);
      continue;
    }
    const QImage before = QImage::fromData(stored);
    const QImage now = QImage::fromData(bytes);
    ASSERT_EQ(before.size(), now.size()) << qPrintable(place);
    EXPECT_LT(Difference(before, now), 0.5) << qPrintable(place) << ": scripts/make-icons draws it anew";
  }
}

TEST(IconFilesTest, ThereIsOneOfEachSizeAndAScalableOneForProgramPlanAndList) {
  QSet<QString> places;
  for (const IconFile& file : IconFiles()) {
    places += file.place;
    if (!file.place.endsWith(".png")) continue;
    const QImage image = QImage::fromData(file.bytes);
    EXPECT_EQ(QString("%1x%2").arg(image.width()).arg(image.height()), file.place.section('/', 0, 0));
    EXPECT_TRUE(image.hasAlphaChannel()) << qPrintable(file.place);
  }
  EXPECT_EQ(places.size(), 27);
  for (const char* place : {"48x48/apps/veldrin.png", "scalable/apps/veldrin.svg",
                            "16x16/mimetypes/application-x-veldrin-plan.png",
                            "scalable/mimetypes/application-x-veldrin-list.svg"}) {
    EXPECT_TRUE(places.contains(place)) << place;
  }
}

TEST(IconFilesTest, IconsCanBeToldApart) {
  const QImage program = IconImage(IconSubject::Program, 48);
  const QImage plan = IconImage(IconSubject::Plan, 48);
  const QImage list = IconImage(IconSubject::List, 48);
  EXPECT_GT(Difference(program, plan), 10);
  EXPECT_GT(Difference(program, list), 10);
  EXPECT_GT(Difference(plan, list), 5);
}

TEST(IconFilesTest, CornersAreClear) {
  for (const IconSubject subject : {IconSubject::Program, IconSubject::Plan, IconSubject::List}) {
    const QImage icon = IconImage(subject, 64);
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(63, 63)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(32, 40)), 255);
  }
}

}  // namespace
}  // namespace veldrin
