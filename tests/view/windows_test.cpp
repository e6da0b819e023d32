// Windows between loading and unloading, and which of them is active.
#include "tests/view/told_desk.h"

namespace veldrin {
namespace {

struct Plain : Window {
  explicit Plain(Desk& theDesk, const char* windowName, bool withMenu = false, bool withFrame = true)
      : Window(theDesk, windowName, {30, 60, 3000, 2000}, {.caption = "Plain window"}, withMenu, withFrame) {}
};

struct DeskWindows : ToldDesk {
  Plain a{desk, "A"};
  Plain b{desk, "B"};
  Plain c{desk, "C"};
};

TEST_F(DeskWindows, AreAnnouncedBeforeTheirLoadEventAndOnce) {
  bool loadedInside = false;
  a.Load.Bind([&](int) { loadedInside = a.loaded; });
  EXPECT_FALSE(a.loaded);
  a.LoadWindow();
  EXPECT_EQ(Told(), "loaded A\nevent A.Load\n");
  EXPECT_TRUE(loadedInside);
  EXPECT_FALSE(a.Visible);
  a.LoadWindow();
  EXPECT_EQ(Told(), "");
}

TEST_F(DeskWindows, BeginHiddenEnabledAndWhereTheyWereDesigned) {
  EXPECT_FALSE(a.Visible);
  EXPECT_TRUE(a.Enabled);
  EXPECT_FALSE(a.isModal);
  EXPECT_FALSE(a.closeRefused);
  EXPECT_EQ(a.focus, nullptr);
  EXPECT_EQ(a.Caption, "Plain window");
  EXPECT_EQ(a.WindowState.get(), 0);
  EXPECT_EQ(a.Left.get(), 30);
  EXPECT_EQ(a.Top.get(), 60);
  EXPECT_EQ(a.Width.get(), 3000);
  EXPECT_EQ(a.Height.get(), 2000);
  EXPECT_EQ(desk.active, nullptr);
}

TEST_F(DeskWindows, AreSmallerInsideByTheirFrame) {
  EXPECT_TRUE(a.hasFrame);
  EXPECT_FALSE(a.hasMenu);
  EXPECT_EQ(a.InnerWidth(), 3000 - 120);
  EXPECT_EQ(a.InnerHeight(), 2000 - 405);
  const Plain withMenu(desk, "M", true);
  EXPECT_EQ(withMenu.InnerHeight(), 2000 - 690);
  const Plain bare(desk, "F", false, false);
  EXPECT_EQ(bare.InnerWidth(), 3000);
  EXPECT_EQ(bare.InnerHeight(), 2000);
}

TEST_F(DeskWindows, ShowingLoadsThenMakesVisibleThenActive) {
  a.Show();
  EXPECT_EQ(Told(), "loaded A\nevent A.Load\nwrite A.Visible True\nevent A.Activate\n");
  EXPECT_EQ(desk.active, &a);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&a}));
  a.Show();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&a}));
}

TEST_F(DeskWindows, TheOneBeforeLosesActivityFirst) {
  a.Show();
  b.LoadWindow();
  Forget();
  b.Show();
  EXPECT_EQ(Told(), "write B.Visible True\nevent A.Deactivate\nevent B.Activate\n");
  EXPECT_EQ(desk.active, &b);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&b, &a}));
}

TEST_F(DeskWindows, ShowingOneThatIsShownBringsItToTheFront) {
  a.Show();
  b.Show();
  Forget();
  a.Show();
  EXPECT_EQ(Told(), "event B.Deactivate\nevent A.Activate\n");
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&a, &b}));
  b.BringToFront();
  EXPECT_EQ(Told(), "event A.Deactivate\nevent B.Activate\n");
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&b, &a}));
}

TEST_F(DeskWindows, HiddenOnesDoNotComeToTheFront) {
  a.Show();
  b.LoadWindow();
  Forget();
  b.ComeToFront();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.active, &a);
}

TEST_F(DeskWindows, HidingTheActiveOneHandsActivityToTheNext) {
  a.Show();
  b.Show();
  c.Show();
  Forget();
  c.Hide();
  EXPECT_EQ(Told(), "write C.Visible False\nevent C.Deactivate\nevent B.Activate\n");
  EXPECT_EQ(desk.active, &b);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&b, &a}));
}

