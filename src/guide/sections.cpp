#include "guide/sections.h"

namespace veldrin {

// clang-format off
const std::vector<GuideSection>& GuideSections() {
  static const std::vector<GuideSection> sections = {
      {"Form1",  "",           "start"},
      {"Form2",  "Picture13",  "header"},
      {"Form2",  "Command4",   "header"},
      {"Form2",  "Command5",   "header"},
      {"Form2",  "Picture19",  "chart"},
      {"Form2",  "Picture1",   "priority"},
      {"Form2",  "Picture2",   "plan-panel"},
      {"Form2",  "Picture3",   "plan-panel"},
      {"Form2",  "Picture4",   "request-panel"},
      {"Form2",  "Picture30",  "revolutions-panel"},
      {"Form2",  "Picture12",  "plan-panel"},
      {"Form2",  "Picture29",  "scroll-bars"},
      {"Form2",  "HScroll1",   "scroll-bars"},
      {"Form2",  "HScroll2",   "scroll-bars"},
      {"Form2",  "Label13",    "remark"},
      {"Form2",  "Text6",      "remark"},
      {"Form2",  "Label23",    "search"},
      {"Form2",  "Picture9",   "combination"},
      {"Form2",  "Picture23",  "pick-lists"},
      {"Form2",  "Picture24",  "pick-lists"},
      {"Form2",  "Picture20",  "decision-panel"},
      {"Form2",  "menu_file",  "menus"},
      {"Form2",  "menu_edit",  "menus"},
      {"Form2",  "menu_f",     "menus"},
      {"Form2",  "menu_opt",   "menus"},
      {"Form2",  "",           "main-window"},
      {"Form3",  "",           "file-chooser"},
      {"Form4",  "",           "plan-dialog"},
      {"Form5",  "Picture3",   "compare-append"},
      {"Form5",  "",           "compare"},
      {"Form7",  "",           "settings"},
      {"Form9",  "",           "colours"},
      {"Form10", "",           "about"},
  };
  return sections;
}
// clang-format on

namespace {

/// The section of the control itself, or of the whole window for an empty name.
std::string_view SectionNamed(std::string_view window, std::string_view control) {
  for (const GuideSection& section : GuideSections()) {
    if (section.window == window && section.control == control) return section.name;
  }
  return {};
}

}  // namespace

std::string_view SectionOf(const Window& window, const Control* control) {
  for (; control != nullptr && control != &window; control = control->parent) {
    const std::string_view section = SectionNamed(window.name, control->name);
    if (!section.empty()) return section;
  }
  return SectionNamed(window.name, "");
}

}  // namespace veldrin
