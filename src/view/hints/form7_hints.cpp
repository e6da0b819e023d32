#include "view/forms/form7.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm7() {
  static const HintRows kRows = {
      {&Form7::Label1, 0,  "Language of messages and of some titles",                                        "メッセージと一部の表記の言語"},
      {&Form7::Label1, 1,  "What the language beside it changes",                                            "左の言語で変わるもの"},
      {&Form7::Combo1, 0,  "JP, ENGLISH, or the name of a caption file (.CAP) in the program's folder",      "JP、ENGLISH、またはプログラムのフォルダーにある .CAP ファイルの名前"},
      {&Form7::Label3, 0,  "Whether unsaved changes are asked about",                                        "未保存の変更を確認するかどうか"},
      {&Form7::Label3, 1,  "What YES beside it means",                                                       "左を YES にしたときのはたらき"},
      {&Form7::Combo1, 2,  "YES ends the program and loads files without asking about unsaved changes",      "YES では、未保存の変更があっても確認せずに終了・読み込みします"},
      {&Form7::Label4, 0,  "How many files used last the File menu offers",                                  "File メニューに出す最近のファイルの数"},
      {&Form7::Label4, 1,  "What the number beside it counts",                                               "左の数の意味"},
      {&Form7::Combo1, 3,  "Number of files used last in the File menu, 1 to 12",                            "File メニューに出す最近のファイルの数（1～12）"},
      {&Form7::Label5,     "Font of the printed page",                                                       "印刷に使うフォント"},
      {&Form7::Combo1, 4,  "Fonts of the printer; the box shows itself in the one picked",                   "プリンターのフォント。選んだフォントでこの欄が表示されます"},
      {&Form7::Label6,     "Rolling length of the tyre at the start, in metres",                             "起動時のタイヤ周長（m）"},
      {&Form7::Label7,     "Check revolutions at the start, in rev/min",                                     "起動時のチェック回転数（rpm）"},
      {&Form7::Label8,     "Shift revolutions at the start, in rev/min",                                     "起動時のシフト回転数（rpm）"},
      {&Form7::Label9,     "Top of the chart, in km/h",                                                      "線図の一番上の速度（km/h）"},
      {&Form7::Label10,    "Right end of the chart, in rev/min",                                             "線図の右端の回転数（rpm）"},
      {&Form7::Text1, 0,   "Rolling length of the tyre, 1.0 to 3.0 m",                                       "タイヤ周長（1.0～3.0 m）"},
      {&Form7::Text1, 1,   "Check revolutions, 5000 to 24000 rev/min",                                       "チェック回転数（5000～24000 rpm）"},
      {&Form7::Text1, 2,   "Shift revolutions, 5000 to 24000 rev/min",                                       "シフト回転数（5000～24000 rpm）"},
      {&Form7::Text1, 3,   "Highest speed of the chart, 100 to 340 km/h",                                    "線図の最高速度（100～340 km/h）"},
      {&Form7::Text1, 4,   "Highest revolutions of the chart, 5000 to 24000 rev/min",                        "線図の最高回転数（5000～24000 rpm）"},
      {&Form7::Label15, 0, "Tyres that are taken, m",                                                        "入力できるタイヤ周長（m）"},
      {&Form7::Label15, 1, "Check revolutions that are taken, rev/min",                                      "入力できるチェック回転数（rpm）"},
      {&Form7::Label15, 2, "Shift revolutions that are taken, rev/min",                                      "入力できるシフト回転数（rpm）"},
      {&Form7::Label15, 3, "Highest speeds that are taken, km/h",                                            "入力できる最高速度（km/h）"},
      {&Form7::Label15, 4, "Highest revolutions that are taken, rev/min",                                    "入力できる最高回転数（rpm）"},

      {&Form7::Label11, 0, "The machine that the program starts with",                                       "起動時の機種"},
      {&Form7::Label11, 1, "List file that is opened at the start",                                          "起動時に開く機種ファイル"},
      {&Form7::Label12, 0, "Where the list files of the machines are",                                       "機種ファイルのあるところ"},
      {&Form7::Label12, 1, "Folder of the list files",                                                       "機種ファイルのフォルダー"},
      {&Form7::Drive1,     "Drive of the list files",                                                        "機種ファイルのドライブ"},
      {&Form7::Dir1,       "Folders for the list files; a double click opens one",                           "機種ファイルのフォルダー一覧。ダブルクリックで開きます"},
      {&Form7::File1,      "List files of the folder; a click picks the one for the start",                  "フォルダーの機種ファイル。クリックで起動時の機種に選びます"},
      {&Form7::Label13, 0, "Where the plan files are",                                                       "プランファイルのあるところ"},
      {&Form7::Label13, 1, "Folder of the plan files",                                                       "プランファイルのフォルダー"},
      {&Form7::Drive2,     "Drive of the plan files",                                                        "プランファイルのドライブ"},
      {&Form7::Dir2,       "Folders for the plan files; a double click opens one",                           "プランファイルのフォルダー一覧。ダブルクリックで開きます"},
      {&Form7::SAVE,       "Save: keeps the settings; they hold from the next start on",                     "Save：設定を保存します。次の起動から有効になります"},
      {&Form7::CANCEL,     "Cancel: leaves the settings as they were",                                       "Cancel：設定を変えずに閉じます"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
