#include "view/forms/form2.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm2() {
  static const HintRows kRows = {
      // The header strip.
      {&Form2::Picture13, "Makes, loads, compares, saves and prints plans; primary and final ratio",       "プランの作成・読み込み・比較・保存・印刷と、プライマリーとファイナル"},
      {&Form2::Command2,  "Mode: on to entering speeds; right button: by revolutions",                     "Mode：要求速度の入力に移ります。右ボタンでは回転数で入力します"},
      {&Form2::Command3,  "Load: opens a plan file; a list file chosen there changes the machine",         "Load：プランを開きます。機種ファイルを選ぶと機種が変わります"},
      {&Form2::Picture28, "Print: the plan, its figures and its chart on one page",                        "印刷：プランの数値と線図を 1 ページに印刷します"},
      {&Form2::Label5,    "Primary: the primary reduction of the plan",                                    "Primary：プランのプライマリー（1 次減速）"},
      {&Form2::Label6,    "Primary reduction in use, teeth driving-driven",                                "使っているプライマリー（歯数、駆動側-被動側）"},
      {&Form2::Spin4,     "Steps through the primary reductions; up is faster at the same revolutions",    "プライマリーを 1 段ずつ替えます。上がロング（高速）側です"},
      {&Form2::Label7,    "Final: the final drive of the plan",                                            "Final：プランのファイナル（2 次減速）"},
      {&Form2::Label8,    "Final drive in use, teeth driving-driven; a click lists all that can be fitted", "使っているファイナル（歯数、前-後）。クリックで一覧が出ます"},
      {&Form2::Spin5,     "Steps through the final drives; up is faster at the same revolutions",          "ファイナルを 1 段ずつ替えます。上がロング（高速）側です"},
      {&Form2::Command4,  "Compare: shows this plan and up to two plan files in turn",                     "Compare：このプランと、2 つまでのプランファイルを比べます"},
      {&Form2::Command5,  "Save: writes the plan and its remark into a plan file",                         "Save：プランとメモをプランファイルに保存します"},

      // The chart.
      {&Form2::Picture19,     "Chart: speed upward in km/h, revolutions to the right in 1000 rev/min",     "線図：縦は速度（km/h）、横は回転数（1000 rpm）"},
      {&Form2::Picture21,     "Speed of each gear by revolutions, and the saw-tooth of changing up;\ndouble click or right button: the shaft parts of the plan", "回転数に対する各ギヤの速度と、シフトアップののこぎり線。\nダブルクリックか右ボタンで、プランの部品表が出ます"},
      {&Form2::Picture31,     "Which lines of the chart are the original plan's, and which the present one's", "線図の線の見分け方：元のプランと今のプラン"},
      {&Form2::Label41,       "ORG: dotted lines, the speeds of the original plan",                        "ORG：点線は元のプランの速度"},
      {&Form2::Label43,       "Solid lines: the present plan (CHG), or the speeds wanted (REQ)",           "実線は今のプラン（CHG）、または要求速度（REQ）"},
      {&Form2::Label38,       "Request Mode: the chart shows the speeds wanted; Mode leads back to the plan", "Request Mode：線図は要求速度です。Mode でプランに戻ります"},
      {&Form2::Label18,       "300 km/h on the scale of speeds",                                           "速度の目盛り、300 km/h"},
      {&Form2::Label19,       "200 km/h on the scale of speeds",                                           "速度の目盛り、200 km/h"},
      {&Form2::Label20,       "100 km/h on the scale of speeds",                                           "速度の目盛り、100 km/h"},
      {&Form2::Label21,       "0 km/h and 0 rev/min, where both scales begin",                             "速度と回転数の原点（0 km/h、0 rpm）"},
      {&Form2::Label22, 0,    "5000 rev/min on the scale of revolutions",                                  "回転数の目盛り、5000 rpm"},
      {&Form2::Label22, 1,    "10000 rev/min on the scale of revolutions",                                 "回転数の目盛り、10000 rpm"},
      {&Form2::Label22, 2,    "15000 rev/min on the scale of revolutions",                                 "回転数の目盛り、15000 rpm"},
      {&Form2::Label22, 3,    "20000 rev/min on the scale of revolutions",                                 "回転数の目盛り、20000 rpm"},
      {&Form2::Label22, 4,    "The scale of revolutions counts thousands of rev/min",                      "回転数の目盛りの単位は 1000 rpm"},

      // Below the chart and the panels.
      {&Form2::Picture29, "What the two bars beside this set",                                             "右の 2 本のスクロールバーの名前"},
      {&Form2::Label27,   "Shift Ne: the revolutions at which gears are changed up, rev/min",              "Shift Ne：シフトアップする回転数（rpm）"},
      {&Form2::Label26,   "Check Ne: the revolutions at which plan and original are compared, rev/min",    "Check Ne：元のプランと比べる回転数（rpm）"},
      {&Form2::HScroll1,  "Shift revolutions: 100 rev/min a step, 1000 a page",                            "シフト回転数：1 段 100 rpm、1 ページ 1000 rpm"},
      {&Form2::HScroll2,  "Check revolutions: 100 rev/min a step, 1000 a page",                            "チェック回転数：1 段 100 rpm、1 ページ 1000 rpm"},
      {&Form2::Label13,   "Remark: your notes on the plan, below",                                         "Remark：下の欄はプランのメモです"},
      {&Form2::Text6,     "Your notes on the plan; they are saved and printed with it",                    "プランのメモ。プランと一緒に保存・印刷されます"},
      {&Form2::Label23,   "The search is trying all combinations; the window answers when it is through",  "すべての組み合わせを調べています。終わるまでお待ちください"},

      // The combination panel.
      {&Form2::Picture9,  "Shaft parts that the plan takes; a double click closes the table",              "プランに使うシャフトの部品表。ダブルクリックで閉じます"},
      {&Form2::Label28,   "Plan: the gear pairs of the plan",                                              "Plan：プランの各ギヤ"},
      {&Form2::Label29,   "Main: parts on the main shaft",                                                 "Main：メインシャフト側の部品"},
      {&Form2::Label30,   "Count: parts on the counter shaft",                                             "Count：カウンターシャフト側の部品"},
      {&Form2::Picture22, "Gears of the parts to the right, the 6th on top",                               "右の部品のギヤ。一番上が 6 速です"},
      {&Form2::Label44,   "The parts to the right belong to the {gear} gear",                              "右は {gear}の部品です"},
      {&Form2::Label31,   "Gear pair of the {gear} gear that the parts make up",                           "部品で組む {gear}のギヤ"},
      {&Form2::Label32, 3, "Main-shaft part of the 3rd gear, on many machines of the 4th as well",         "3 速のメインシャフト側の部品。4 速と共通の機種もあります"},
      {&Form2::Label32,   "Main-shaft part of the {gear} gear",                                            "{gear}のメインシャフト側の部品"},
      {&Form2::Label33,   "Counter-shaft part of the {gear} gear",                                         "{gear}のカウンターシャフト側の部品"},

      // Lists to pick from, and the question of the decision panel.
      {&Form2::Picture23, "List of what can be fitted in the {gear} gear",                                 "{gear}に組めるギヤの一覧"},
      {&Form2::Grid2,     "Gear pairs for the {gear} gear: pick one, or leave the list to change nothing", "{gear}のギヤ：選ぶと替わります。ほかを選ぶと閉じます"},
      {&Form2::Picture24, "List of the final drives that can be fitted",                                   "組めるファイナルの一覧"},
      {&Form2::Grid1,     "Final drives, the fastest on top: pick one, or leave the list to change nothing", "ファイナル（上が高速側）：選ぶと替わります。ほかを選ぶと閉じます"},
      {&Form2::Picture20, "A question that waits for one of its two answers",                              "2 つの答えのどちらかを待っています"},
      {&Form2::Label17,   "The question; it can wait, but the buttons below answer it",                    "質問です。下のボタンで答えます"},
      {&Form2::Command8,  "First answer to the question above",                                            "上の質問への 1 つ目の答え"},
      {&Form2::Command9,  "Second answer to the question above",                                           "上の質問への 2 つ目の答え"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
