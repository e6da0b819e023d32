#include "view/forms/form4.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm4() {
  static const HintRows kRows = {
      {&Form4::Label3,     "Select: the plans found, one at a time",                                         "見つかったプランを 1 つずつ見ます"},
      {&Form4::Spin1,      "Up shows the next plan found, down the one before; the ends meet",               "上で次のプラン、下で前のプラン。端まで行くと反対の端に移ります"},
      {&Form4::Label6,     "Which of the plans found this is, and how many there are",                       "何番目のプランか／見つかった数"},
      {&Form4::Label4,     "Primary: the primary reduction of this plan",                                    "Primary：このプランのプライマリー"},
      {&Form4::Label1,     "Primary reduction of this plan, teeth driving-driven",                           "このプランのプライマリー（歯数、駆動側-被動側）"},
      {&Form4::Label5,     "Final: the final drive of this plan",                                            "Final：このプランのファイナル"},
      {&Form4::Label2,     "Final drive of this plan, teeth driving-driven",                                 "このプランのファイナル（歯数、前-後）"},
      {&Form4::Label7,     "TYRE_L: rolling length of the tyre",                                             "TYRE_L：タイヤ周長"},
      {&Form4::Label8,     "Rolling length of the tyre in the search, m",                                    "検索に使ったタイヤ周長（m）"},
      {&Form4::Label9,     "Shift_Ne: shift revolutions",                                                    "Shift_Ne：シフト回転数"},
      {&Form4::Label10,    "Shift revolutions in the search, rev/min",                                       "検索に使ったシフト回転数（rpm）"},
      {&Form4::Label17,    "{gear} gear, in the colour of its lines in the chart",                           "{gear}。線図の線と同じ色です"},
      {&Form4::Label11, 0, "REQ: speeds wanted, km/h",                                                       "REQ：要求速度（km/h）"},
      {&Form4::Label11,    "Speed wanted in the {gear} gear, km/h",                                          "{gear}の要求速度（km/h）"},
      {&Form4::Label24, 0, "SPEED: speeds of this plan at the shift revolutions, km/h",                      "SPEED：このプランの速度（シフト回転数で、km/h）"},
      {&Form4::Label24,    "Speed of the {gear} gear in this plan, km/h",                                    "このプランの {gear}の速度（km/h）"},
      {&Form4::Label39,    "Step from the {gear} to the {next} gear in this plan, km/h",                     "このプランの {gear}と {next}の速度の差（km/h）"},
      {&Form4::Label12, 0, "PLAN: the gear pair of each gear",                                               "PLAN：各ギヤ"},
      {&Form4::Label12,    "Gear pair of the {gear} gear in this plan",                                      "このプランの {gear}のギヤ"},
      {&Form4::Picture19,  "Chart: speed upward in km/h, revolutions to the right in 1000 rev/min",          "線図：縦は速度（km/h）、横は回転数（1000 rpm）"},
      {&Form4::Picture21,  "Solid lines: speeds of this plan; dotted lines: the speeds wanted",              "実線はこのプランの速度、点線は要求速度"},
      {&Form4::Label18,    "300 km/h on the scale of speeds",                                                "速度の目盛り、300 km/h"},
      {&Form4::Label19,    "200 km/h on the scale of speeds",                                                "速度の目盛り、200 km/h"},
      {&Form4::Label20,    "100 km/h on the scale of speeds",                                                "速度の目盛り、100 km/h"},
      {&Form4::Label21,    "0 km/h and 0 rev/min, where both scales begin",                                  "速度と回転数の原点（0 km/h、0 rpm）"},
      {&Form4::Label22, 0, "5000 rev/min on the scale of revolutions",                                       "回転数の目盛り、5000 rpm"},
      {&Form4::Label22, 1, "10000 rev/min on the scale of revolutions",                                      "回転数の目盛り、10000 rpm"},
      {&Form4::Label22, 2, "15000 rev/min on the scale of revolutions",                                      "回転数の目盛り、15000 rpm"},
      {&Form4::Label22, 3, "20000 rev/min on the scale of revolutions",                                      "回転数の目盛り、20000 rpm"},
      {&Form4::Label22, 4, "The scale of revolutions counts thousands of rev/min",                           "回転数の目盛りの単位は 1000 rpm"},
      {&Form4::Command1,   "O K: takes this plan into the main window",                                      "O K：このプランをメイン画面に取り入れます"},
      {&Form4::Command2,   "Back to the speeds wanted; the plan in the main window stays",                   "要求速度の入力に戻ります。プランは変わりません"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
