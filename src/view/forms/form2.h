// The main window: its controls, one line each, in the order of the screen, which is the Tab order; what is
// listed later lies in front. What they do stands in mainwin/.
//
// Rows of gears have the same middle in all columns, gear 6 on top: labels are 255 high and begin at 360,
// boxes 315 at 330, buttons 345 at 315, arrows 375 at 300. The step between gears i and i + 1 stands half-way
// between their rows, 195 high, as if gear 6 had one at 150.
#pragma once

#include "view/forms/chart_axes.h"
#include "view/grid.h"

namespace veldrin {

struct Form2 : Window {
  explicit Form2(Desk& theDesk);
  ~Form2();

  // Looks: panels, captions, ...
  static constexpr Look kPanel{.back = kDarkBlue};
  static constexpr Look kHiddenPanel{.back = kDarkBlue, .visible = false};
  static constexpr Look kHead{
      .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .align = Align::Centre, .transparent = true};
  static constexpr Look kTitle{
      .fore = kLightGrey, .back = kDarkBlue, .align = Align::Right, .transparent = true};
  static constexpr Look kSmallTitle{
      .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .transparent = true};
  // Numerals beside an axis, over the outer ends of its ticks; steps between the gears.
  static constexpr Look kNumeral{.fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .align = Align::Right};
  static constexpr Look kStep{
      .fore = kLightGrey, .back = kDarkBlue, .fontSize = 8, .align = Align::Right, .transparent = true};
  static constexpr Look kPartHead{.fore = kLightGrey, .back = kBlack, .transparent = true};
  // ... figures of the gears, which the constructor gives the colours of their gears, ...
  static constexpr Look kGearName{.back = kBlack, .fontSize = 10, .fontBold = true, .align = Align::Centre};
  static constexpr Look kSpeed{.back = kBlack, .fontSize = 8, .fontBold = true, .align = Align::Right};
  static constexpr Look kFigure{.back = kBlack, .fontSize = 8, .fontBold = true, .align = Align::Right};
  static constexpr Look kTolerance{.caption = "--",
                                   .back = kBlack,
                                   .fontSize = 8,
                                   .fontBold = true,
                                   .align = Align::Centre,
                                   .enabled = false};
  static constexpr Look kPart{.back = kBlack, .fontSize = 11, .transparent = true};
  // ... chosen rows, boxes and the rest.
  static constexpr Look kPair{.fontSize = 8, .fontBold = true, .align = Align::Centre, .border = true};
  static constexpr Look kRow{
      .fontSize = 11, .fontBold = true, .align = Align::Centre, .border = true, .enabled = false};
  static constexpr Look kBox{.back = kWhite};
  static constexpr Look kSmallBox{.back = kWhite, .fontSize = 8};
  static constexpr Look kRequestBox{.back = kWhite, .fontSize = 10, .align = Align::Right};
  static constexpr Look kOption{.fore = kLightGrey, .back = kDarkBlue, .fontSize = 8};
  static constexpr Look kGreyArrows{.fore = kLightGrey, .enabled = false};
  static constexpr Look kSmall{.fontSize = 8};
  static constexpr Look kOff{.enabled = false};
  static constexpr Look kHidden{.visible = false};
  static constexpr Look kHiddenAndOff{.visible = false, .enabled = false};

  /// A look with a caption.
  static constexpr Look Titled(const char* caption, Look look) {
    look.caption = caption;
    return look;
  }

  /// Makes the labels of a column of gears: subscript 0 is its head, the others look like `row`.
  static ControlArray<Label>::Maker Column(const char* name, Control& parent, float left, float width,
                                           const Look& row, const std::vector<const char*>& captions);
  /// Makes grids, each in the panel of its own subscript.
  static ControlArray<Grid>::Maker InPanels(const char* name, ControlArray<Picture>& panels,
                                            const Place& place, const Look& look);
  /// Makes the entries of a menu array. Those that it grows by have no caption.
  static ControlArray<Menu>::Maker Entries(const char* name, Menu& parent,
                                           const std::vector<const char*>& captions, const Look& look = {});
  /// Makes an entry for each size of a picture; those too small for the report are hidden.
  static ControlArray<Menu>::Maker PictureSizes(const char* name, Menu& parent);

