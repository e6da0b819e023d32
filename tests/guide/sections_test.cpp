#include "guide/sections.h"

#include "tests/guide/all_windows.h"

#include <algorithm>
#include <set>

namespace veldrin {
namespace {

using Sections = AllWindows;

TEST_F(Sections, APanelAnswersForWhatIsInside) {
  EXPECT_EQ(SectionOf(form2, &form2.Text1[6]), "request-panel");
  EXPECT_EQ(SectionOf(form2, &form2.Option1[0]), "priority");
  EXPECT_EQ(SectionOf(form2, &form2.SpinButton2[3]), "revolutions-panel");
  EXPECT_EQ(SectionOf(form2, &form2.Label43), "chart");
  EXPECT_EQ(SectionOf(form2, &form2.Grid2[5]), "pick-lists");
  EXPECT_EQ(SectionOf(form2, &form2.Command9), "decision-panel");
  EXPECT_EQ(SectionOf(form2, &form2.bmp[3]), "menus");
  EXPECT_EQ(SectionOf(form5, &form5.Command4), "compare-append");
}

TEST_F(Sections, WhatHasNoneOfItsOwnBelongsToItsWindow) {
  EXPECT_EQ(SectionOf(form5, &form5.Command1), "compare");
  EXPECT_EQ(SectionOf(form3, &form3.Dir1), "file-chooser");
}

TEST_F(Sections, WithoutAControlTheWindowIsMeant) {
  EXPECT_EQ(SectionOf(form1, nullptr), "start");
  EXPECT_EQ(SectionOf(form2, nullptr), "main-window");
  EXPECT_EQ(SectionOf(form10, nullptr), "about");
  EXPECT_EQ(SectionOf(form6, nullptr), "");
}

TEST_F(Sections, EveryControlThatShowsHasOne) {
  for (const Window* window : Worked()) {
    for (const Control* control : window->controls) {
      EXPECT_NE(SectionOf(*window, control), "") << control->FullName();
    }
  }
}

/// A panel or a control that lies on the main window itself is told of by a section of its own, so that
/// nothing new there falls back to the window's unnoticed.
TEST_F(Sections, EveryPanelOfTheMainWindowHasItsOwn) {
  const std::string_view window = SectionOf(form2, nullptr);
  for (const Control* control : form2.controls) {
    const bool seen = control->kind != ControlKind::Dialog && control->kind != ControlKind::Timer;
    if (control->parent != &form2 || !seen) continue;
    EXPECT_NE(SectionOf(form2, control), window) << control->FullName();
  }
}

TEST_F(Sections, TheTableNamesControlsThatAreThere) {
  const std::vector<const Window*> all = {&form1, &form2, &form3, &form4, &form5, &form7, &form9, &form10};
  std::set<std::pair<std::string_view, std::string_view>> named;
  for (const GuideSection& section : GuideSections()) {
    const auto window =
        std::find_if(all.begin(), all.end(), [&](const Window* one) { return one->name == section.window; });
    ASSERT_NE(window, all.end()) << section.window;
    const auto& controls = (*window)->controls;
    const bool there = section.control.empty() ||
                       std::any_of(controls.begin(), controls.end(),
                                   [&](const Control* control) { return control->name == section.control; });
    EXPECT_TRUE(there) << section.window << "." << section.control;
    EXPECT_TRUE(named.emplace(section.window, section.control).second) << section.control << " stands twice";
  }
}

}  // namespace
}  // namespace veldrin
