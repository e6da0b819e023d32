#include "simulated/simulated_clock.h"

#include "runtime/fault.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

struct TimerForm : Window {
  TimerForm(Desk& theDesk, const char* name) : Window(theDesk, name, {0, 0, 1000, 1000}, {}) {}

  TimerControl Timer1{"Timer1", *this, 100};
  TimerControl Timer2{"Timer2", *this, 250};
};

struct SimulatedClockTest : testing::Test {
  SimulatedMachine simulated;
  Desk desk{simulated.machine};
  TimerForm first{desk, "First"};
  TimerForm second{desk, "Second"};
  std::string fired;

  SimulatedClockTest() {
    for (TimerForm* form : {&first, &second}) {
      for (TimerControl* timer : {&form->Timer1, &form->Timer2}) Note(*timer);
    }
  }

  /// Notes when the timer fires, then does `also`.
  void Note(TimerControl& timer, const std::function<void()>& also = nullptr) {
    timer.Timer.Bind([this, &timer, also](int) {
      fired += timer.FullName() + "@" + std::to_string(simulated.clock.Now()) + " ";
      if (also) also();
    });
  }

  std::string Advance(int milliseconds) {
    fired.clear();
    simulated.clock.Advance(milliseconds, [](TimerControl& timer) { timer.Timer(); });
    return fired;
  }
};

TEST_F(SimulatedClockTest, PeriodicTimerFiresAgainEachInterval) {
  first.LoadWindow();
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(99), "");
  EXPECT_EQ(Advance(1), "First.Timer1@100 ");
  EXPECT_EQ(Advance(250), "First.Timer1@200 First.Timer1@300 ");
  EXPECT_EQ(simulated.clock.Now(), 350);
}

TEST_F(SimulatedClockTest, TimersFireInTheOrderOfTheirTime) {
  first.LoadWindow();
  first.Timer2.Enabled = true;
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(300), "First.Timer1@100 First.Timer1@200 First.Timer2@250 First.Timer1@300 ");
}

TEST_F(SimulatedClockTest, AtTheSameTimeLoadingDecidesThenTheWindow) {
  first.Timer2.Interval = 100;
  second.LoadWindow();
  first.LoadWindow();
  first.Timer2.Enabled = true;
  first.Timer1.Enabled = true;
  second.Timer1.Enabled = true;
  EXPECT_EQ(Advance(100), "Second.Timer1@100 First.Timer1@100 First.Timer2@100 ");
}

TEST_F(SimulatedClockTest, TimerCountsFromTheLoadOfItsWindow) {
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(500), "");
  first.LoadWindow();
  EXPECT_EQ(Advance(100), "First.Timer1@600 ");
}

TEST_F(SimulatedClockTest, NewIntervalAndNewEnablingCountAfresh) {
  first.LoadWindow();
  first.Timer1.Enabled = true;
  Advance(60);
  first.Timer1.Interval = 50;
  EXPECT_EQ(Advance(60), "First.Timer1@110 ");
  first.Timer1.Enabled = false;
  EXPECT_EQ(Advance(1000), "");
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(50), "First.Timer1@1170 ");
}

TEST_F(SimulatedClockTest, WriteOfTheSameValueDoesNotDisturbTheCount) {
  first.LoadWindow();
  first.Timer1.Enabled = true;
  Advance(60);
  first.Timer1.Enabled = true;
  first.Timer1.Interval = 100;
  first.Timer1.Visible = false;
  EXPECT_EQ(Advance(40), "First.Timer1@100 ");
}

TEST_F(SimulatedClockTest, IntervalOfZeroNeverFires) {
  first.LoadWindow();
  first.Timer1.Interval = 0;
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(100000), "");
  first.Timer1.Interval = 100;
  EXPECT_EQ(Advance(100), "First.Timer1@100100 ");
}

TEST_F(SimulatedClockTest, TimerThatStopsItselfFiresOnce) {
  first.LoadWindow();
  Note(first.Timer1, [&] { first.Timer1.Enabled = false; });
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(1000), "First.Timer1@100 ");
}

