// Message boxes and dialogs, in front of the window that is active, or of those that are there, and as large
// as the windows are shown. Their size is that of the application's font, which is theirs as long as the
// boxes live: dialogs open others.
#pragma once

#include "machine/output/real_printer.h"
#include "platform/screen.h"

#include <QFont>

#include <functional>
#include <string>
#include <vector>

namespace veldrin {

/// What the box of a fault says below the run-time's words, and what it offers beside OK.
struct FaultStory {
  struct Choice {
    std::string caption;
    std::function<void()> act;
  };
  std::string text;
  std::vector<Choice> choices;
};

class RealBoxes : public Boxes {
 public:
  /// Needs a QApplication.
  explicit RealBoxes(RealPrinter& printer);
  /// Gives the application its font back.
  ~RealBoxes() override;
  RealBoxes(const RealBoxes&) = delete;
  RealBoxes& operator=(const RealBoxes&) = delete;

  /// From now on everything is this many times as large as the desktop would have it, also what is open.
  void SetZoom(double zoom);

  /// Called when a box has closed, before its answer goes back. Events go on while a box is open; what one of
  /// them left to be thrown is thrown here.
  std::function<void()> closed;

  /// Asked when the box of a fault is about to be shown; where nobody answers, the run-time's words stand
  /// alone.
  std::function<FaultStory(int number)> tellFault;

  BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                    BoxButtons buttons) override;
  void Fault(int number) override;
  Colour ChooseColour(Colour start) override;
  /// Where Windows has no printer, asks for a PDF file instead.
  PrintChoice ChoosePrinter() override;

 private:
  void Closed() const;

  RealPrinter* printer_;
  QFont plain_;
  double zoom_ = 1;
};

}  // namespace veldrin
