// Message boxes and dialogs of the simulated machine: nobody is asked; answers stand ready in queues, and
// each that comes up without one takes its default.
#pragma once

#include "platform/screen.h"
#include "simulated/simulated_log.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

/// A message box that was shown, in the words of the log.
struct ShownBox {
  std::string icon;
  std::string title;
  std::string text;
  std::string answer;
};

class SimulatedBoxes : public Boxes {
 public:
  explicit SimulatedBoxes(SimulatedLog& log) : log_(&log) {}

  /// Answers still to be given, the next one first. Without one: OK, Cancel, and accepted with one copy.
  std::deque<BoxAnswer> boxAnswers;
  std::deque<std::optional<Colour>> colourAnswers;
  std::deque<PrintChoice> printAnswers;
  /// Message boxes since the machine's start; fault boxes do not count.
  std::vector<ShownBox> shown;

  BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                    BoxButtons buttons) override;
  void Fault(int number) override;
  Colour ChooseColour(Colour start) override;
  PrintChoice ChoosePrinter() override;

 private:
  SimulatedLog* log_;
};

}  // namespace veldrin
