#include "simulated/simulated_boxes.h"

#include "simulated/printed_values.h"

namespace veldrin {

namespace {

/// Takes the next answer out of its queue.
template <class Answer>
Answer Next(std::deque<Answer>& answers, Answer otherwise) {
  if (answers.empty()) return otherwise;
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

const char* IconName(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return "information";
    case BoxIcon::Exclamation:
      return "exclamation";
    case BoxIcon::Question:
      return "question";
    case BoxIcon::Critical:
      return "critical";
    case BoxIcon::None:
      break;
  }
  return "none";
}

}  // namespace

BoxAnswer SimulatedBoxes::Message(BoxIcon icon, const std::string& title, const std::string& text,
                                  BoxButtons /*buttons*/) {
  const BoxAnswer answer = Next(boxAnswers, BoxAnswer::Ok);
  const ShownBox box{IconName(icon), title.empty() ? "Veldrin" : title, text,
                     answer == BoxAnswer::Ok ? "OK" : "Cancel"};
  shown.push_back(box);
  log_->Add("box " + box.icon + " " + Quoted(box.title) + " " + Quoted(box.text) + " " + box.answer);
  return answer;
}

void SimulatedBoxes::Fault(int number) {
  log_->Add("fault " + std::to_string(number));
}

Colour SimulatedBoxes::ChooseColour(Colour start) {
  const std::optional<Colour> answer = Next(colourAnswers, std::optional<Colour>());
  log_->Add("colour-dialog " + ValueText(start) + " " + (answer ? ValueText(*answer) : "cancel"));
  return answer.value_or(start);
}

PrintChoice SimulatedBoxes::ChoosePrinter() {
  const PrintChoice answer = Next(printAnswers, PrintChoice{});
  std::string told = "ok " + std::to_string(answer.copies);
  if (answer.error == kPrintCancelled) {
    told = "cancel";
  } else if (answer.error != 0) {
    told = "error " + std::to_string(answer.error);
  }
  log_->Add("print-dialog " + told);
  return answer;
}

}  // namespace veldrin
