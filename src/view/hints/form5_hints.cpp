#include "view/forms/form5.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm5() {
  static const HintRows kRows = {
      {&Form5::Label10,   "SELECT: the plans compared, one at a time",                                       "比べるプランを 1 つずつ見ます"},
      {&Form5::Spin1,     "Up shows the next plan, down the one before; the ends meet",                      "上で次のプラン、下で前のプラン。端まで行くと反対の端に移ります"},
      {&Form5::Label13,   "Filename: where the plan shown comes from",                                       "Filename：表示しているプランのファイル"},
      {&Form5::Label2,    "File of the plan shown, or that of the main window",                              "表示しているプランのファイル名、またはメイン画面のプラン"},
      {&Form5::Label14,   "Title: the remark on the plan shown",                                             "Title：表示しているプランのメモ"},
      {&Form5::Label1,    "First line of the plan's remark; of the main window's plan all of it",            "メモの 1 行目（メイン画面のプランではメモ全体）"},
      {&Form5::Command1,  "Adds a plan file to the comparison, up to two",                                   "比べるプランファイルを追加します（2 つまで）"},
      {&Form5::Command2,  "Exit: back to the main window; nothing there has changed",                        "Exit：メイン画面に戻ります。プランは変わりません"},

      {&Form5::Picture13, "What the plan shown is made with",                                                "表示しているプランの条件"},
      {&Form5::Label5,    "Primary: the primary reduction of the plan shown",                                "Primary：表示しているプランのプライマリー"},
      {&Form5::Label6,    "Primary reduction of the plan shown, teeth driving-driven",                       "表示しているプランのプライマリー（歯数、駆動側-被動側）"},
      {&Form5::Label7,    "Final: the final drive of the plan shown",                                        "Final：表示しているプランのファイナル"},
      {&Form5::Label8,    "Final drive of the plan shown, teeth driving-driven",                             "表示しているプランのファイナル（歯数、前-後）"},
      {&Form5::Label17,   "TYRE_L: rolling length of the tyre",                                              "TYRE_L：タイヤ周長"},
      {&Form5::Label15,   "Rolling length of the tyre in the plan shown, m",                                 "表示しているプランのタイヤ周長（m）"},
      {&Form5::Label23,   "Shift_Ne: shift revolutions",                                                     "Shift_Ne：シフト回転数"},
      {&Form5::Label16,   "Shift revolutions of the plan shown, rev/min",                                    "表示しているプランのシフト回転数（rpm）"},

      {&Form5::Picture2,   "The gears, one a row",                                                           "ギヤ、1 行に 1 つ"},
      {&Form5::Label9, 0,  "GEAR: one a row, the 6th on top",                                                "GEAR：1 行が 1 つのギヤ、一番上が 6 速"},
      {&Form5::Label3,     "{gear} gear, in the colour of its line in the chart",                            "{gear}。線図の線と同じ色です"},
      {&Form5::Picture14,  "Speeds of the plan shown",                                                       "表示しているプランの速度"},
      {&Form5::Label9, 7,  "SPEED: speeds at the plan's shift revolutions, km/h",                            "SPEED：プランのシフト回転数での速度（km/h）"},
      {&Form5::Label9,     "Speed of the {gear} gear in the plan shown, km/h",                               "表示しているプランの {gear}の速度（km/h）"},
      {&Form5::Picture25,  "Steps between the speeds of the plan shown",                                     "表示しているプランの速度の差"},
      {&Form5::Label39,    "Step from the {gear} to the {next} gear in the plan shown, km/h",                "表示しているプランの {gear}と {next}の速度の差（km/h）"},
      {&Form5::Picture16,  "Revolutions after changing up in the plan shown",                                "表示しているプランのシフトアップ後の回転数"},
      {&Form5::Label11, 0, "Shift: revolutions after changing up into each gear, rev/min",                   "Shift：各ギヤに上げた直後の回転数（rpm）"},
      {&Form5::Label11, 1, "1st gear: the shift revolutions themselves, rev/min",                            "1 速：シフト回転数そのもの（rpm）"},
      {&Form5::Label11,    "Revolutions after changing up into the {gear} gear, rev/min",                    "{gear}に上げた直後の回転数（rpm）"},
      {&Form5::Picture17,  "Gear pairs of the plan shown",                                                   "表示しているプランのギヤ"},
      {&Form5::Label12, 0, "PLAN: the gear pair of each gear",                                               "PLAN：各ギヤ"},
      {&Form5::Label12,    "Gear pair of the {gear} gear in the plan shown",                                 "表示しているプランの {gear}のギヤ"},

      {&Form5::Picture19,    "Chart: speed upward in km/h, revolutions to the right in 1000 rev/min",        "線図：縦は速度（km/h）、横は回転数（1000 rpm）"},
      {&Form5::Picture21, 0, "Speeds of the main window's plan by revolutions, and its saw-tooth",           "メイン画面のプランの速度と、のこぎり線"},
      {&Form5::Picture21, 1, "Speeds of the first file's plan by revolutions, and its saw-tooth",            "1 つ目のファイルのプランの速度と、のこぎり線"},
      {&Form5::Picture21, 2, "Speeds of the second file's plan by revolutions, and its saw-tooth",           "2 つ目のファイルのプランの速度と、のこぎり線"},
      {&Form5::Label18,    "300 km/h on the scale of speeds",                                                "速度の目盛り、300 km/h"},
      {&Form5::Label19,    "200 km/h on the scale of speeds",                                                "速度の目盛り、200 km/h"},
      {&Form5::Label20,    "100 km/h on the scale of speeds",                                                "速度の目盛り、100 km/h"},
      {&Form5::Label21,    "0 km/h and 0 rev/min, where both scales begin",                                  "速度と回転数の原点（0 km/h、0 rpm）"},
      {&Form5::Label22, 0, "5000 rev/min on the scale of revolutions",                                       "回転数の目盛り、5000 rpm"},
      {&Form5::Label22, 1, "10000 rev/min on the scale of revolutions",                                      "回転数の目盛り、10000 rpm"},
      {&Form5::Label22, 2, "15000 rev/min on the scale of revolutions",                                      "回転数の目盛り、15000 rpm"},
      {&Form5::Label22, 3, "20000 rev/min on the scale of revolutions",                                      "回転数の目盛り、20000 rpm"},
      {&Form5::Label22, 4, "The scale of revolutions counts thousands of rev/min",                           "回転数の目盛りの単位は 1000 rpm"},

      {&Form5::Picture3,   "Choosing a plan file for the comparison",                                        "比べるプランファイルを選びます"},
      {&Form5::Drive1,     "Drive that is listed",                                                           "ドライブ"},
      {&Form5::Dir1,       "Folders; a double click opens one",                                              "フォルダー。ダブルクリックで開きます"},
      {&Form5::File1,      "Plan files of the folder; a click picks one, a double click adds it at once",    "プランファイル。クリックで選び、ダブルクリックで追加します"},
      {&Form5::Combo1,     "Plan file that is picked",                                                       "選んだプランファイル"},
      {&Form5::Command4,   "Load: adds the plan file that is picked",                                        "Load：選んだプランファイルを追加します"},
      {&Form5::Command5,   "Back to the comparison as it was",                                               "追加せずに戻ります"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
