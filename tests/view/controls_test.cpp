// What each kind of control consists of, and what a write to it fires. Grids and lists have tests of their
// own.
#include "tests/view/told_desk.h"
#include "view/grid.h"
#include "view/list_boxes.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}
};

struct Controls : ToldDesk {
  Form form{desk};

  /// The names of a control's slots but those that every placed one has, and of its events.
  static std::string Own(const Control& control) {
    std::string names;
    for (const AnySlot& slot : control.slots) {
      const std::string name = std::visit([](const auto* typed) { return std::string(typed->Name()); }, slot);
      const bool shared = name == "Visible" || name == "Enabled" || name == "Left" || name == "Top" ||
                          name == "Width" || name == "Height" || name == "BackColor" || name == "ForeColor" ||
                          name == "FontName" || name == "FontSize" || name == "FontBold" ||
                          name == "FontItalic" || name == "MousePointer";
      if (!shared || (control.kind == ControlKind::Line && name == "ForeColor")) names += name + " ";
    }
    names += "|";
    for (const Event* event : control.events) names += std::string(" ") + event->Name();
    return names;
  }
};

TEST_F(Controls, HaveTheSlotsAndEventsOfTheirKind) {
  const Label label("L", form, {});
  const TextBox box("T", form, {});
  const Button button("B", form, {});
  const OptionButton option("O", form, {});
  const SpinButton spin("S", form, {});
  const ScrollBar bar("H", form, {}, {0, 10, 5, 1, 2});
  const TimerControl timer("Timer1", form, 100);
  const Menu menu("M", form, "File(&F)");
  const Picture picture("P", form, {});
  const Line line("Line1", form, 1, 2, 3, 4);
  const Grid grid("G", form, {});
  const ComboBox combo("C", form, {});
  const DriveBox drives("D", form, {});
  const FolderBox folders("Dir1", form, {});
  const FileBox files("File1", form, {});
  const Dialog dialog("Dialog1", form);
  const std::string mouse = "MouseDown MouseUp";
  const std::string focus = "| KeyDown GotFocus LostFocus ";
  EXPECT_EQ(Own(label), "Caption | Change Click DblClick " + mouse);
  EXPECT_EQ(Own(box), "Text " + focus + "Change Click DblClick " + mouse);
  EXPECT_EQ(Own(button), "Caption " + focus + "Click " + mouse);
  EXPECT_EQ(Own(option), "Caption Value " + focus + "Click " + mouse);
  EXPECT_EQ(Own(spin), "| SpinDown SpinUp");
  EXPECT_EQ(Own(bar), "Min Max Value | Change");
  EXPECT_EQ(Own(timer), "Interval | Timer");
  EXPECT_EQ(Own(menu), "Caption | Click");
  EXPECT_EQ(Own(picture), "Image | Click DblClick " + mouse);
  EXPECT_EQ(Own(line), "X1 Y1 X2 Y2 ForeColor |");
  EXPECT_EQ(Own(grid), "Cols Rows " + focus + "Click Pick");
  EXPECT_EQ(Own(combo), "Text ListIndex " + focus + "Change Click");
  EXPECT_EQ(Own(drives), "Drive ListIndex " + focus + "Change Click");
  EXPECT_EQ(Own(folders), "Path ListIndex " + focus + "Change Click");
  EXPECT_EQ(Own(files), "Path Pattern FileName ListIndex " + focus + "Click DblClick");
  EXPECT_EQ(Own(dialog), "|");
  const std::vector<std::pair<const Control*, ControlKind>> kinds = {
      {&label, ControlKind::Label},     {&box, ControlKind::TextBox},
      {&button, ControlKind::Button},   {&option, ControlKind::OptionButton},
      {&spin, ControlKind::SpinButton}, {&bar, ControlKind::ScrollBar},
      {&timer, ControlKind::Timer},     {&menu, ControlKind::Menu},
      {&picture, ControlKind::Picture}, {&line, ControlKind::Line},
      {&grid, ControlKind::Grid},       {&combo, ControlKind::ComboBox},
      {&drives, ControlKind::DriveBox}, {&folders, ControlKind::FolderBox},
      {&files, ControlKind::FileBox},   {&dialog, ControlKind::Dialog},
  };
  for (const auto& [control, kind] : kinds) {
    EXPECT_EQ(control->kind, kind) << control->name;
    EXPECT_NE(control->FindSlot("Visible"), nullptr) << control->name;
    EXPECT_NE(control->FindSlot("Enabled"), nullptr) << control->name;
  }
  EXPECT_EQ(form.controls.size(), kinds.size()) << "in the order of the screen";
  for (std::size_t k = 0; k < kinds.size(); ++k) {
    const bool ordered = k < 3;  // the first three were made in the order of the list
    if (ordered) {
      EXPECT_EQ(form.controls[k], kinds[k].first);
    }
  }
}

