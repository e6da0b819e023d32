#include "machine/output/real_printer.h"

#include "machine/painting/surface_painter.h"

#include <QFile>
#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace veldrin {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerPrintedInch = 1440;

/// Fonts that the program asks for by itself; other fonts stand for those that the system lacks.
constexpr const char* kOwnFonts[] = {"Arial", "ＭＳ ゴシック", "ＭＳ Ｐゴシック"};

/// Qt does not tell when the disk was full.
bool IsWholePdf(const QString& path) {
  constexpr qint64 kEndLength = 16;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.size() > kEndLength && file.seek(file.size() - kEndLength) &&
         file.readAll().contains("%%EOF");
}

}  // namespace

RealPrinter::RealPrinter(const TextMetrics& metrics) : metrics_(&metrics), page_(metrics) {}

std::vector<std::string> RealPrinter::Fonts() const {
  std::vector<std::string> fonts(std::begin(kOwnFonts), std::end(kOwnFonts));
  for (const QString& family : QFontDatabase::families()) {
    const std::string font = family.toStdString();
    const bool known = std::find(std::begin(kOwnFonts), std::end(kOwnFonts), font) != std::end(kOwnFonts);
    if (!known && !QFontDatabase::isPrivateFamily(family)) fonts.push_back(font);
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
  const bool printed = PrintPage();
  page_ = Surface(*metrics_);
  BeginPage();
  if (!printed && failed) failed();
}

bool RealPrinter::PrintPage() {
  QPrinter& device = Device();
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const double pixelsPerTwip = sheet_.factor * device.resolution() / kTwipsPerPrintedInch;
  const QRectF area(0, 0, page_.PhysicalWidth() * pixelsPerTwip, page_.PhysicalHeight() * pixelsPerTwip);
  PaintDrawing(painter, page_.Drawing(), {area, pixelsPerTwip, Qt::white});
  if (!painter.end() || device.printerState() == QPrinter::Error) return false;
  return device.outputFormat() != QPrinter::PdfFormat || IsWholePdf(device.outputFileName());
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
  sheet_ = SheetFor(Device().pageLayout().paintRect(QPageLayout::Point).size() * kTwipsPerPoint);
  page_.SetSize(sheet_.size.width(), sheet_.size.height());
}

}  // namespace veldrin