TEST_F(SimulatedClockTest, TimerRestartedInItsOwnEventCountsFromThere) {
  first.LoadWindow();
  Note(first.Timer1, [&] {
    first.Timer1.Enabled = false;
    if (first.Timer1.Interval < 1000) {
      first.Timer1.Interval = 1200;
      first.Timer1.Enabled = true;
    }
  });
  first.Timer1.Enabled = true;
  EXPECT_EQ(Advance(1299), "First.Timer1@100 ");
  EXPECT_EQ(Advance(1), "First.Timer1@1300 ");
  EXPECT_EQ(Advance(5000), "");
}

TEST_F(SimulatedClockTest, TimersOfUnloadedWindowsNeverFire) {
  first.LoadWindow();
  second.LoadWindow();
  first.Timer1.Enabled = true;
  second.Timer1.Enabled = true;
  Note(first.Timer1, [&] { second.UnloadWindow(); });
  EXPECT_EQ(Advance(100), "First.Timer1@100 ");
  first.UnloadWindow();
  EXPECT_EQ(Advance(1000), "");
}

TEST_F(SimulatedClockTest, WindowLoadedByAnEventTakesPart) {
  first.LoadWindow();
  second.Timer2.Enabled = true;
  first.Timer1.Enabled = true;
  Note(first.Timer1, [&] {
    first.Timer1.Enabled = false;
    second.LoadWindow();
  });
  EXPECT_EQ(Advance(400), "First.Timer1@100 Second.Timer2@350 ");
}

TEST_F(SimulatedClockTest, AdvanceGoesOnInsideAModalWindow) {
  first.LoadWindow();
  first.Timer2.Enabled = true;
  Note(first.Timer1, [&] {
    first.Timer1.Enabled = false;
    second.ShowModal();
    fired += "hidden@" + std::to_string(simulated.clock.Now()) + " ";
  });
  first.Timer1.Enabled = true;
  simulated.windows.modalLoop = [&](Window& window) {
    fired += "loop@" + std::to_string(simulated.clock.Now()) + " ";
    simulated.clock.Advance(500, [](TimerControl& timer) { timer.Timer(); });
    window.Hide();
  };
  EXPECT_EQ(Advance(300),
            "First.Timer1@100 First.Timer2@250 loop@300 First.Timer2@500 First.Timer2@750 hidden@800 ");
  EXPECT_EQ(simulated.clock.Now(), 800);
  EXPECT_EQ(Advance(200), "First.Timer2@1000 ");
}

TEST_F(SimulatedClockTest, ModalWindowThatATimerHidesRunsNoLoop) {
  Note(first.Timer2, [&] { second.Hide(); });
  Note(first.Timer1, [&] {
    first.Timer1.Enabled = false;
    second.ShowModal();
  });
  simulated.windows.modalLoop = [&](Window&) { fired += "loop "; };
  first.LoadWindow();
  first.Timer1.Enabled = true;
  first.Timer2.Enabled = true;
  EXPECT_EQ(Advance(260), "First.Timer1@100 First.Timer2@250 ");
}

TEST_F(SimulatedClockTest, WhatAnEventThrowsPassesAndTheClockStaysThere) {
  first.LoadWindow();
  first.Timer1.Enabled = true;
  Note(first.Timer1, [] { throw EndOfProgram{}; });
  EXPECT_THROW(Advance(1000), EndOfProgram);
  EXPECT_EQ(simulated.clock.Now(), 100);
  simulated.windows.Forget();
  EXPECT_EQ(Advance(1000), "");
  EXPECT_EQ(simulated.clock.Now(), 1100);
}

TEST_F(SimulatedClockTest, ForgettingInsideAnEventFiresNothingMore) {
  first.LoadWindow();
  first.Timer1.Enabled = true;
  Note(first.Timer1, [&] { simulated.windows.Forget(); });
  EXPECT_EQ(Advance(1000), "First.Timer1@100 ");
}

}  // namespace
}  // namespace veldrin
