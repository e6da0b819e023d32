#include "view/hints/hints.h"

#include "view/hints/hint_table.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace veldrin {

namespace {

struct FormTable {
  std::string_view form;
  const HintRows& (*rows)();
};

constexpr FormTable kTables[] = {
    {"Form1", HintsOfForm1},     {"Form2", HintsOfForm2}, {"Form2", GearHintsOfForm2},
    {"Form2", MenuHintsOfForm2}, {"Form3", HintsOfForm3}, {"Form4", HintsOfForm4},
    {"Form5", HintsOfForm5},     {"Form7", HintsOfForm7}, {"Form9", HintsOfForm9},
    {"Form10", HintsOfForm10},
};

const HintRow* LookUpRow(const Control& control) {
  for (const FormTable& table : kTables) {
    if (control.window.name != table.form) continue;
    for (const HintRow& row : table.rows()) {
      if (row.element(control.window, control.index) == &control) return &row;
    }
  }
  return nullptr;
}

const HintRow* FindRow(const Control& control) {
  static std::map<std::tuple<std::string, std::string, int>, const HintRow*> known;
  // A window asks for all its controls whenever it settles, and the tables never change.
  const auto [place, isNew] = known.try_emplace({control.window.name, control.name, control.index});
  if (isNew) place->second = LookUpRow(control);
  return place->second;
}

void Replace(std::string& text, std::string_view mark, const std::string& word) {
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + word.size())) {
    text.replace(at, mark.size(), word);
  }
}

/// The gear of an element; where an array has two rows of gears, the second counts from 11.
int GearOf(const Control& control) {
  constexpr int kSecondRow = 10;
  return control.index % kSecondRow;
}

}  // namespace

bool CanBePointedAt(const Control& control) {
  switch (control.kind) {
    case ControlKind::Window:
    case ControlKind::Timer:
    case ControlKind::Line:
    case ControlKind::Dialog:
      return false;
    case ControlKind::Menu:
      return static_cast<const Menu&>(control).Caption != "-";
    default:
      return true;
  }
}

std::string TableHint(const Control& control, bool inJapanese) {
  const HintRow* const row = CanBePointedAt(control) ? FindRow(control) : nullptr;
  if (row == nullptr) return "";
  std::string text = inJapanese ? row->japanese : row->english;
  if (control.index == Control::kNoIndex) return text;
  Replace(text, "{gear}", GearInHints(GearOf(control), inJapanese));
  Replace(text, "{next}", GearInHints(GearOf(control) + 1, inJapanese));
  Replace(text, "{n}", std::to_string(control.index));
  return text;
}

std::string GearInHints(int gear, bool inJapanese) {
  if (inJapanese) return std::to_string(gear) + " 速";
  constexpr std::array<const char*, 4> kEndings = {"th", "st", "nd", "rd"};
  const auto place = static_cast<std::size_t>(gear);
  return std::to_string(gear) + kEndings[place < kEndings.size() ? place : 0];
}

}  // namespace veldrin
