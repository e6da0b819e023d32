#include "simulated/simulated_printer.h"

#include "runtime/text.h"

namespace veldrin {

TextSize SimulatedMetrics::Measure(const Font& font, const std::string& text) const {
  const double size = font.size;
  double width = 0;
  for (const std::string& character : Characters(text)) {
    const bool plain = character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80;
    width += size * (plain ? 10 : 20);
  }
  return {width, size * 24};
}

SimulatedPrinter::SimulatedPrinter(const TextMetrics& metrics) : metrics_(&metrics), page_(metrics) {
  BeginPage();
}

void SimulatedPrinter::BeginPage() {
  page_ = Surface(*metrics_);
  page_.SetSize(kPageWidth, kPageHeight);
  page_.font = {"Arial", 10, false, false};
}

std::vector<std::string> SimulatedPrinter::Fonts() const {
  if (!Available()) return {};
  return {"Arial", "Courier New", "ＭＳ ゴシック", "ＭＳ Ｐゴシック"};
}

void SimulatedPrinter::EndDocument() {
  if (Available()) documents.push_back({copies, page_.Drawing()});
  BeginPage();
}

std::vector<Primitive> SimulatedPrinter::Drawing() const {
  std::vector<Primitive> all;
  for (const PrintedDocument& document : documents) {
    all.insert(all.end(), document.drawing.begin(), document.drawing.end());
  }
  all.insert(all.end(), page_.Drawing().begin(), page_.Drawing().end());
  return all;
}

namespace {

SimulatedBitmap BitmapOf(const Surface& surface, int width, int height) {
  return {width, height, surface.PhysicalWidth(), surface.PhysicalHeight(), surface.Drawing()};
}

}  // namespace

std::vector<std::string> SimulatedBitmap::Lines() const {
  std::vector<std::string> lines{"bitmap " + std::to_string(width) + " " + std::to_string(height)};
  for (const Primitive& primitive : drawing) lines.push_back(Describe(primitive));
  return lines;
}

void SimulatedPictures::PutOnClipboard(const Surface& surface, int width, int height) {
  clipboard = BitmapOf(surface, width, height);
}

void SimulatedPictures::SaveBitmap(const std::string& path, const Surface& surface, int width, int height) {
  const auto writer = files_->OpenForWriting(path);
  for (const std::string& line : BitmapOf(surface, width, height).Lines()) {
    writer->Write(line + std::string(kCrLf));
  }
  writer->Close();
}

}  // namespace veldrin
