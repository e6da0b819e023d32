#include "view/forms/form7.h"

namespace veldrin {

Form7::Form7(Desk& theDesk)
    : Window(theDesk, "Form7", {0, 0, 9600, 6000}, {.caption = "初期設定", .english = "Initialize"}) {}

ControlArray<Label>::Maker Form7::Pair(const char* arrayName, const Place& captionPlace, const Look& caption,
                                       const Place& secondPlace, const Look& second) {
  return [=, this](int i) {
    return i == 0 ? std::make_unique<Label>(arrayName, *this, captionPlace, caption)
                  : std::make_unique<Label>(arrayName, *this, secondPlace, second);
  };
}

ControlArray<ComboBox>::Maker Form7::Choices() {
  return [this](int i) {
    const auto box = [this](const Place& place, const std::vector<std::string>& list, bool canEdit) {
      return std::make_unique<ComboBox>("Combo1", *this, place, Look{.back = kWhite}, list, canEdit);
    };
    switch (i) {
      case 0:
        return box({1320, 225, 1260, 315}, {"JP", "ENGLISH"}, true);
      case 2:
        return box({1320, 810, 1260, 315}, {"YES", "NO"}, false);
      case 3:
        return box({1320, 1395, 1260, 315}, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"},
                   false);
      default:
        return box({1320, 1980, 3120, 315}, {}, false);
    }
  };
}

Form7::~Form7() = default;

}  // namespace veldrin
