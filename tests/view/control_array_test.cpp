// Control arrays: which elements there are, and where new ones stand.
#include "tests/view/told_desk.h"
#include "view/bind.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}

  ControlArray<Label> Label1{
      1, 3, Elements<Label>("Label1", *this, GearColumn(45, 390, 255), {.caption = "-"}, {"", "1ST", "2ND"})};
  Button Between{"Between", *this, {}};
  ControlArray<Button> Command1{{0, 2, 5}, Elements<Button>("Command1", *this, GearColumn(0, 1, 1))};
  Menu menu_file{"menu_file", *this, "File"};
  Menu menu_open{"menu_open", menu_file, "Open"};
  ControlArray<Menu> menu_files{0, 0,
                                [this](int) { return std::make_unique<Menu>("menu_files", menu_file, ""); }};
  Menu menu_quit{"menu_quit", menu_file, "Quit"};
};

struct ControlArrays : ToldDesk {
  Form form{desk};

  static std::string Names(const std::vector<Control*>& controls) {
    std::string names;
    for (const Control* control : controls) names += (names.empty() ? "" : " ") + control->IndexedName();
    return names;
  }
};

TEST_F(ControlArrays, HaveTheElementsThatTheyWereMadeWith) {
  EXPECT_EQ(form.Label1.Elements().size(), 3U);
  EXPECT_FALSE(form.Label1.Has(0));
  EXPECT_TRUE(form.Label1.Has(1));
  EXPECT_TRUE(form.Label1.Has(3));
  EXPECT_FALSE(form.Label1.Has(4));
  EXPECT_EQ(form.Command1.Elements().size(), 3U) << "subscripts may have gaps";
  EXPECT_TRUE(form.Command1.Has(5));
  EXPECT_FALSE(form.Command1.Has(1));
  EXPECT_EQ(form.Label1[2].index, 2);
  EXPECT_EQ(form.Label1[2].FullName(), "Form.Label1(2)");
  EXPECT_EQ(form.Between.index, Control::kNoIndex);
  EXPECT_EQ(form.Between.FullName(), "Form.Between");
  EXPECT_EQ(&std::as_const(form.Label1)[2], &form.Label1[2]);
}

TEST_F(ControlArrays, AnElementThatIsNotThereIsAFault) {
  EXPECT_EQ(FaultOf([&] { form.Label1[0].Caption = "x"; }), kFaultNoControlElement);
  EXPECT_EQ(FaultOf([&] { form.Label1[4].Caption = "x"; }), kFaultNoControlElement);
  EXPECT_EQ(FaultOf([&] { form.Command1[1].Click(); }), kFaultNoControlElement);
  EXPECT_EQ(FaultOf([&] { form.Label1.Unload(4); }), kFaultNoControlElement);
  EXPECT_EQ(form.Label1.Elements().size(), 3U);
}

TEST_F(ControlArrays, CaptionsAndPlacesComeBySubscript) {
  EXPECT_EQ(form.Label1[1].Caption, "1ST");
  EXPECT_EQ(form.Label1[2].Caption, "2ND");
  EXPECT_EQ(form.Label1[3].Caption, "-") << "without one of its own, that of the look";
  EXPECT_EQ(form.Label1[3].Left.get(), 45);
  EXPECT_EQ(form.Label1[3].Width.get(), 390);
  EXPECT_EQ(form.Label1[3].Height.get(), 255);
  EXPECT_EQ(form.Label1[3].Top.get(), 360 + 3 * 480);
  const auto negative = Elements<Label>("L", form, GearColumn(0, 1, 1), {.caption = "-"}, {"zero"})(-1);
  EXPECT_EQ(negative->Caption, "-");
}

TEST_F(ControlArrays, AColumnOfGearsHasTheSixthOnTop) {
  const auto place = GearColumn(45, 390, 255, 2640, 2280);
  EXPECT_EQ(place(6).top, 2640);
  EXPECT_EQ(place(5).top, 2640 + 480);
  EXPECT_EQ(place(1).top, 2640 + 5 * 480);
  EXPECT_EQ(place(0).top, 2280) << "the head";
  EXPECT_EQ(place(0).left, 45);
  EXPECT_EQ(place(0).width, 390);
  EXPECT_EQ(place(0).height, 255);
  EXPECT_EQ(GearColumn(0, 1, 1)(6).top, 360);
  EXPECT_EQ(GearColumn(0, 1, 1)(0).top, 0);
}

TEST_F(ControlArrays, ANewElementIsHiddenAndStandsBehindTheOneBeforeIt) {
  windows.tellsContent = true;
  Forget();
  Label& added = form.Label1.Load(4);
  EXPECT_EQ(Told(), "content Form\n");
  EXPECT_FALSE(added.Visible);
  EXPECT_EQ(added.index, 4);
  EXPECT_EQ(&added, &form.Label1[4]);
  EXPECT_EQ(Names(form.controls),
            "Label1(1) Label1(2) Label1(3) Label1(4) Between Command1(0) Command1(2) Command1(5) menu_file "
            "menu_open menu_files(0) menu_quit");
  EXPECT_EQ(added.ZOrder(), 0) << "in front of all others";
}

