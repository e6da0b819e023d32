#include "machine/output/real_pictures.h"

#include "machine/painting/surface_painter.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace veldrin {

namespace {

constexpr int kDotsPerMetre = 3780;  // 96 to the inch
constexpr double kPixelsPerTwip = 1.0 / kTwipsPerPixel;

}  // namespace

QImage PictureOf(const Surface& surface, int width, int height) {
  return PictureOf(surface.Drawing(), {surface.PhysicalWidth(), surface.PhysicalHeight()}, width, height);
}

QImage PictureOf(const std::vector<Primitive>& drawing, const QSizeF& surface, int width, int height) {
  QImage image(std::max(width, 0), std::max(height, 0), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.setDotsPerMeterX(kDotsPerMetre);
  image.setDotsPerMeterY(kDotsPerMetre);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintDrawing(painter, drawing, {{QPointF(), surface * kPixelsPerTwip}, kPixelsPerTwip, Qt::white});
  return image;
}

QByteArray BitmapBytes(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "BMP");
  return bytes;
}

void RealPictures::ClearClipboard() {
  QGuiApplication::clipboard()->clear();
}

void RealPictures::PutOnClipboard(const Surface& surface, int width, int height) {
  QGuiApplication::clipboard()->setImage(PictureOf(surface, width, height));
}

void RealPictures::SaveBitmap(const std::string& path, const Surface& surface, int width, int height) {
  const QByteArray bytes = BitmapBytes(PictureOf(surface, width, height));
  files_->WriteBytes(path, std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace veldrin
