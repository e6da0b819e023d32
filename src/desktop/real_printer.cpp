#include "desktop/real_printer.h"

#include "desktop/surface_painter.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>

#include <algorithm>

namespace veldrin {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerPrintedInch = 1440;

}  // namespace

RealPrinter::RealPrinter(const TextMetrics& metrics) : metrics_(&metrics), page_(metrics) {}

std::vector<std::string> RealPrinter::Fonts() const {
  std::vector<std::string> fonts;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) fonts.push_back(family.toStdString());
  }
  return fonts;
}

void RealPrinter::SetCopies(int copies) {
  Device().setCopyCount(std::max(copies, 1));
}

Surface& RealPrinter::Page() {
  if (page_.Drawing().empty()) BeginPage();
  return page_;
}

void RealPrinter::EndDocument() {
  QPrinter& device = Device();
  QPainter painter;
  if (painter.begin(&device)) {
    const double pixelsPerTwip = device.resolution() / kTwipsPerPrintedInch;
    const QRectF area(0, 0, page_.PhysicalWidth() * pixelsPerTwip, page_.PhysicalHeight() * pixelsPerTwip);
    PaintDrawing(painter, page_.Drawing(), {area, pixelsPerTwip, Qt::white});
  }
  page_ = Surface(*metrics_);
  BeginPage();
}

QPrinter& RealPrinter::Device() {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device_->setDocName("Veldrin");
    device_->setCreator("Veldrin");
  }
  return *device_;
}

void RealPrinter::BeginPage() {
  const QSizeF size = Device().pageLayout().paintRect(QPageLayout::Point).size() * kTwipsPerPoint;
  page_.SetSize(size.width(), size.height());
}

}  // namespace veldrin