TEST_F(Controls, BeginAsTheirLookSays) {
  const Label plain("Plain", form, {10, 20, 30, 40});
  EXPECT_EQ(plain.Left.get(), 10);
  EXPECT_EQ(plain.Top.get(), 20);
  EXPECT_EQ(plain.Width.get(), 30);
  EXPECT_EQ(plain.Height.get(), 40);
  const Button nowhere("Nowhere", form, {});
  for (const Slot<float>* const place : {&nowhere.Left, &nowhere.Top, &nowhere.Width, &nowhere.Height}) {
    EXPECT_EQ(place->get(), 0);
  }
  EXPECT_EQ(plain.Caption, "");
  EXPECT_EQ(plain.ForeColor.get(), kBlack);
  EXPECT_EQ(plain.BackColor.get(), kLightGrey);
  EXPECT_EQ(plain.FontName, "Arial");
  EXPECT_EQ(plain.FontSize.get(), 9);
  EXPECT_FALSE(plain.FontBold);
  EXPECT_FALSE(plain.FontItalic);
  EXPECT_EQ(plain.MousePointer.get(), 0);
  EXPECT_TRUE(plain.Visible);
  EXPECT_TRUE(plain.Enabled);
  EXPECT_EQ(plain.look.align, Align::Left);
  EXPECT_FALSE(plain.look.border);
  EXPECT_FALSE(plain.look.transparent);
  EXPECT_EQ(std::string(plain.look.spoken), "");
  const Look look{.caption = "SPEED",
                  .fore = kRed,
                  .back = kBlack,
                  .fontSize = 11,
                  .fontBold = true,
                  .visible = false,
                  .enabled = false};
  const Label other("Other", form, {}, look);
  EXPECT_EQ(other.Caption, "SPEED");
  EXPECT_EQ(other.ForeColor.get(), kRed);
  EXPECT_EQ(other.BackColor.get(), kBlack);
  EXPECT_EQ(other.FontSize.get(), 11);
  EXPECT_TRUE(other.FontBold);
  EXPECT_FALSE(other.Visible);
  EXPECT_FALSE(other.Enabled);
  EXPECT_EQ(Button("B", form, {}, look).Caption, "SPEED");
  EXPECT_EQ(OptionButton("O", form, {}, look).Caption, "SPEED");
  EXPECT_EQ(TextBox("T", form, {}, look).Text, "SPEED") << "the caption of a box is its text";
  EXPECT_EQ(ComboBox("C", form, {}, look).Text, "SPEED");
}

TEST_F(Controls, LabelsAndBoxesTellEachWriteAndFireChangeForANewTextAlone) {
  Label label("L", form, {});
  TextBox box("T", form, {});
  ComboBox combo("C", form, {});
  label.Caption = "1";
  EXPECT_EQ(Told(), "write Form.L.Caption \"1\"\nevent Form.L.Change\n");
  label.Caption = "1";
  EXPECT_EQ(Told(), "write Form.L.Caption \"1\"\n");
  box.Text = "1";
  EXPECT_EQ(Told(), "write Form.T.Text \"1\"\nevent Form.T.Change\n");
  box.Text = "1";
  EXPECT_EQ(Told(), "write Form.T.Text \"1\"\n");
}

TEST_F(Controls, ChangeRunsInsideTheWrite) {
  Label label("L", form, {});
  std::string seen;
  label.Change.Bind([&](int) { seen = label.Caption.get(); });
  label.Caption = "60";
  EXPECT_EQ(seen, "60");
}

TEST_F(Controls, ChangeThatWritesAgainFiresAgain) {
  Label label("L", form, {});
  label.Change.Bind([&](int) {
    if (label.Caption == "a") label.Caption = "b";
  });
  label.Caption = "a";
  EXPECT_EQ(label.Caption, "b");
  EXPECT_EQ(Told(),
            "write Form.L.Caption \"a\"\nevent Form.L.Change\nwrite Form.L.Caption \"b\"\n"
            "event Form.L.Change\n");
}

