// Text sizes, the printer, and where pictures go on the simulated machine.
#pragma once

#include "platform/files.h"
#include "platform/screen.h"

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

/// A character below U+0080 is size times 10 twips wide, any other size times 20; a line is size times 24
/// high.
struct SimulatedMetrics : TextMetrics {
  TextSize Measure(const Font& font, const std::string& text) const override;
};

/// A document that was ended.
struct PrintedDocument {
  int copies = 1;
  std::vector<Primitive> drawing;
};

class SimulatedPrinter : public Printer {
 public:
  /// The page's printable area in twips.
  static constexpr double kPageWidth = 12240;
  static constexpr double kPageHeight = 15840;

  /// `metrics` measures the texts on the pages and has to outlive the printer.
  explicit SimulatedPrinter(const TextMetrics& metrics);

  /// How many printers there are. Without one, what is drawn goes nowhere.
  int printers = 1;
  /// What the program asked for last.
  int copies = 1;
  std::vector<PrintedDocument> documents;

  bool Available() const override { return printers > 0; }
  std::vector<std::string> Fonts() const override;
  void SetCopies(int number) override { copies = number; }
  Surface& Page() override { return page_; }
  void EndDocument() override;

  /// All pages since the machine's start, the one that is begun last.
  std::vector<Primitive> Drawing() const;

 private:
  void BeginPage();

  const TextMetrics* metrics_;
  Surface page_;
};

/// A picture that was handed over, in pixels: the left top part of a surface. What lies beyond its size is
/// still listed.
struct SimulatedBitmap {
  int width = 0;
  int height = 0;
  double surfaceWidth = 0;  // twips, as surfaceHeight
  double surfaceHeight = 0;
  std::vector<Primitive> drawing;

  /// "bitmap W H", then each primitive.
  std::vector<std::string> Lines() const;
};

class SimulatedPictures : public Pictures {
 public:
  explicit SimulatedPictures(Files& files) : files_(&files) {}

  /// What is on the clipboard; nothing after it was emptied.
  std::optional<SimulatedBitmap> clipboard;

  void ClearClipboard() override { clipboard.reset(); }
  void PutOnClipboard(const Surface& surface, int width, int height) override;
  /// Writes the bitmap's lines as text, each ended by CR LF. Raises the faults of writing a file.
  void SaveBitmap(const std::string& path, const Surface& surface, int width, int height) override;

 private:
  Files* files_;
};

}  // namespace veldrin
