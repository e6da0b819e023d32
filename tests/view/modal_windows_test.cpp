// Modal windows, and windows whose record comes and goes.
#include "tests/view/told_desk.h"

#include <memory>

namespace veldrin {
namespace {

struct Plain : Window {
  explicit Plain(Desk& theDesk, const char* windowName = "Plain")
      : Window(theDesk, windowName, {0, 0, 3000, 2000}, {}) {}

  Button Close{"Close", *this, {0, 0, 900, 300}};
};

struct ModalWindows : ToldDesk {
  Plain back{desk, "Back"};
  Plain dialog{desk, "Dialog"};
  Plain inner{desk, "Inner"};

  ModalWindows() { back.Show(); }
};

TEST_F(ModalWindows, HoldTheCallerUntilTheyAreHidden) {
  int loops = 0;
  windows.modalLoop = [&](Window& window) {
    ++loops;
    EXPECT_EQ(&window, &dialog);
    EXPECT_TRUE(dialog.isModal);
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(desk.active, &dialog);
    EXPECT_EQ(desk.modal, (std::vector<Window*>{&dialog}));
    dialog.Hide();
    EXPECT_TRUE(desk.modal.empty());
    EXPECT_EQ(desk.active, &back);
  };
  Forget();
  dialog.ShowModal();
  EXPECT_EQ(loops, 1);
  EXPECT_FALSE(dialog.isModal);
  EXPECT_TRUE(dialog.loaded);
  EXPECT_EQ(Told(),
            "loaded Dialog\nevent Dialog.Load\nwrite Dialog.Visible True\nevent Back.Deactivate\n"
            "event Dialog.Activate\nevent Dialog.Close.GotFocus\nmodal Dialog\nwrite Dialog.Visible False\n"
            "event Dialog.Deactivate\nevent Back.Activate\n");
}

TEST_F(ModalWindows, KeepWhatIsShownMeanwhileBehindThem) {
  Plain late(desk, "Late");
  windows.modalLoop = [&](Window&) {
    Forget();
    late.Show();
    EXPECT_EQ(Told(), "loaded Late\nevent Late.Load\nwrite Late.Visible True\nevent Late.Close.GotFocus\n");
    EXPECT_EQ(desk.active, &dialog);
    EXPECT_EQ(desk.shown, (std::vector<Window*>{&dialog, &back, &late}));
    back.Show();
    EXPECT_EQ(Told(), "");
    EXPECT_EQ(desk.active, &dialog);
    dialog.Hide();
  };
  dialog.ShowModal();
  EXPECT_EQ(desk.active, &back);
}

TEST_F(ModalWindows, LieOverEachOther) {
  windows.modalLoop = [&](Window& window) {
    if (&window == &dialog) {
      inner.ShowModal();
      EXPECT_EQ(desk.active, &dialog);
      EXPECT_EQ(desk.modal, (std::vector<Window*>{&dialog}));
      EXPECT_TRUE(dialog.isModal);
    } else {
      EXPECT_EQ(desk.modal, (std::vector<Window*>{&dialog, &inner}));
      EXPECT_EQ(desk.active, &inner);
      dialog.ComeToFront();
      EXPECT_EQ(desk.active, &inner);
    }
    window.Hide();
  };
  dialog.ShowModal();
  EXPECT_TRUE(desk.modal.empty());
  EXPECT_EQ(desk.active, &back);
}

TEST_F(ModalWindows, ShownModallyAgainComeToTheFrontAndReturnAtOnce) {
  int loops = 0;
  windows.modalLoop = [&](Window&) {
    ++loops;
    dialog.LoseActivity();
    Forget();
    dialog.ShowModal();
    EXPECT_EQ(Told(), "event Dialog.Activate\n");
    EXPECT_TRUE(dialog.isModal);
    EXPECT_EQ(desk.modal, (std::vector<Window*>{&dialog}));
    dialog.Hide();
  };
  dialog.ShowModal();
  EXPECT_EQ(loops, 1);
}

TEST_F(ModalWindows, AreLoadedBeforeTheyAreModal) {
  windows.modalLoop = [&](Window&) { dialog.Hide(); };
  dialog.Load.Bind([&](int) {
    EXPECT_FALSE(dialog.isModal);
    EXPECT_TRUE(desk.modal.empty());
    inner.Show();
    EXPECT_EQ(desk.active, &inner) << "what is shown while they load comes to the front";
  });
  dialog.ShowModal();
  EXPECT_EQ(desk.active, &inner);
}

TEST_F(ModalWindows, ShownBeforeBecomeModal) {
  dialog.Show();
  int loops = 0;
  windows.modalLoop = [&](Window&) {
    ++loops;
    dialog.Hide();
  };
  dialog.ShowModal();
  EXPECT_EQ(loops, 1);
}

TEST_F(ModalWindows, ShownAgainBeforeTheLoopEndsRunALoopOfTheirOwn) {
  int loops = 0;
  windows.modalLoop = [&](Window&) {
    ++loops;
    dialog.Hide();
    if (loops == 1) dialog.ShowModal();
  };
  dialog.ShowModal();
  EXPECT_EQ(loops, 2);
  EXPECT_FALSE(dialog.Visible);
  EXPECT_FALSE(dialog.isModal);
}

TEST_F(ModalWindows, HiddenByTheirOwnActivateRunNoLoop) {
  dialog.Activate.Bind([&](int) { dialog.Hide(); });
  dialog.ShowModal();
  EXPECT_EQ(Told().find("modal"), std::string::npos);
  EXPECT_FALSE(dialog.isModal);
  EXPECT_TRUE(desk.modal.empty());
  EXPECT_EQ(desk.active, &back);
}

TEST_F(ModalWindows, EndByBeingUnloadedToo) {
  windows.modalLoop = [&](Window&) { dialog.UnloadWindow(); };
  dialog.ShowModal();
  EXPECT_FALSE(dialog.loaded);
  EXPECT_FALSE(dialog.isModal);
  EXPECT_TRUE(desk.modal.empty());
  EXPECT_EQ(desk.active, &back);
}

struct TransientWindows : ToldDesk {
  TransientWindow<Plain> window{desk};
};

TEST_F(TransientWindows, HaveARecordOnlyWhileTheyAreLoaded) {
  EXPECT_FALSE(window);
  EXPECT_EQ(window.operator->(), nullptr);
  Plain& record = window.Load();
  EXPECT_TRUE(window);
  EXPECT_EQ(&*window, &record);
  EXPECT_EQ(window.operator->(), &record);
  EXPECT_TRUE(record.loaded);
  EXPECT_EQ(Told(), "loaded Plain\nevent Plain.Load\n");
  EXPECT_EQ(&window.Load(), &record);
  EXPECT_EQ(Told(), "");
  window->UnloadWindow();
  EXPECT_FALSE(window);
}

TEST_F(TransientWindows, EventsAreBoundBeforeTheFirstOfThemFires) {
  int loads = 0;
  window.attach = [&](Plain& form) { form.Load.Bind([&](int) { ++loads; }); };
  window.Load();
  EXPECT_EQ(loads, 1);
  window->UnloadWindow();
  window.Load();
  EXPECT_EQ(loads, 2) << "each record anew";
}

TEST_F(TransientWindows, TheRecordOutlivesTheEventThatUnloadsIt) {
  window.attach = [&](Plain& form) { form.Close.Click.Bind([&](int) { form.UnloadWindow(); }); };
  Plain& record = window.Load();
  record.Show();
  record.Close.Click();
  EXPECT_FALSE(window);
  EXPECT_EQ(desk.retired.size(), 1U);
  EXPECT_FALSE(record.loaded) << "still there to be asked";
  EXPECT_TRUE(desk.shown.empty());
  EXPECT_NE(&window.Load(), &record);
  const std::weak_ptr<void> retired = desk.retired.front();
  desk.retired.clear();
  EXPECT_TRUE(retired.expired());
}

TEST_F(TransientWindows, RefusedUnloadKeepsTheRecord) {
  window.attach = [&](Plain& form) { form.QueryUnload.Bind([&](int) { form.closeRefused = true; }); };
  window.Load();
  EXPECT_FALSE(window->UnloadWindow());
  EXPECT_TRUE(window);
  EXPECT_TRUE(desk.retired.empty());
}

}  // namespace
}  // namespace veldrin