  // clang-format off
  // The header strip.
  Picture    Picture13{"Picture13", *this,     { 120,    0, 4935,  975}, kPanel};
  Button     Command2 {"Command2",  Picture13, {  45,   60,  990,  375}, {.caption = "Mode"}};
  Button     Command3 {"Command3",  Picture13, {  45,  540,  990,  375}, {.caption = "Load"}};
  Picture    Picture28{"Picture28", Picture13, {2160,  120,  720,  720}, {.back = kDarkBlue, .border = true, .spoken = "Print"}};
  Label      Label5   {"Label5",    Picture13, {2895,  135,  735,  225}, Titled("Primary", kTitle)};
  Label      Label6   {"Label6",    Picture13, {3660,  105,  810,  300}, kRow};
  SpinButton Spin4    {"Spin4",     Picture13, {4515,   75,  300,  360}, kGreyArrows};
  Label      Label7   {"Label7",    Picture13, {2895,  630,  735,  225}, Titled("Final", kTitle)};
  Label      Label8   {"Label8",    Picture13, {3660,  600,  810,  300}, kRow};
  SpinButton Spin5    {"Spin5",     Picture13, {4515,  570,  300,  360}, kGreyArrows};
  Button     Command4 {"Command4",  *this,     {1200,   60,  990,  375}, Titled("Compare", kOff)};
  Button     Command5 {"Command5",  *this,     {1200,  540,  990,  375}, Titled("Save", kOff)};

  // The chart. The panels of the gears lie over its left edge.
  Picture      Picture19{"Picture19", *this,     {5025,   75, 4455, 6090}, kPanel};
  Picture      Picture21{"Picture21", Picture19, { 490,    0, 3975, 5525}, {.back = kBlack}};
  Picture      Picture31{"Picture31", Picture21, {  90,   90, 1125,  540}, {.back = kBlack, .visible = false}};
  Line         Line14   {"Line14",    Picture31,   75,  150,  540,  150, kLightGrey};
  Label        Label41  {"Label41",   Picture31, { 600,   45,  480,  210}, Titled("ORG", kPartHead)};
  Line         Line15   {"Line15",    Picture31,   75,  390,  540,  390, kWhite};
  Label        Label43  {"Label43",   Picture31, { 600,  285,  480,  210}, {.caption = "CHG", .fore = kWhite, .back = kBlack, .transparent = true}};
  Label        Label38  {"Label38",   Picture21, {1305,  120, 1800,  285}, {.caption = "Request Mode", .fore = kYellow, .back = kBlack, .fontSize = 12, .fontBold = true, .transparent = true, .visible = false}};
  Line         Line1    {"Line1",     Picture19, kAxesLeft, 0, kAxesLeft, kAxesFoot};
  Line         Line2    {"Line2",     Picture19, kAxesLeft, kAxesFoot, kAxesRight, kAxesFoot};
  ControlArray<Line> Line3{0, kLastTickUp, TicksUp("Line3", Picture19)};
  ControlArray<Line> Line4{0, kLastTickAcross, TicksAcross("Line4", Picture19)};
  Label        Label18  {"Label18",   Picture19, {kSpeedNumeralLeft, NumeralTop(15), 285, 195}, Titled("300", kNumeral)};
  Label        Label19  {"Label19",   Picture19, {kSpeedNumeralLeft, NumeralTop(10), 285, 195}, Titled("200", kNumeral)};
  Label        Label20  {"Label20",   Picture19, {kSpeedNumeralLeft, NumeralTop( 5), 285, 195}, Titled("100", kNumeral)};
  Label        Label21  {"Label21",   Picture19, {kTickLeft, kTickFoot, 120, 195}, Titled("0", kSmallTitle)};
  ControlArray<Label> Label22{0, kNeUnit, Elements<Label>("Label22", Picture19, NumeralsAcross(900), kSmallTitle, NumeralTexts())};
  TimerControl Timer2   {"Timer2",    Picture19, 100};
  TimerControl Timer3   {"Timer3",    Picture19, 200};

