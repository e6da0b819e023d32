#include "view/forms/form7.h"

#include <algorithm>

namespace veldrin {

Form7::Form7(Desk& theDesk)
    : Window(theDesk, "Form7", {0, 0, 9600, 6000}, {.caption = "初期設定", .english = "Initialize"}) {}

ControlArray<Label>::Maker Form7::Pair(const char* arrayName, const Place& captionPlace, const Look& caption,
                                       const Place& secondPlace, const Look& second) {
  const auto captions = Elements<Label>(arrayName, *this, At(captionPlace), caption);
  return Split(captions, 1, Elements<Label>(arrayName, *this, At(secondPlace), second));
}

std::unique_ptr<ComboBox> Form7::MakeList(const char* arrayName, const std::vector<Choice>& choices,
                                          int index) {
  const auto is = [index](const Choice& choice) { return choice.index == index; };
  const Choice& choice = *std::find_if(choices.begin(), choices.end(), is);
  return std::make_unique<ComboBox>(arrayName, *this, choice.place, Look{.back = kWhite}, choice.entries,
                                    choice.canEdit);
}

ControlArray<ComboBox>::Maker Form7::Choices(const char* arrayName, const std::vector<Choice>& choices) {
  return [=, this](int index) { return MakeList(arrayName, choices, index); };
}

Form7::~Form7() = default;

}  // namespace veldrin