TEST_F(ControlArrays, AnElementThatIsThereIsNotLoadedAgain) {
  windows.tellsContent = true;
  Label& element = form.Label1[2];
  EXPECT_EQ(&form.Label1.Load(2), &element);
  EXPECT_TRUE(element.Visible);
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(form.Label1.Elements().size(), 3U);
}

TEST_F(ControlArrays, AnElementInAGapStandsBehindTheNextLowerOne) {
  form.Command1.Load(3);
  form.Command1.Load(9);
  EXPECT_EQ(
      Names(form.controls),
      "Label1(1) Label1(2) Label1(3) Between Command1(0) Command1(2) Command1(3) Command1(5) Command1(9) "
      "menu_file menu_open menu_files(0) menu_quit");
}

TEST_F(ControlArrays, AnElementBelowAllOthersStandsWhereItWasMade) {
  form.Label1.Load(0);
  EXPECT_EQ(form.controls.back(), &form.Label1[0]);
}

TEST_F(ControlArrays, MenuEntriesKeepTheOrderOfTheScreenInTheirMenu) {
  form.menu_files.Load(1);
  form.menu_files.Load(2);
  EXPECT_EQ(Names(form.menu_file.children), "menu_open menu_files(0) menu_files(1) menu_files(2) menu_quit");
}

TEST_F(ControlArrays, AnUnloadedElementIsGoneFromItsWindowAndPanel) {
  form.menu_files.Load(1);
  windows.tellsContent = true;
  Forget();
  form.menu_files.Unload(1);
  EXPECT_EQ(Told(), "content Form\n");
  EXPECT_FALSE(form.menu_files.Has(1));
  EXPECT_EQ(Names(form.menu_file.children), "menu_open menu_files(0) menu_quit");
  EXPECT_EQ(Names(form.controls),
            "Label1(1) Label1(2) Label1(3) Between Command1(0) Command1(2) Command1(5) menu_file menu_open "
            "menu_files(0) menu_quit");
  EXPECT_EQ(FaultOf([&] { form.menu_files.Unload(1); }), kFaultNoControlElement);
  EXPECT_EQ(form.menu_files.Load(1).Caption, "") << "and may come again";
}

TEST_F(ControlArrays, AnElementMayUnloadItselfInItsOwnEvent) {
  std::string seen;
  form.menu_files.ForEach([&](Menu& entry) {
    entry.Click.Bind([&](int) {
      form.menu_files.Unload(entry.index);
      seen = entry.FullName();
    });
  });
  form.menu_files.Load(1).Click();
  EXPECT_EQ(seen, "Form.menu_files(1)") << "its record is still there";
  EXPECT_EQ(desk.retired.size(), 1U);
}

TEST_F(ControlArrays, WhatIsDoneWithEachIsDoneWithThoseThatComeLater) {
  std::vector<int> bound;
  form.Label1.ForEach([&](Label& label) { bound.push_back(label.index); });
  EXPECT_EQ(bound, (std::vector<int>{1, 2, 3}));
  form.Label1.Load(4);
  form.Label1.Load(4);
  EXPECT_EQ(bound, (std::vector<int>{1, 2, 3, 4}));
}

struct Calls {
  std::vector<std::string> list;
};

void Clicked(Calls& calls) {
  calls.list.push_back("clicked");
}
void Pressed(Calls& calls, int button) {
  calls.list.push_back("pressed " + std::to_string(button));
}
void Changed(Calls& calls, int index) {
  calls.list.push_back("changed " + std::to_string(index));
}
void PressedOne(Calls& calls, int index, int button) {
  calls.list.push_back("pressed " + std::to_string(index) + " " + std::to_string(button));
}

TEST_F(ControlArrays, HandlersAreToldSubscriptAndArgument) {
  Calls calls;
  On(calls, form.Between.Click, Clicked);
  On(calls, form.Between.MouseDown, Pressed);
  OnEach(calls, form.Label1, &Label::Change, Changed);
  OnEach(calls, form.Label1, &Label::MouseUp, PressedOne);
  form.Between.Click(7);
  form.Between.MouseDown(kRightButton);
  form.Label1[2].Caption = "x";
  form.Label1[3].MouseUp(kLeftButton);
  form.Label1.Load(4).Caption = "x";
  form.Label1[4].MouseUp(kRightButton);
  EXPECT_EQ(calls.list, (std::vector<std::string>{"clicked", "pressed 2", "changed 2", "pressed 3 1",
                                                  "changed 4", "pressed 4 2"}));
}

}  // namespace
}  // namespace veldrin
