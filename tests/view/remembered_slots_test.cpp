// What is remembered of a window's controls, and that putting it back fires nothing.
#include "view/remembered_slots.h"

#include "tests/view/told_desk.h"
#include "view/control_array.h"

#include <memory>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}

  TextBox Text1{"Text1", *this, {0, 0, 600, 300}};
  ScrollBar Bar{"Bar", *this, {0, 300, 600, 300}, {0, 100, 10, 1, 10}};
  Label Label1{"Label1", *this, {0, 600, 600, 300}};
  TimerControl Timer1{"Timer1", *this, 100};
  Menu menu_file{"menu_file", *this, "File"};
  ControlArray<Menu> menu_files{0, 1,
                                [this](int) { return std::make_unique<Menu>("menu_files", menu_file, ""); }};
};

struct RememberedSlotsTest : ToldDesk {
  Form form{desk};
};

TEST_F(RememberedSlotsTest, ComeBackWithoutEvents) {
  form.Text1.Text = "before";
  form.Label1.ForeColor = kRed;
  const RememberedSlots remembered(form);
  form.Text1.Text = "after";
  form.Text1.Enabled = false;
  form.Bar.Max = 50;
  form.Bar.Value = 40;
  form.Label1.ForeColor = kWhite;
  form.Label1.Visible = false;
  int changes = 0;
  form.Text1.Change.Bind([&](int) { ++changes; });
  form.Bar.Change.Bind([&](int) { ++changes; });
  remembered.PutBack(form);
  EXPECT_EQ(form.Text1.Text.get(), "before");
  EXPECT_TRUE(form.Text1.Enabled);
  EXPECT_EQ(form.Bar.Max, 100);
  EXPECT_EQ(form.Bar.Value, 10);
  EXPECT_EQ(form.Label1.ForeColor.get(), kRed);
  EXPECT_TRUE(form.Label1.Visible);
  EXPECT_EQ(changes, 0);
}

TEST_F(RememberedSlotsTest, LeavePlacesAndTimersAlone) {
  const RememberedSlots remembered(form);
  form.Text1.Left = 120;
  form.Text1.FontSize = 12;
  form.Timer1.Enabled = true;
  remembered.PutBack(form);
  EXPECT_EQ(form.Text1.Left, 120);
  EXPECT_EQ(form.Text1.FontSize, 12);
  EXPECT_TRUE(form.Timer1.Enabled);
}

TEST_F(RememberedSlotsTest, FollowElementsThatCameAndWent) {
  form.menu_files[1].Caption = "one";
  form.menu_files.Load(2).Caption = "two";
  const RememberedSlots remembered(form);
  form.menu_files.Unload(2);
  form.menu_files.Unload(1);
  form.menu_files.Load(1).Caption = "other";
  remembered.PutBack(form);
  EXPECT_EQ(form.menu_files[1].Caption.get(), "one");
  EXPECT_FALSE(form.menu_files.Has(2));
  form.menu_files.Load(2);
  form.menu_files.Load(3).Caption = "three";
  remembered.PutBack(form);
  EXPECT_EQ(form.menu_files[2].Caption.get(), "two");
  EXPECT_EQ(form.menu_files[3].Caption.get(), "three");
}

}  // namespace
}  // namespace veldrin