TEST_F(DeskWindows, HidingAnotherLeavesActivityWhereItIs) {
  a.Show();
  b.Show();
  Forget();
  a.Hide();
  EXPECT_EQ(Told(), "write A.Visible False\n");
  EXPECT_EQ(desk.active, &b);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&b}));
  b.Hide();
  EXPECT_EQ(Told(), "write B.Visible False\nevent B.Deactivate\n");
  EXPECT_EQ(desk.active, nullptr);
  EXPECT_TRUE(desk.shown.empty());
}

TEST_F(DeskWindows, OneThatIsShownAgainByItsOwnDeactivateKeepsActivity) {
  a.Show();
  b.Show();
  b.Deactivate.Bind([&](int) { b.Show(); });
  Forget();
  b.Hide();
  EXPECT_EQ(Told(), "write B.Visible False\nevent B.Deactivate\nwrite B.Visible True\nevent B.Activate\n");
  EXPECT_EQ(desk.active, &b);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&b, &a}));
}

TEST_F(DeskWindows, OneThatIsHiddenWhileAnotherGivesWayStaysHidden) {
  a.Show();
  a.Deactivate.Bind([&](int) { b.Hide(); });
  b.LoadWindow();
  Forget();
  b.Show();
  EXPECT_EQ(Told(), "write B.Visible True\nevent A.Deactivate\nwrite B.Visible False\nevent A.Activate\n");
  EXPECT_EQ(desk.active, &a);
  EXPECT_EQ(desk.shown, (std::vector<Window*>{&a}));
}

TEST_F(DeskWindows, OnlyTheActiveOneLosesActivity) {
  a.Show();
  b.Show();
  Forget();
  a.LoseActivity();
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(desk.active, &b);
  b.Deactivate.Bind([&](int) { EXPECT_EQ(desk.active, nullptr); });
  b.LoseActivity();
  EXPECT_EQ(Told(), "event B.Deactivate\n");
  EXPECT_EQ(desk.active, nullptr);
  a.ComeToFront();
  EXPECT_EQ(Told(), "event A.Activate\n");
}

TEST_F(DeskWindows, UnloadingAsksThenUnloadsThenHides) {
  int reason = -1;
  bool loadedInside = false;
  a.QueryUnload.Bind([&](int argument) { reason = argument; });
  a.Unload.Bind([&](int) { loadedInside = a.loaded && a.Visible; });
  a.Deactivate.Bind([&](int) { EXPECT_TRUE(a.loaded); });
  a.Show();
  Forget();
  EXPECT_TRUE(a.UnloadWindow());
  EXPECT_EQ(Told(),
            "event A.QueryUnload\nevent A.Unload\nwrite A.Visible False\nevent A.Deactivate\nunloaded A\n");
  EXPECT_EQ(reason, 1) << "code asks unless told otherwise";
  EXPECT_TRUE(loadedInside);
  EXPECT_FALSE(a.loaded);
}

TEST_F(DeskWindows, TheReasonOfAnUnloadIsItsNumber) {
  int reason = -1;
  a.QueryUnload.Bind([&](int argument) { reason = argument; });
  a.LoadWindow();
  a.UnloadWindow(CloseReason::User);
  EXPECT_EQ(reason, 0);
  a.LoadWindow();
  a.UnloadWindow(CloseReason::SessionEnd);
  EXPECT_EQ(reason, 2);
}

TEST_F(DeskWindows, WhatIsNotLoadedUnloadsWithoutAWord) {
  EXPECT_TRUE(a.UnloadWindow());
  EXPECT_EQ(Told(), "");
}

TEST_F(DeskWindows, RefusedUnloadLeavesTheWindowAndIsForgottenNextTime) {
  bool refuse = true;
  a.QueryUnload.Bind([&](int) {
    if (refuse) a.closeRefused = true;
  });
  a.Show();
  Forget();
  EXPECT_FALSE(a.UnloadWindow());
  EXPECT_EQ(Told(), "event A.QueryUnload\n");
  EXPECT_TRUE(a.loaded);
  EXPECT_TRUE(a.Visible);
  EXPECT_EQ(desk.active, &a);
  refuse = false;
  EXPECT_TRUE(a.UnloadWindow());
  EXPECT_FALSE(a.loaded);
}

