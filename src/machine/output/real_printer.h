// The printer, or the PDF file that stands in for one. Its page is a surface of the printable area's size, or
// where the report would not do on that, of the sheet that is scaled to fit into it.
#pragma once

#include "machine/output/report_sheet.h"
#include "platform/screen.h"

#include <QPrinter>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace veldrin {

class RealPrinter : public Printer {
 public:
  /// `metrics` measures the texts on the pages and has to outlive the printer.
  explicit RealPrinter(const TextMetrics& metrics);

  /// Always: without a printer there is the PDF file.
  bool Available() const override { return true; }
  /// The fonts that the program asks for by itself, and then the system's.
  std::vector<std::string> Fonts() const override;
  void SetCopies(int copies) override;
  /// As large as the paper that is set at this moment wants it, when nothing is drawn yet.
  Surface& Page() override;
  /// What cannot be printed is dropped, and `failed` called.
  void EndDocument() override;

  std::function<void()> failed;

  /// What the printer dialog sets up. Made when it is first asked for, since looking for printers takes time.
  QPrinter& Device();

 private:
  void BeginPage();
  bool PrintPage();

  const TextMetrics* metrics_;
  Sheet sheet_;
  Surface page_;
  std::unique_ptr<QPrinter> device_;
};

}  // namespace veldrin
