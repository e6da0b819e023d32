// The plan dialog: the position among the plans found, the plan's figures in columns by gear, and its small
// chart. Captions are designed in English; those that show in Japanese as well stand beside them.
#pragma once

#include "view/forms/chart_axes.h"

namespace veldrin {

struct Form4 : Window {
  explicit Form4(Desk& theDesk);
  ~Form4();

  // clang-format off
  Label      Label3 {"Label3",  *this, {  60,   60,  960, 240}, {.caption = "Select", .japanese = "選択", .fore = kLightGrey, .back = kDarkBlue}};
  SpinButton Spin1  {"Spin1",   *this, {  60,  315,  855, 375}};
  Label      Label6 {"Label6",  *this, {1080,  375, 1305, 270}, {.align = Align::Centre}};
  Label      Label4 {"Label4",  *this, {  60,  870,  960, 270}, {.caption = "Primary", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label1 {"Label1",  *this, {1080,  870, 1305, 270}, {.align = Align::Centre}};
  Label      Label5 {"Label5",  *this, {  60, 1200,  960, 270}, {.caption = "Final", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label2 {"Label2",  *this, {1080, 1200, 1305, 270}, {.align = Align::Centre}};
  Label      Label7 {"Label7",  *this, {  60, 1530,  960, 270}, {.caption = "TYRE_L", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label8 {"Label8",  *this, {1080, 1530, 1305, 270}, {.align = Align::Centre}};
  Label      Label9 {"Label9",  *this, {  60, 1860,  960, 270}, {.caption = "Shift_Ne", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label10{"Label10", *this, {1080, 1860, 1305, 270}, {.align = Align::Centre}};

  // Gears downward from the 6th; a column's head is its element 0. Label39 stands between the gears.
  ControlArray<Label> Label17{1, 6, Elements<Label>("Label17", *this, GearColumn(  45, 390, 255, 2640, 2280), {.back = kBlack}, {"", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"})};
  ControlArray<Label> Label11{0, 6, Elements<Label>("Label11", *this, GearColumn( 435, 375, 255, 2640, 2280), {.fore = kLightGrey, .back = kBlack, .align = Align::Right}, {"REQ"})};
  ControlArray<Label> Label24{0, 6, Elements<Label>("Label24", *this, GearColumn( 825, 570, 255, 2640, 2280), {.fore = kLightGrey, .back = kBlack, .align = Align::Right}, {"SPEED"})};
  ControlArray<Label> Label39{1, 5, Elements<Label>("Label39", *this, GearColumn(1395, 435, 255, 2400, 2280), {.fore = kLightGrey, .back = kDarkBlue, .align = Align::Right})};
  ControlArray<Label> Label12{0, 6, Elements<Label>("Label12", *this, GearColumn(1845, 540, 255, 2640, 2280), {.align = Align::Centre}, {"PLAN"})};

  Picture Picture19{"Picture19", *this,     {2415,    60, 4605, 6015}, {.back = kDarkBlue}};
  Picture Picture21{"Picture21", Picture19, { 490,     0, 3975, 5525}, {.back = kBlack}};
  Line    Line1    {"Line1",     Picture19, kAxesLeft, 0, kAxesLeft, kAxesFoot};
  Line    Line2    {"Line2",     Picture19, kAxesLeft, kAxesFoot, kAxesRight, kAxesFoot};
  ControlArray<Line>  Line3  {0, kLastTickUp, TicksUp("Line3", Picture19)};
  ControlArray<Line>  Line4  {0, kLastTickAcross, TicksAcross("Line4", Picture19)};
  Label   Label18  {"Label18",   Picture19, {kSpeedNumeralLeft, NumeralTop(15), 300, 195}, {.caption = "300", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label   Label19  {"Label19",   Picture19, {kSpeedNumeralLeft, NumeralTop(10), 300, 195}, {.caption = "200", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label   Label20  {"Label20",   Picture19, {kSpeedNumeralLeft, NumeralTop( 5), 300, 195}, {.caption = "100", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label   Label21  {"Label21",   Picture19, {kTickLeft, kTickFoot, 120, 195}, {.caption = "0",   .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  ControlArray<Label> Label22{0, kNeUnit, Elements<Label>("Label22", Picture19, NumeralsAcross(960), {.fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .transparent = true}, NumeralTexts())};

  Button  Command1 {"Command1",  *this,     {  60,  5535, 1080,  420}, {.caption = "O K"}};
  Button  Command2 {"Command2",  *this,     {1290,  5535, 1080,  420}, {.caption = "Cancel"}};
  // clang-format on
};

}  // namespace veldrin
