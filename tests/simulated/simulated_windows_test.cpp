#include "simulated/simulated_windows.h"

#include "simulated/printed_values.h"
#include "simulated/simulated_machine.h"
#include "view/control_array.h"
#include "view/grid.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

/// A window with one control of each kind of slot.
struct SampleForm : Window {
  explicit SampleForm(Desk& theDesk)
      : Window(theDesk, "Form2", {0, 0, 6000, 4000}, {.caption = "Sample"}, true) {}

  ControlArray<Label> Label9{1, 2, Elements<Label>("Label9", *this, GearColumn(0, 100, 100))};
  Picture Picture1{"Picture1", *this, {0, 0, 100, 100}};
  TextBox Text6{"Text6", *this, {0, 0, 100, 100}};
  Grid Grid1{"Grid1", *this, {0, 0, 100, 100}};
};

struct SimulatedWindowsTest : testing::Test {
  SimulatedMachine simulated;
  Desk desk{simulated.machine};
  SampleForm form{desk};
  std::ostringstream trace;

  std::string Traced() {
    std::string text = trace.str();
    trace.str("");
    return text;
  }
};

TEST_F(SimulatedWindowsTest, LoadedWindowsStandInTheirOrder) {
  SampleForm second(desk);
  second.LoadWindow();
  form.LoadWindow();
  EXPECT_EQ(simulated.windows.loaded, (std::vector<Window*>{&second, &form}));
  second.UnloadWindow();
  EXPECT_EQ(simulated.windows.loaded, (std::vector<Window*>{&form}));
  simulated.windows.Forget();
  EXPECT_TRUE(simulated.windows.loaded.empty());
}

TEST_F(SimulatedWindowsTest, TraceTellsEveryWriteAndEvent) {
  simulated.windows.trace = &trace;
  form.Label9[1].Caption = " 98.4";
  EXPECT_EQ(Traced(), "write Form2.Label9(1).Caption \" 98.4\"\nevent Form2.Label9(1).Change\n");
  form.Label9[1].Caption = " 98.4";
  EXPECT_EQ(Traced(), "write Form2.Label9(1).Caption \" 98.4\"\n");
  form.Text6.Text = "say \"a\"\r\n\tb";
  EXPECT_EQ(Traced(), "write Form2.Text6.Text \"say \"\"a\"\"<CR><LF><TAB>b\"\nevent Form2.Text6.Change\n");
  form.Picture1.BackColor = kRed;
  form.Picture1.Left = 1.5F;
  form.Picture1.Visible = false;
  form.Picture1.Image = 2004;
  EXPECT_EQ(Traced(),
            "write Form2.Picture1.BackColor 255,0,0\nwrite Form2.Picture1.Left 1.5\n"
            "write Form2.Picture1.Visible False\nwrite Form2.Picture1.Image 2004\n");
  form.Label9[2].BringToFront();
  EXPECT_EQ(Traced(), "write Form2.Label9(2).ZOrder 0\n");
}

TEST_F(SimulatedWindowsTest, TraceTellsTheCellsOfAGrid) {
  form.Grid1.Rows = 2;
  form.Grid1.Cols = 2;
  simulated.windows.trace = &trace;
  form.Grid1.SetCell(1, 0, "19-63");
  form.Grid1.SetColWidth(1, 435);
  EXPECT_EQ(Traced(), "write Form2.Grid1.Cell(1,0) \"19-63\"\nwrite Form2.Grid1.ColWidth(1) 435\n");
}

TEST_F(SimulatedWindowsTest, TraceNamesAWindowByItself) {
  simulated.windows.trace = &trace;
  form.WindowState = 1;
  EXPECT_EQ(Traced(), "write Form2.WindowState minimised\nevent Form2.Resize\n");
  form.LoadWindow();
  EXPECT_EQ(Traced(), "event Form2.Load\n");
  form.Caption = "T";
  EXPECT_EQ(Traced(), "write Form2.Caption \"T\"\n");
}

TEST_F(SimulatedWindowsTest, NothingIsTracedUnlessAsked) {
  form.Label9[1].Caption = "x";
  simulated.windows.trace = &trace;
  simulated.windows.trace = nullptr;
  form.Label9[1].Caption = "y";
  EXPECT_EQ(Traced(), "");
}

TEST_F(SimulatedWindowsTest, InsideOfAWindowDependsOnFrameAndMenu) {
  EXPECT_EQ(form.InnerWidth(), 5880);
  EXPECT_EQ(form.InnerHeight(), 3310);
  const Window plain(desk, "Form3", {0, 0, 1000, 1000}, {});
  EXPECT_EQ(plain.InnerWidth(), 880);
  EXPECT_EQ(plain.InnerHeight(), 595);
  const Window frameless(desk, "Form1", {0, 0, 1000, 1000}, {}, false, false);
  EXPECT_EQ(frameless.InnerWidth(), 1000);
  EXPECT_EQ(frameless.InnerHeight(), 1000);
}

TEST_F(SimulatedWindowsTest, ModalWindowRunsTheLoopItWasGiven) {
  int loops = 0;
  simulated.windows.modalLoop = [&](Window& window) {
    ++loops;
    EXPECT_EQ(&window, &form);
    EXPECT_TRUE(window.Visible);
    window.Hide();
  };
  form.ShowModal();
  EXPECT_EQ(loops, 1);
  EXPECT_FALSE(form.isModal);
}

TEST_F(SimulatedWindowsTest, FlashIsLoggedAndCounted) {
  simulated.windows.Flash(form);
  simulated.windows.Flash(form);
  EXPECT_EQ(simulated.log.Text(), "flash Form2\nflash Form2");
  EXPECT_EQ(simulated.log.flashes, 2);
}

TEST(PrintedValues, ReadAsScriptsWriteThem) {
  EXPECT_EQ(ValueText(true), "True");
  EXPECT_EQ(ValueText(false), "False");
  EXPECT_EQ(ValueText(-3), "-3");
  EXPECT_EQ(ValueText(60.0F), "60");
  EXPECT_EQ(ValueText(1.9F), "1.9");
  EXPECT_EQ(ValueText(1.9), "1.9");
  EXPECT_EQ(ValueText(0.1F + 0.2F), "0.3");
  EXPECT_EQ(ValueText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(ValueText(Rgb(0, 0, 128)), "0,0,128");
  EXPECT_EQ(ValueText(std::string("a\r\n")), "a\r\n");
  EXPECT_EQ(Printed("a\r\n\tb"), "a<CR><LF><TAB>b");
  EXPECT_EQ(Quoted("say \"a\""), "\"say \"\"a\"\"\"");
  EXPECT_EQ(Quoted(""), "\"\"");
}

TEST_F(SimulatedWindowsTest, SlotsReadAsTheirValues) {
  EXPECT_EQ(SlotText(form, *form.FindSlot("WindowState")), "normal");
  form.WindowState = 2;
  EXPECT_EQ(SlotText(form, *form.FindSlot("WindowState")), "maximised");
  EXPECT_EQ(SlotText(form, *form.FindSlot("Width")), "6000");
  EXPECT_EQ(SlotText(form, *form.FindSlot("Visible")), "False");
  EXPECT_EQ(SlotText(form, *form.FindSlot("Caption")), "Sample");
  EXPECT_EQ(SlotText(form.Label9[1], *form.Label9[1].FindSlot("ForeColor")), "0,0,0");
}

}  // namespace
}  // namespace veldrin
