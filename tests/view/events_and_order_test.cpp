// Slots and events by themselves, and the stacking order of controls.
#include "tests/view/told_desk.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}

  Label Back{"Back", *this, {}};
  Picture Panel{"Panel", *this, {}};
  Label Inside{"Inside", Panel, {}};
  Label Front{"Front", *this, {}};
  Menu First{"First", *this, "First"};
  Menu Second{"Second", *this, "Second"};
};

struct EventsAndOrder : ToldDesk {
  Form form{desk};
};

TEST_F(EventsAndOrder, AnEventIsToldBeforeItsHandlerRuns) {
  int argument = 0;
  form.Back.MouseDown.Bind([&](int given) {
    argument = given;
    form.Back.Left = 1;
  });
  form.Back.MouseDown(kRightButton);
  EXPECT_EQ(Told(), "event Form.Back.MouseDown\nwrite Form.Back.Left 1\n");
  EXPECT_EQ(argument, 2);
  form.Back.MouseUp();
  EXPECT_EQ(Told(), "event Form.Back.MouseUp\n") << "also without one";
}

TEST_F(EventsAndOrder, AnEventWithoutArgumentHandsOnZero) {
  int argument = 7;
  form.Back.Click.Bind([&](int given) { argument = given; });
  form.Back.Click();
  EXPECT_EQ(argument, 0);
}

TEST_F(EventsAndOrder, FaultsOfAHandlerPassThrough) {
  form.Back.Click.Bind([](int) { Raise(kFaultOverflow); });
  EXPECT_EQ(FaultOf([&] { form.Back.Click(); }), kFaultOverflow);
}

TEST_F(EventsAndOrder, AnEventCountsItsHandlers) {
  EXPECT_EQ(form.Back.Click.Claims(), 0);
  form.Back.Click.Bind([](int) {});
  EXPECT_EQ(form.Back.Click.Claims(), 1);
  form.Back.Click.Bind([](int) {});
  EXPECT_EQ(form.Back.Click.Claims(), 2);
}

TEST_F(EventsAndOrder, ADesignedValueIsToldToNobody) {
  form.Back.Caption.Design("1ST");
  EXPECT_EQ(form.Back.Caption, "1ST");
  EXPECT_EQ(Told(), "");
}

TEST_F(EventsAndOrder, AControlsOwnBookkeepingIsToldButFiresNothing) {
  EXPECT_TRUE(form.Back.Caption.Put("1ST"));
  EXPECT_EQ(Told(), "write Form.Back.Caption \"1ST\"\n");
  EXPECT_FALSE(form.Back.Caption.Put("1ST"));
}

TEST_F(EventsAndOrder, SlotsReadAndJoinLikeTheirValues) {
  form.Back.Caption = "98";
  form.Front.Caption = form.Back.Caption;
  EXPECT_EQ(form.Front.Caption, "98");
  EXPECT_FALSE(form.Front.Caption == "9");
  EXPECT_EQ(form.Front.Caption + " km/h", "98 km/h");
  EXPECT_EQ("about " + form.Front.Caption, "about 98");
  EXPECT_EQ(std::string(form.Front.Caption.Name()), "Caption");
}

struct UnwatchedWindows : TellingWindows {
  using TellingWindows::TellingWindows;
  bool IsWatching() const override { return false; }
};

TEST_F(EventsAndOrder, WhoDoesNotWatchIsToldNoWrites) {
  UnwatchedWindows unwatched(simulated);
  Machine other = MachineWith(simulated, unwatched);
  Desk itsDesk{other};
  Form its(itsDesk);
  its.Back.Caption = "1ST";
  EXPECT_EQ(unwatched.lines.str(), "event Form.Back.Change\n");
}

TEST_F(EventsAndOrder, WhatIsMadeLaterLiesInFrontButForMenus) {
  EXPECT_EQ(form.children,
            (std::vector<Control*>{&form.Front, &form.Panel, &form.Back, &form.First, &form.Second}));
  EXPECT_EQ(form.Front.ZOrder(), 0);
  EXPECT_EQ(form.Back.ZOrder(), 2);
  EXPECT_EQ(form.Second.ZOrder(), 4);
  EXPECT_EQ(form.Inside.ZOrder(), 0) << "among those of its own panel";
  EXPECT_EQ(form.Inside.parent, &form.Panel);
  EXPECT_EQ(&form.Inside.window, &form);
}

/// Keeps whether the last write changed something.
struct ChangedWindows : TellingWindows {
  using TellingWindows::TellingWindows;
  bool changed = false;
  void SlotWritten(Control& /*control*/, const char* slot, bool hasChanged) override {
    if (std::string(slot) == "ZOrder") changed = hasChanged;
  }
};

TEST_F(EventsAndOrder, BroughtToTheFrontTheOthersKeepTheirOrder) {
  form.Back.BringToFront();
  EXPECT_EQ(Told(), "write Form.Back.ZOrder 0\n");
  EXPECT_EQ(form.children,
            (std::vector<Control*>{&form.Back, &form.Front, &form.Panel, &form.First, &form.Second}));
  form.Front.BringToFront();
  EXPECT_EQ(form.children,
            (std::vector<Control*>{&form.Front, &form.Back, &form.Panel, &form.First, &form.Second}));
}

TEST_F(EventsAndOrder, WhatIsInFrontAlreadyChangesNothingThere) {
  ChangedWindows watching(simulated);
  Machine other = MachineWith(simulated, watching);
  Desk itsDesk{other};
  Form its(itsDesk);
  its.Back.BringToFront();
  EXPECT_TRUE(watching.changed);
  its.Back.BringToFront();
  EXPECT_FALSE(watching.changed);
  its.Show();
  EXPECT_TRUE(watching.changed) << "a window that comes to the front";
}

TEST_F(EventsAndOrder, AreFoundByTheirNames) {
  EXPECT_EQ(form.Back.FindEvent("DblClick"), &form.Back.DblClick);
  EXPECT_EQ(form.Back.FindEvent("KeyDown"), nullptr);
  const AnySlot* const slot = form.Back.FindSlot("Caption");
  ASSERT_NE(slot, nullptr);
  EXPECT_EQ(std::get<Slot<std::string>*>(*slot), &form.Back.Caption);
  EXPECT_EQ(form.Back.FindSlot("Text"), nullptr);
}

}  // namespace
}  // namespace veldrin
