// Message boxes and dialogs, in front of the window that is active.
#pragma once

#include "desktop/real_printer.h"
#include "platform/screen.h"

#include <functional>
#include <string>

namespace veldrin {

/// The run-time's words for a fault; those for an unknown one where it has none.
std::string FaultText(int number);

class RealBoxes : public Boxes {
 public:
  explicit RealBoxes(RealPrinter& printer) : printer_(&printer) {}

  /// Called when a box has closed, before its answer goes back. Events go on while a box is open; what one of
  /// them left to be thrown is thrown here.
  std::function<void()> closed;

  BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                    BoxButtons buttons) override;
  void Fault(int number) override;
  Colour ChooseColour(Colour start) override;
  /// Where Windows has no printer, asks for a PDF file instead.
  PrintChoice ChoosePrinter() override;

 private:
  void Closed() const;

  RealPrinter* printer_;
};

}  // namespace veldrin
