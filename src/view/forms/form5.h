// File Compare: up to three plans on one place, each with a chart of its own, and the picker of plan files
// that lies over them all. Captions are designed in English; those that show in Japanese as well stand beside
// them.
#pragma once

#include "view/forms/chart_axes.h"
#include "view/list_boxes.h"

namespace veldrin {

struct Form5 : Window {
  explicit Form5(Desk& theDesk);
  ~Form5();

  // clang-format off
  Label      Label10 {"Label10",  *this, { 120,    0,  855, 240}, {.caption = "SELECT", .japanese = "選択", .fore = kLightGrey, .back = kDarkBlue}};
  SpinButton Spin1   {"Spin1",    *this, { 120,  240,  855, 375}};
  Label      Label13 {"Label13",  *this, {1080,    0, 1965, 225}, {.caption = "Filename", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label2  {"Label2",   *this, {1050,  225, 1995, 345}, {.border = true}};
  Label      Label14 {"Label14",  *this, {3450,    0, 3975, 225}, {.caption = "Title",    .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label1  {"Label1",   *this, {3450,  225, 3975, 345}, {.border = true}};
  Button     Command1{"Command1", *this, { 150, 1350, 1515, 375}, {.caption = "Append", .japanese = "追加"}};
  Button     Command2{"Command2", *this, {1875, 1350,  975, 375}, {.caption = "Exit"}};

  Picture    Picture13{"Picture13", *this,     { 120, 1920, 2835, 1455}, {.back = kDarkBlue}};
  ControlArray<Label> Label5{0, 0, Elements<Label>("Label5", Picture13, At({  60,  60,  960, 270}), {.fore = kLightGrey, .back = kDarkBlue}, {"Primary"})};
  ControlArray<Label> Label6{0, 0, Elements<Label>("Label6", Picture13, At({1080,  60, 1695, 270}), {.align = Align::Centre})};
  ControlArray<Label> Label7{0, 0, Elements<Label>("Label7", Picture13, At({  60, 405,  960, 270}), {.fore = kLightGrey, .back = kDarkBlue}, {"Final"})};
  ControlArray<Label> Label8{0, 0, Elements<Label>("Label8", Picture13, At({1080, 405, 1695, 270}), {.align = Align::Centre})};
  Label      Label17  {"Label17",   Picture13, {  60,  750,  960,  270}, {.caption = "TYRE_L", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label15  {"Label15",   Picture13, {1080,  750, 1695,  270}, {.align = Align::Centre}};
  Label      Label23  {"Label23",   Picture13, {  60, 1095,  960,  270}, {.caption = "Shift_Ne", .fore = kLightGrey, .back = kDarkBlue}};
  Label      Label16  {"Label16",   Picture13, {1080, 1095, 1695,  270}, {.align = Align::Centre}};

  // Gears downward from the 6th, heads on top. Label9 is the column of speeds, and with its element 0 the
  // head of the gears' names as well. Label39 stands between the gears.
  Picture    Picture2 {"Picture2",  *this,     { 120, 3420,  555, 3195}, {.back = kDarkBlue}};
  ControlArray<Label> Label3 {1, 6, Elements<Label>("Label3",  Picture2,  GearColumn(0, 555, 255), {.back = kBlack}, {"", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"})};
  Picture    Picture14{"Picture14", *this,     { 690, 3420,  555, 3195}, {.back = kDarkBlue}};
  ControlArray<Label> Label9 {0, 7, Split(Elements<Label>("Label9", Picture2, At({0, 0, 555, 255}), {.caption = "GEAR", .fore = kLightGrey, .back = kBlack}), 1,
                                  Split(Elements<Label>("Label9", Picture14, GearColumn(0, 555, 255), {.fore = kLightGrey, .back = kBlack, .align = Align::Right}), 7,
                                        Elements<Label>("Label9", Picture14, At({0, 0, 555, 255}), {.caption = "SPEED", .fore = kLightGrey, .back = kBlack, .align = Align::Right})))};
  Picture    Picture25{"Picture25", *this,     {1260, 3420,  480, 3195}, {.back = kDarkBlue}};
  ControlArray<Label> Label39{1, 5, Elements<Label>("Label39", Picture25, GearColumn(0, 480, 255, 120), {.fore = kLightGrey, .back = kDarkBlue, .align = Align::Right})};
  Picture    Picture16{"Picture16", *this,     {1755, 3420,  600, 3195}, {.back = kDarkBlue}};
  ControlArray<Label> Label11{0, 6, Elements<Label>("Label11", Picture16, GearColumn(0, 600, 255), {.fore = kLightGrey, .back = kBlack, .align = Align::Right}, {"Shift"})};
  Picture    Picture17{"Picture17", *this,     {2400, 3420,  570, 3195}, {.back = kDarkBlue}};
  ControlArray<Label> Label12{0, 6, Elements<Label>("Label12", Picture17, GearColumn(0, 570, 255), {.align = Align::Centre}, {"PLAN"})};

  Picture    Picture19{"Picture19", *this,     {3000,  780, 4455, 6015}, {.back = kDarkBlue}};
  ControlArray<Picture> Picture21{0, 2, Elements<Picture>("Picture21", Picture19, At({490, 0, 3975, 5525}), {.back = kBlack})};
  Line       Line1    {"Line1",     Picture19, kAxesLeft, 0, kAxesLeft, kAxesFoot};
  Line       Line2    {"Line2",     Picture19, kAxesLeft, kAxesFoot, kAxesRight, kAxesFoot};
  ControlArray<Line>  Line3  {0, kLastTickUp, TicksUp("Line3", Picture19)};
  ControlArray<Line>  Line4  {0, kLastTickAcross, TicksAcross("Line4", Picture19)};
  Label      Label18  {"Label18",   Picture19, {kSpeedNumeralLeft, NumeralTop(15), 300, 195}, {.caption = "300", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label      Label19  {"Label19",   Picture19, {kSpeedNumeralLeft, NumeralTop(10), 300, 195}, {.caption = "200", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label      Label20  {"Label20",   Picture19, {kSpeedNumeralLeft, NumeralTop( 5), 300, 195}, {.caption = "100", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  Label      Label21  {"Label21",   Picture19, {kTickLeft, kTickFoot, 120, 195}, {.caption = "0",   .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8}};
  ControlArray<Label> Label22{0, kNeUnit, Elements<Label>("Label22", Picture19, NumeralsAcross(960), {.fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .transparent = true}, NumeralTexts())};

  Picture    Picture3 {"Picture3",  *this,     { 120, 1800, 2955, 4935}, {.border = true, .visible = false}};
  DriveBox   Drive1   {"Drive1",    Picture3,  { 120,  120, 2670,  315}, {.back = kWhite}};
  FolderBox  Dir1     {"Dir1",      Picture3,  { 120,  510, 2670, 1560}, {.back = kWhite}};
  FileBox    File1    {"File1",     Picture3,  { 120, 2145, 2670, 1710}, {.back = kWhite}};
  ComboBox   Combo1   {"Combo1",    Picture3,  { 120, 3930, 2670,  315}, {.back = kWhite}};
  Button     Command4 {"Command4",  Picture3,  { 120, 4380, 1275,  405}, {.caption = "Load"}};
  Button     Command5 {"Command5",  Picture3,  {1515, 4380, 1275,  405}, {.caption = "Cancel"}};
  // clang-format on
};

}  // namespace veldrin