  // Which gear is the main one.
  Picture      Picture1{"Picture1", *this,    {   0,  960,  975, 3555}, kHiddenPanel};
  Label        Label4  {"Label4",   Picture1, {   0,    0,  300,  255}, Titled("Pri", kHead)};
  ControlArray<OptionButton> Option1{0, 6, Elements<OptionButton>("Option1", Picture1, GearColumn(30, 240, 255, 360, 3225), kOption, {"None"})};
  TimerControl Timer1  {"Timer1",   Picture1, 10};

  // Gear names and stored speeds.
  Picture Picture2 {"Picture2",  *this,    { 300,  960,  555, 3195}, kHiddenPanel};
  ControlArray<Label> Label1{0, 6, Column("Label1", Picture2, 0, 525, kGearName, {"GEAR", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"})};
  Line    Line18   {"Line18",    Picture2,  532,    0,  532, 3195, kLightGrey};
  Picture Picture3 {"Picture3",  *this,    { 840,  960,  480, 3615}, kHiddenPanel};
  ControlArray<Label> Label2{0, 6, Column("Label2", Picture3, 0, 480, kSpeed, {"ORG"})};
  Button  Command11{"Command11", Picture3, {   0, 3195,  480,  345}, Titled("O<C", kSmall)};

  // Request of speeds.
  Picture Picture4 {"Picture4",  *this,    {1320,  960, 3720, 3795}, kHiddenPanel};
  Picture Picture5 {"Picture5",  Picture4, {   0,    0,  615, 3105}, kPanel};
  Label   Label16  {"Label16",   Picture5, {   0,    0,  600,  255}, Titled("REQ", kHead)};
  ControlArray<TextBox> Text1{1, 6, Elements<TextBox>("Text1", Picture5, GearColumn(0, 600, 315, 330), kRequestBox)};
  Picture Picture27{"Picture27", Picture4, { 615,    0,  465, 3105}, kPanel};
  ControlArray<Label> Label25{1, 5, Elements<Label>("Label25", Picture27, GearColumn(0, 465, 195, 150), kHead)};
  Picture Picture6 {"Picture6",  Picture4, {1080,    0, 1200, 3795}, kPanel};
  Label   Label3   {"Label3",    Picture6, {   0,    0, 1200,  255}, Titled("MODE", kHead)};
  ControlArray<Button> Command1{0, 6, Elements<Button>("Command1", Picture6, GearColumn(30, 1140, 345, 315, 3195), Titled("AUTO", kSmall), {"FULL AUTO"})};
  Picture Picture7 {"Picture7",  Picture4, {2295,    0,  390, 3105}, kPanel};
  ControlArray<Label> Label14{0, 6, Column("Label14", Picture7, 0, 390, kTolerance, {"-"})};
  Picture Picture8 {"Picture8",  Picture4, {2685,    0,  285, 3105}, kPanel};
  ControlArray<SpinButton> Spin1{1, 6, Elements<SpinButton>("Spin1", Picture8, GearColumn(0, 285, 375, 300), kGreyArrows)};
  Picture Picture11{"Picture11", Picture4, {3000,    0,  390, 3105}, kPanel};
  ControlArray<Label> Label15{0, 6, Column("Label15", Picture11, 0, 390, kTolerance, {"+"})};
  Picture Picture10{"Picture10", Picture4, {3390,    0,  285, 3105}, kPanel};
  ControlArray<SpinButton> Spin3{1, 6, Elements<SpinButton>("Spin3", Picture10, GearColumn(0, 285, 375, 300), kGreyArrows)};
  Button  Command10{"Command10", Picture4, {   0, 3195,  600,  345}, {.caption = "O>R"}};
  Button  Command6 {"Command6",  Picture4, {2325, 3195, 1350,  375}, {.caption = "Calcurate"}};

  // Request of revolutions.
  Picture Picture30{"Picture30", *this,     {2400,  960, 2715, 3195}, kHiddenPanel};
  Label   Label36  {"Label36",   Picture30, {  60,    0, 1185,  255}, Titled("BASE_Ne", kHead)};
  ControlArray<Label> Label34{1, 6, Elements<Label>("Label34", Picture30, GearColumn(60, 870, 255), kGearName)};
  ControlArray<SpinButton> SpinButton1{1, 6, Elements<SpinButton>("SpinButton1", Picture30, GearColumn(945, 300, 375, 300))};
  Label   Label37  {"Label37",   Picture30, {1410,    0, 1185,  255}, Titled("REQ_Ne", kHead)};
  ControlArray<Label> Label35{1, 6, Elements<Label>("Label35", Picture30, GearColumn(1410, 870, 255), kGearName)};
  ControlArray<SpinButton> SpinButton2{1, 6, Elements<SpinButton>("SpinButton2", Picture30, GearColumn(2295, 300, 375, 300))};

  // The plan. The head Picture34 lies over the blank top of its column and over the end of the head before.
  Picture Picture12{"Picture12", *this,     {1320,  960, 3795, 3795}, kHiddenPanel};
  Picture Picture25{"Picture25", Picture12, {   0,    0,  345, 3105}, kPanel};
  ControlArray<Label> Label39{1, 5, Elements<Label>("Label39", Picture25, GearColumn(0, 345, 195, 150), kStep)};
  Picture Picture14{"Picture14", Picture12, { 345,    0,  480, 3105}, kPanel};
  ControlArray<Label> Label9{0, 6, Column("Label9", Picture14, 0, 480, kSpeed, {"CHG"})};
  ControlArray<Picture> Picture26{0, 0, Elements<Picture>("Picture26", Picture12, At({825, 0, 345, 3105}), kPanel)};
  ControlArray<Label> Label40{1, 5, Elements<Label>("Label40", Picture26[0], GearColumn(0, 345, 195, 150), kStep)};
  Picture Picture16{"Picture16", Picture12, {1170,    0,  630, 3510}, kPanel};
  ControlArray<Label> Label11{0, 6, Column("Label11", Picture16, 15, 600, kFigure, {"Shift"})};
  TextBox Text4    {"Text4",     Picture16, {  15, 3150,  600,  330}, kSmallBox};
  Picture Picture15{"Picture15", Picture12, {1800,    0,  630, 3510}, kPanel};
  ControlArray<Label> Label10{0, 6, Column("Label10", Picture15, 15, 600, kFigure, {"+/- "})};
  TextBox Text2    {"Text2",     Picture15, {  15, 3150,  600,  330}, kSmallBox};
  Picture Picture32{"Picture32", Picture12, {2430,    0,  600, 3105}, kPanel};
  ControlArray<Label> Label_Dif{1, 6, Elements<Label>("Label_Dif", Picture32, GearColumn(0, 585, 255), kFigure)};
  Picture Picture34{"Picture34", Picture12, {2175,    0,  855,  300}, kPanel};
  Label   Label45  {"Label45",   Picture34, {   0,    0,  855,  255}, Titled("Difference", kHead)};
  Picture Picture17{"Picture17", Picture12, {3030,    0,  540, 3105}, kPanel};
  ControlArray<Label> Label12{0, 6, Column("Label12", Picture17, 0, 540, kPair, {"PLAN"})};
  Picture Picture18{"Picture18", Picture12, {3570,    0,  225, 3105}, kPanel};
  ControlArray<SpinButton> Spin6{1, 6, Elements<SpinButton>("Spin6", Picture18, GearColumn(0, 225, 375, 300))};
  TextBox Text3    {"Text3",     Picture12, { 285, 3150,  600,  330}, kSmallBox};
  Label   Label24  {"Label24",   Picture12, { 240, 3510,  690,  225}, Titled("Tyre L", kHead)};
  Label   Label42  {"Label42",   Picture12, {1800, 3510,  630,  225}, Titled("Check", kHead)};
  Button  Command7 {"Command7",  Picture12, {2535, 3255, 1140,  375}, Titled("Restore", kOff)};
  Line    Line16   {"Line16",    Picture12,    0, 3120, 1155, 3120, kLightGrey};
  Line    Line17   {"Line17",    Picture12, 2445, 3120, 3780, 3120, kLightGrey};
  Line    Line19   {"Line19",    Picture12, 1155, 3120, 1155, 3765, kLightGrey};
  Line    Line20   {"Line20",    Picture12, 2445, 3120, 2445, 3765, kLightGrey};
  Line    Line21   {"Line21",    Picture12,    0, 3765, 3780, 3765, kLightGrey};

  // Below the chart and the panels.
  Picture   Picture29{"Picture29", *this,     {5100, 6075, 1140,  540}, kHiddenPanel};
  Label     Label27  {"Label27",   Picture29, {   0,   30, 1095,  225}, Titled("Shift Ne", kTitle)};
  Label     Label26  {"Label26",   Picture29, {   0,  285, 1095,  225}, Titled("Check Ne", kTitle)};
  ScrollBar HScroll1 {"HScroll1",  *this,     {6300, 6120, 3135,  195}, {5000, 14200, 12800,  100, 1000}, kHiddenAndOff};
  ScrollBar HScroll2 {"HScroll2",  *this,     {6300, 6370, 3135,  195}, {5000, 14200, 10000,  100, 1000}, kHiddenAndOff};
  Label     Label13  {"Label13",   *this,     { 120, 4680,  675,  225}, {.caption = "Remark", .fore = kLightGrey, .back = kDarkBlue, .transparent = true, .visible = false}};
  TextBox   Text6    {"Text6",     *this,     {  75, 4875, 4935, 1665}, kHidden, true};
  Label     Label23  {"Label23",   *this,     {1200, 2040, 3735,  735}, {.caption = "Calcurating...", .fore = kMagenta, .back = kRed, .fontSize = 14, .fontBold = true, .visible = false}};

  // The combination panel.
  Picture Picture9 {"Picture9",  *this,    {5625, 1125, 3855, 3135}, {.back = kBlack, .visible = false}};
  Label   Label28  {"Label28",   Picture9, { 600,    0,  720,  255}, Titled("Plan", kPartHead)};
  Label   Label29  {"Label29",   Picture9, {1560,    0, 1050,  255}, Titled("Main", kPartHead)};
  Label   Label30  {"Label30",   Picture9, {2760,    0, 1050,  255}, Titled("Count", kPartHead)};
  Line    Line5    {"Line5",     Picture9,  555,  285, 3855,  285, kLightGrey};
  Line    Line6    {"Line6",     Picture9,  555,  740, 3855,  740, kLightGrey};
  Line    Line7    {"Line7",     Picture9,  555, 1220, 3855, 1220, kLightGrey};
  Line    Line8    {"Line8",     Picture9, 2625, 1700, 3855, 1700, kLightGrey};
  Line    Line9    {"Line9",     Picture9,  555, 1700, 2625, 1700, kLightGrey};
  Line    Line10   {"Line10",    Picture9,  555, 2180, 3855, 2180, kLightGrey};
  Line    Line11   {"Line11",    Picture9,  555, 2660, 3855, 2660, kLightGrey};
  Line    Line12   {"Line12",    Picture9, 1330,    0, 1330, 3135, kLightGrey};
  Line    Line13   {"Line13",    Picture9, 2625,    0, 2625, 3135, kLightGrey};
  Picture Picture22{"Picture22", Picture9, {   0,    0,  540, 3135}, {.back = kBlack}};
  ControlArray<Label> Label44{1, 6, Elements<Label>("Label44", Picture22, GearColumn(0, 540, 285), kPart, {"", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"})};
  ControlArray<Label> Label31{1, 6, Elements<Label>("Label31", Picture9, GearColumn(600, 720, 285), kPart)};
  ControlArray<Label> Label32{1, 6, Elements<Label>("Label32", Picture9, GearColumn(1440, 1170, 285), kPart)};
  ControlArray<Label> Label33{1, 6, Elements<Label>("Label33", Picture9, GearColumn(2760, 1065, 285), kPart)};

  // Lists to pick from, and the question of the decision panel.
  ControlArray<Picture> Picture23{1, 6, Elements<Picture>("Picture23", *this, GearColumn(4880, 465, 380, 1260), {.back = kDarkBlue, .border = true, .visible = false})};
  ControlArray<Grid> Grid2{1, 6, InPanels("Grid2", Picture23, {0, 0, 435, 350}, kBox)};
  Picture Picture24    {"Picture24",     *this,     {3780,  900, 1155, 3250}, kHiddenPanel};
  Grid    Grid1        {"Grid1",         Picture24, {   0,    0, 1155, 3250}, kBox};
  Picture Picture20    {"Picture20",     *this,     {   0,    0, 5415, 1215}, {.back = kDarkBlue, .border = true, .visible = false}};
  Label   Label17      {"Label17",       Picture20, { 120,  105, 5175,  450}, {.fore = kWhite, .back = kDarkBlue, .transparent = true}};
  Button  Command8     {"Command8",      Picture20, { 120,  660, 2520,  435}};
  Button  Command9     {"Command9",      Picture20, {2775,  660, 2520,  435}};
  Dialog  CommonDialog1{"CommonDialog1", *this};

  // The menus.
  Menu menu_file      {"menu_file",       *this,     "File(&F)"};
  Menu menu_save      {"menu_save",       menu_file, "Save(&S)", "Ctrl+S", kOff};
  Menu menu_load      {"menu_load",       menu_file, "Load(&L)"};
  Menu menu_list_load {"menu_list_load",  menu_load, "List File Load(&L)", "Ctrl+L"};
  Menu menu_data_load {"menu_data_load",  menu_load, "Data File Load(&D)", "Ctrl+D"};
  Menu menu_data_ref  {"menu_data_ref",   menu_load, "Date Reference Load(&R)", "Ctrl+F"};
  Menu menu_qr        {"menu_qr",         menu_load, "Quick Ratio File Exchange(&Q)", "Ctrl+Q"};
  Menu menu_del       {"menu_del",        menu_file, "Delete File Select(&D)"};
  Menu menu_folder    {"menu_folder",     menu_file, "Open Explorer or Filemanager"};
  Menu menu_dummy0    {"menu_dummy0",     menu_file, "-"};
  Menu menu_print     {"menu_print",      menu_file, "Print(&P)", "Ctrl+P"};
  Menu menu_dummy1    {"menu_dummy1",     menu_file, "-"};
  Menu menu_comb      {"menu_comb",       menu_file, "Combination(&C)", "Ctrl+Z", kOff};
  Menu menu_dummy2    {"menu_dummy2",     menu_file, "-"};
  Menu menu_quit      {"menu_quit",       menu_file, "Quit(&X)", "Ctrl+X"};
  ControlArray<Menu> menu_files{0, 0, Entries("menu_files", menu_file, {"-"}, kHidden)};
  ControlArray<Menu> menu_his_clear{0, 1, Entries("menu_his_clear", menu_file, {"-", "History Clear(&H)"}, kHidden)};
  Menu menu_edit      {"menu_edit",       *this,     "Edit(&E)", "", kOff};
  Menu menu_copy      {"menu_copy",       menu_edit, "Copy(&C)"};
  Menu menu_print_clip{"menu_print_clip", menu_copy, "Clipboard(&C)"};
  ControlArray<Menu> clip{0, 5, PictureSizes("clip", menu_print_clip)};
  Menu menu_print_bmp {"menu_print_bmp",  menu_copy, "BMP File(&B)"};
  ControlArray<Menu> bmp{0, 5, PictureSizes("bmp", menu_print_bmp)};
  Menu menu_f         {"menu_f",          *this,     "Function(&K)"};
  Menu f_mode         {"f_mode",          menu_f,    "Mode Change(&M)", "Ctrl+M"};
  Menu f_calc         {"f_calc",          menu_f,    "Calcurate(&C)", "Ctrl+C", kOff};
  Menu f_comp         {"f_comp",          menu_f,    "Compare(&H)", "Ctrl+H", kOff};
  Menu f_rest         {"f_rest",          menu_f,    "Restore(&R)", "Ctrl+R"};
  Menu menu_dummy4    {"menu_dummy4",     menu_f,    "-"};
  Menu menu_font      {"menu_font",       menu_f,    "Font Select(&F)", "", kHidden};
  Menu menu_color     {"menu_color",      menu_f,    "Color Select(&C)"};
  Menu menu_opt       {"menu_opt",        *this,     "Option(&O)"};
  Menu menu_about     {"menu_about",      menu_opt,  "About Veldrin(&A)"};
  Menu menu_set       {"menu_set",        menu_opt,  "Set up(&S)"};
  Menu menu_dummy5    {"menu_dummy5",     menu_opt,  "-"};
  Menu menu_reg_title {"menu_reg_title",  menu_opt,  "Regist Extention"};
  ControlArray<Menu> menu_reg{1, 1, Entries("menu_reg", menu_reg_title, {}, kHidden)};
  // clang-format on
};

}  // namespace veldrin
