// The settings: on the left the values, each with its caption and a hint, on the right the machine's list
// file and the two folders. Captions are designed in Japanese, where wide blanks break them in two lines,
// with the English ones beside them.
#pragma once

#include "view/control_array.h"
#include "view/list_boxes.h"

namespace veldrin {

struct Form7 : Window {
  explicit Form7(Desk& theDesk);
  ~Form7();

  // clang-format off
  ControlArray<Label>    Label1 {0, 1, Pair("Label1",  { 120,  255, 1170,  285}, {.caption = "言語", .english = "Language"}, {2640,  150, 1815,  480}, {.caption = "一部メニュー等の表記を変更します", .english = "English Only", .fontSize = 8})};
  ControlArray<Label>    Label3 {0, 1, Pair("Label3",  { 120,  705, 1050,  540}, {.caption = "データ変更確認無し", .english = "No Confirmation"}, {2640,  735, 1815,  480}, {.caption = "データに変更があった時もセーブを求めません", .english = "No Confirmation when data change", .fontSize = 8})};
  ControlArray<Label>    Label4 {0, 1, Pair("Label4",  { 120, 1290, 1050,  540}, {.caption = "ファイル　履歴数", .english = "File history"}, {2640, 1320, 1815,  480}, {.caption = "メニューに表示するファイルの履歴数", .english = "Number of File history on menu", .fontSize = 8})};
  Label                  Label5 {"Label5",   *this,    { 120, 1875, 1050,  540}, {.caption = "印刷　　　フォント", .english = "Print Font"}};
  ControlArray<ComboBox> Combo1 {{0, 2, 3, 4}, Choices("Combo1",
      {{0, {1320,  225, 1260, 315}, {"JP", "ENGLISH"}, true},
       {2, {1320,  810, 1260, 315}, {"YES", "NO"}, false},
       {3, {1320, 1395, 1260, 315}, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}, false},
       {4, {1320, 1980, 3120, 315}, {}, false}})};

  Label                  Label6 {"Label6",   *this,    { 120, 2460, 1170,  540}, {.caption = "タイヤ周長　(メートル）", .english = "Tyre 1round Length(m)"}};
  Label                  Label7 {"Label7",   *this,    { 120, 3045, 1170,  540}, {.caption = "チェック　　回転数", .english = "Check Ne"}};
  Label                  Label8 {"Label8",   *this,    { 120, 3630, 1170,  540}, {.caption = "シフト　　　回転数", .english = "Shift Ne"}};
  Label                  Label9 {"Label9",   *this,    { 120, 4215, 1170,  540}, {.caption = "表示する　　最高速", .english = "Max Speed"}};
  Label                  Label10{"Label10",  *this,    { 120, 4800, 1170,  540}, {.caption = "表示する　　最高回転", .english = "Max Ne"}};
  ControlArray<TextBox>  Text1  {0, 4, Elements<TextBox>("Text1",  *this, Downward({1320, 2565, 1260, 315}, 585), {.back = kWhite})};
  ControlArray<Label>    Label15{0, 4, Elements<Label>("Label15",  *this, Downward({2640, 2610, 1815, 240}, 585), {.fontSize = 8}, {"1.000 - 3.000", "5000  - 24000", "5000  - 24000", "100   - 340", "5000  - 24000"})};

  Line                   Line1  {"Line1",    *this,     4575,   90, 4575, 5505, PaletteColour(8)};

  ControlArray<Label>    Label11{0, 1, Pair("Label11", {4680,  120, 1260,  270}, {.caption = "機種ファイル", .english = "List File"}, {5970,   90, 3390,  285}, {.border = true})};
  ControlArray<Label>    Label12{0, 1, Pair("Label12", {4680,  420, 4680,  270}, {.caption = "機種ファイル用ディレクトリ", .english = "Dir. of List File(s)"}, {4680,  690, 4680,  465}, {.fontSize = 8, .border = true})};
  DriveBox               Drive1 {"Drive1",   *this,    {4680, 1230, 2280,  315}, {.back = kWhite}};
  FolderBox              Dir1   {"Dir1",     *this,    {4680, 1590, 2280, 1260}, {.back = kWhite}};
  FileBox                File1  {"File1",    *this,    {7080, 1230, 2280, 1620}, {.back = kWhite}, "*.rat"};
  ControlArray<Label>    Label13{0, 1, Pair("Label13", {4680, 2925, 4680,  270}, {.caption = "データファイル用ディレクトリ", .english = "Dir. of Data File(s)"}, {4680, 3195, 4680,  465}, {.fontSize = 8, .border = true})};
  DriveBox               Drive2 {"Drive2",   *this,    {4680, 3735, 1560,  315}, {.back = kWhite}};
  FolderBox              Dir2   {"Dir2",     *this,    {6360, 3735, 3000, 1245}, {.back = kWhite}};

  Button                 SAVE   {"SAVE",     *this,    {6960, 5100, 1140,  390}, {.caption = "Save"}};
  Button                 CANCEL {"CANCEL",   *this,    {8220, 5100, 1140,  390}, {.caption = "Cancel"}};
  // clang-format on

 private:
  /// Makes a caption, element 0, and what stands beside or below it, element 1.
  ControlArray<Label>::Maker Pair(const char* arrayName, const Place& captionPlace, const Look& caption,
                                  const Place& secondPlace, const Look& second);
  /// A list on the left, and whether it can be typed in.
  struct Choice {
    int index;
    Place place;
    std::vector<std::string> entries;
    bool canEdit;
  };
  /// The list that is the choice `index`, which is among the choices.
  std::unique_ptr<ComboBox> MakeList(const char* arrayName, const std::vector<Choice>& choices, int index);
  ControlArray<ComboBox>::Maker Choices(const char* arrayName, const std::vector<Choice>& choices);
};

}  // namespace veldrin