TEST_F(DeskWindows, TheRecordIsLetGoBehindEverythingElse) {
  int released = 0;
  a.release = [&] {
    ++released;
    EXPECT_FALSE(a.loaded);
    windows.lines << "released\n";
  };
  a.LoadWindow();
  Forget();
  a.UnloadWindow();
  EXPECT_EQ(Told(), "event A.QueryUnload\nevent A.Unload\nwrite A.Visible False\nunloaded A\nreleased\n");
  EXPECT_EQ(released, 1);
}

TEST_F(DeskWindows, CanBeLoadedAgain) {
  a.Show();
  a.UnloadWindow();
  Forget();
  a.Show();
  EXPECT_EQ(Told(), "loaded A\nevent A.Load\nwrite A.Visible True\nevent A.Activate\n");
}

TEST_F(DeskWindows, DragOfTheFrameIsOneResize) {
  a.SetSize(4000, 2500);
  EXPECT_EQ(Told(), "write A.Width 4000\nwrite A.Height 2500\nevent A.Resize\n");
  a.SetSize(4000, 2500);
  EXPECT_EQ(Told(), "write A.Width 4000\nwrite A.Height 2500\n");
  a.SetSize(4100, 2500);
  EXPECT_EQ(Told(), "write A.Width 4100\nwrite A.Height 2500\nevent A.Resize\n");
  a.SetSize(4100, 2600);
  EXPECT_EQ(Told(), "write A.Width 4100\nwrite A.Height 2600\nevent A.Resize\n");
}

TEST_F(DeskWindows, SizeAndStateThatCodeWritesResizeEach) {
  a.Width = 3100;
  a.Height = 2100;
  EXPECT_EQ(Told(), "write A.Width 3100\nevent A.Resize\nwrite A.Height 2100\nevent A.Resize\n");
  a.WindowState = 2;
  EXPECT_EQ(Told(), "write A.WindowState maximised\nevent A.Resize\n");
  a.WindowState = 2;
  a.Left = 0;
  a.Top = 0;
  a.Caption = "Other";
  a.Enabled = false;
  EXPECT_EQ(Told(),
            "write A.WindowState maximised\nwrite A.Left 0\nwrite A.Top 0\nwrite A.Caption \"Other\"\n"
            "write A.Enabled False\n");
}

TEST_F(DeskWindows, AreFoundByWalking) {
  EXPECT_EQ(a.kind, ControlKind::Window);
  EXPECT_EQ(a.parent, nullptr);
  EXPECT_EQ(&a.window, &a);
  EXPECT_EQ(a.FullName(), "A");
  EXPECT_EQ(a.IndexedName(), "A");
  EXPECT_EQ(a.ZOrder(), 0);
  for (const char* slot :
       {"Visible", "Enabled", "Left", "Top", "Width", "Height", "BackColor", "ForeColor", "FontName",
        "FontSize", "FontBold", "FontItalic", "MousePointer", "Caption", "WindowState"}) {
    EXPECT_NE(a.FindSlot(slot), nullptr) << slot;
  }
  EXPECT_EQ(a.slots.size(), 15U);
  Event* const events[] = {&a.Load,     &a.QueryUnload, &a.Unload,   &a.Resize,
                           &a.Activate, &a.Deactivate,  &a.MouseDown};
  const char* const names[] = {"Load",     "QueryUnload", "Unload",   "Resize",
                               "Activate", "Deactivate",  "MouseDown"};
  for (std::size_t k = 0; k < std::size(names); ++k) EXPECT_EQ(a.FindEvent(names[k]), events[k]) << names[k];
  EXPECT_EQ(a.events.size(), std::size(names));
  EXPECT_EQ(a.FindSlot("Text"), nullptr);
  EXPECT_EQ(a.FindEvent("Click"), nullptr);
}

}  // namespace
}  // namespace veldrin