TEST_F(Controls, WhatHasNoChangeIsOnlyTold) {
  Button button("B", form, {});
  TimerControl timer("Timer1", form, 100);
  Menu menu("M", form, "File(&F)", "Ctrl+S");
  Line line("Line1", form, 1, 2, 3, 4, kRed);
  Label label("L", form, {});
  EXPECT_EQ(timer.Interval.get(), 100);
  EXPECT_FALSE(timer.Enabled);
  EXPECT_TRUE(TimerControl("Timer2", form, 100, true).Enabled);
  EXPECT_EQ(menu.Caption, "File(&F)");
  EXPECT_EQ(menu.shortcut, "Ctrl+S");
  EXPECT_EQ(line.X1.get(), 1);
  EXPECT_EQ(line.Y1.get(), 2);
  EXPECT_EQ(line.X2.get(), 3);
  EXPECT_EQ(line.Y2.get(), 4);
  EXPECT_EQ(line.ForeColor.get(), kRed);
  EXPECT_EQ(Line("Line2", form, 0, 0, 0, 0).ForeColor.get(), kWhite);
  button.Caption = "OK";
  timer.Interval = 1200;
  menu.Caption = "Quit";
  line.Y2 = 9;
  label.BackColor = Rgb(1, 2, 3);
  label.FontBold = true;
  label.MousePointer = kPointerNoDrop;
  label.Width = 5;
  EXPECT_EQ(Told(),
            "write Form.B.Caption \"OK\"\nwrite Form.Timer1.Interval 1200\nwrite Form.M.Caption \"Quit\"\n"
            "write Form.Line1.Y2 9\nwrite Form.L.BackColor 1,2,3\nwrite Form.L.FontBold True\n"
            "write Form.L.MousePointer 12\nwrite Form.L.Width 5\n");
}

TEST_F(Controls, AnOptionThatIsSetClearsTheOthersOfItsPanelThenClicks) {
  Picture panel("Panel", form, {});
  OptionButton one("One", panel, {});
  OptionButton two("Two", panel, {});
  OptionButton elsewhere("Elsewhere", form, {});
  elsewhere.Value = true;
  one.Value = true;
  two.Click.Bind([&](int) { EXPECT_FALSE(one.Value); });
  Forget();
  two.Value = true;
  const std::string told = Told();
  EXPECT_NE(told.find("write Form.One.Value False\n"), std::string::npos);
  EXPECT_TRUE(told.ends_with("event Form.Two.Click\n"));
  EXPECT_EQ(told.find("event"), told.rfind("event")) << "the others stay silent";
  EXPECT_TRUE(elsewhere.Value);
  two.Value = true;
  EXPECT_EQ(Told(), "write Form.Two.Value True\n");
  two.Value = false;
  EXPECT_EQ(Told(), "write Form.Two.Value False\n");
  EXPECT_FALSE(one.Value);
}

TEST_F(Controls, AScrollBarFiresChangeForANewValue) {
  ScrollBar bar("H", form, {}, {5000, 14200, 12800, 100, 1000});
  EXPECT_EQ(bar.Min.get(), 5000);
  EXPECT_EQ(bar.Max.get(), 14200);
  EXPECT_EQ(bar.Value.get(), 12800);
  EXPECT_EQ(bar.smallChange, 100);
  EXPECT_EQ(bar.largeChange, 1000);
  bar.Value = 12900;
  EXPECT_EQ(Told(), "write Form.H.Value 12900\nevent Form.H.Change\n");
  bar.Value = 12900;
  EXPECT_EQ(Told(), "write Form.H.Value 12900\n");
}

TEST_F(Controls, APictureIsASurfaceOfItsOwnSizeAndFont) {
  Picture picture("P", form, {0, 0, 600, 400}, {.fontSize = 11, .fontBold = true});
  EXPECT_EQ(picture.Image.get(), 0);
  EXPECT_EQ(picture.surface.PhysicalWidth(), 600);
  EXPECT_EQ(picture.surface.PhysicalHeight(), 400);
  EXPECT_EQ(picture.surface.font, (Font{"Arial", 11, true, false}));
  picture.Width = 900;
  EXPECT_EQ(picture.surface.PhysicalWidth(), 900);
  EXPECT_EQ(picture.surface.PhysicalHeight(), 400);
  picture.Height = 300;
  EXPECT_EQ(picture.surface.PhysicalHeight(), 300);
  windows.tellsContent = true;
  Forget();
  picture.surface.Line(0, 0, 1, 1, kRed);
  EXPECT_EQ(Told(), "content Form.P\n");
}

}  // namespace
}  // namespace veldrin
