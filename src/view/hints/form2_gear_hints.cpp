#include "view/forms/form2.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& GearHintsOfForm2() {
  static const HintRows kRows = {
      // Which gear is the main one.
      {&Form2::Picture1,   "Which gear the search holds within 1 km/h of its request",                     "検索で要求から 1 km/h 以内に抑えるギヤを選びます"},
      {&Form2::Label4,     "Pri: the main gear, held within 1 km/h of its request",                        "Pri：要求から 1 km/h 以内に抑えるギヤ"},
      {&Form2::Option1, 0, "None: no main gear; the search allows all gears the same difference",          "None：どのギヤも優先せず、同じ差まで許します"},
      {&Form2::Option1,    "Makes the {gear} gear the main one: at most 1 km/h off its request",           "{gear}を優先します：要求との差は 1 km/h 以内です"},

      // Gear names and stored speeds.
      {&Form2::Picture2,   "The gears, one a row",                                                         "ギヤ、1 行に 1 つ"},
      {&Form2::Label1, 0,  "GEAR: one a row, the 6th on top",                                              "GEAR：1 行が 1 つのギヤ、一番上が 6 速"},
      {&Form2::Label1,     "{gear} gear, in the colour of its lines in the chart",                         "{gear}。線図の線と同じ色です"},
      {&Form2::Picture3,   "The original plan, which the present one is compared with",                    "比べるもとになる、元のプラン"},
      {&Form2::Label2, 0,  "ORG: speeds of the original plan at its shift revolutions, km/h",              "ORG：元のプランの速度（そのシフト回転数で、km/h）"},
      {&Form2::Label2,     "Speed of the {gear} gear in the original plan, km/h",                          "元のプランの {gear}の速度（km/h）"},
      {&Form2::Command11,  "O<C: takes the present plan as the original (ORG)",                            "O<C：今のプランを元のプラン（ORG）にします"},

      // Request of speeds.
      {&Form2::Picture4,   "Entering the speeds that a search is to meet",                                 "検索する速度（要求速度）を入力します"},
      {&Form2::Picture5,   "Speeds wanted, a box for each gear",                                           "各ギヤの要求速度の欄"},
      {&Form2::Label16,    "REQ: speeds wanted at the shift revolutions, whole km/h",                      "REQ：シフト回転数での要求速度（整数、km/h）"},
      {&Form2::Text1,      "Speed wanted in the {gear} gear, km/h, 10 or more;\nEnter: next lower gear; left, right: 1 less, 1 more; double click: empty", "{gear}の要求速度（km/h、10 以上）。\nEnter で下のギヤへ、左右の矢印で 1 ずつ、ダブルクリックで消去"},
      {&Form2::Picture27,  "Steps between the speeds wanted",                                              "要求速度の差"},
      {&Form2::Label25,    "Step wanted from the {gear} to the {next} gear, km/h",                         "要求速度の {gear}と {next}の差（km/h）"},
      {&Form2::Picture6,   "How far each gear may be off its request",                                     "各ギヤの許容差の決め方"},
      {&Form2::Label3,     "MODE: AUTO leaves the tolerance to the search, MANUAL takes yours",            "MODE：AUTO は許容差を検索に任せ、MANUAL は自分で決めます"},
      {&Form2::Command1, 0, "FULL AUTO: sets all six gears to AUTO",                                       "FULL AUTO：6 つのギヤをすべて AUTO にします"},
      {&Form2::Command1,   "{gear} gear: AUTO leaves its tolerance to the search, MANUAL takes yours",     "{gear}：AUTO は許容差を検索に任せ、MANUAL は自分で決めます"},
      {&Form2::Picture7,   "Tolerances downward",                                                          "下側の許容差"},
      {&Form2::Label14, 0, "-: how far below its request a gear may lie, km/h",                            "-：要求よりどれだけ遅くてよいか（km/h）"},
      {&Form2::Label14,    "How far below its request the {gear} gear may lie, km/h",                      "{gear}が要求よりどれだけ遅くてよいか（km/h）"},
      {&Form2::Picture8,   "Arrows for the tolerances downward",                                           "下側の許容差の矢印"},
      {&Form2::Spin1,      "Tolerance of the {gear} gear downward, 1 to 21 km/h: down widens, up narrows", "{gear}の下側の許容差（1～21 km/h）：下で広く、上で狭く"},
      {&Form2::Picture11,  "Tolerances upward",                                                            "上側の許容差"},
      {&Form2::Label15, 0, "+: how far above its request a gear may lie, km/h",                            "+：要求よりどれだけ速くてよいか（km/h）"},
      {&Form2::Label15,    "How far above its request the {gear} gear may lie, km/h",                      "{gear}が要求よりどれだけ速くてよいか（km/h）"},
      {&Form2::Picture10,  "Arrows for the tolerances upward",                                             "上側の許容差の矢印"},
      {&Form2::Spin3,      "Tolerance of the {gear} gear upward, 1 to 21 km/h: up widens, down narrows",   "{gear}の上側の許容差（1～21 km/h）：上で広く、下で狭く"},
      {&Form2::Command10,  "O>R: takes the original speeds (ORG) as those wanted (REQ)",                   "O>R：元のプランの速度（ORG）を要求速度（REQ）にします"},
      {&Form2::Command6,   "Searches all combinations for plans that meet the speeds wanted",              "すべての組み合わせから、要求速度に合うプランを探します"},

      // Request of revolutions.
      {&Form2::Picture30,  "Entering what is wanted by revolutions at the same road speed",                "同じ車速での回転数で要求を入力します"},
      {&Form2::Label36,    "BASE_Ne: revolutions in the original plan, rev/min",                           "BASE_Ne：元のプランでの回転数（rpm）"},
      {&Form2::Label34,    "What the engine turns in the {gear} gear of the original plan, rev/min;\ndouble click: both columns to the check revolutions", "元のプランの {gear}での回転数（rpm）。\nダブルクリックで両方の列がチェック回転数になります"},
      {&Form2::SpinButton1, "Steps BASE_Ne of the {gear} gear by 50 rev/min; REQ_Ne follows",              "{gear}の BASE_Ne を 50 rpm ずつ変えます。REQ_Ne も同じになります"},
      {&Form2::Label37,    "REQ_Ne: revolutions wanted at the same road speed, rev/min",                   "REQ_Ne：同じ車速で回したい回転数（rpm）"},
      {&Form2::Label35,    "What the engine should turn in the {gear} gear at the same speed, rev/min",    "同じ車速のとき {gear}で回したい回転数（rpm）"},
      {&Form2::SpinButton2, "Steps REQ_Ne of the {gear} gear by 50 rev/min; the speed wanted follows",     "{gear}の REQ_Ne を 50 rpm ずつ変えます。要求速度も変わります"},

      // The plan.
      {&Form2::Picture12,  "The plan, its speeds, and what it changes",                                    "今のプランとその速度、元との違い"},
      {&Form2::Picture25,  "Steps between the speeds of the original plan",                                "元のプランの速度の差"},
      {&Form2::Label39,    "Step from the {gear} to the {next} gear in the original plan, km/h",           "元のプランの {gear}と {next}の速度の差（km/h）"},
      {&Form2::Picture14,  "Speeds of the present plan",                                                   "今のプランの速度"},
      {&Form2::Label9, 0,  "CHG: speeds of the present plan at the shift revolutions, km/h",               "CHG：今のプランの速度（シフト回転数で、km/h）"},
      {&Form2::Label9,     "Speed of the {gear} gear at the shift revolutions, km/h",                      "シフト回転数での {gear}の速度（km/h）"},
      {&Form2::Picture26,  "Steps between the speeds of the present plan",                                 "今のプランの速度の差"},
      {&Form2::Label40,    "Step from the {gear} to the {next} gear, km/h",                                "{gear}と {next}の速度の差（km/h）"},
      {&Form2::Picture16,  "Revolutions after changing up",                                                "シフトアップ後の回転数"},
      {&Form2::Label11, 0, "Shift: revolutions after changing up into each gear, rev/min",                 "Shift：各ギヤに上げた直後の回転数（rpm）"},
      {&Form2::Label11, 1, "1st gear: the shift revolutions themselves, rev/min",                          "1 速：シフト回転数そのもの（rpm）"},
      {&Form2::Label11,    "Revolutions after changing up into the {gear} gear, rev/min",                  "{gear}に上げた直後の回転数（rpm）"},
      {&Form2::Text4,      "Shift revolutions, 5000 to 24000 rev/min; Enter or leaving takes them over;\ndouble click empties the box", "シフト回転数（5000～24000 rpm）。Enter か欄を出ると有効になります。\nダブルクリックで消去"},
      {&Form2::Picture15,  "Differences from the original plan in revolutions",                            "元のプランとの回転数の差"},
      {&Form2::Label10, 0, "+/-: difference from the original plan at the check revolutions, rev/min",     "+/-：チェック回転数での元のプランとの差（rpm）"},
      {&Form2::Label10,    "{gear} gear: difference from the original at the check revolutions, rev/min",  "{gear}：チェック回転数での元との差（rpm）"},
      {&Form2::Text2,      "Check revolutions, 5000 to 24000 rev/min; Enter or leaving takes them over;\ndouble click empties the box", "チェック回転数（5000～24000 rpm）。Enter か欄を出ると有効になります。\nダブルクリックで消去"},
      {&Form2::Picture32,  "Differences from the original plan in speed",                                  "元のプランとの速度の差"},
      {&Form2::Label_Dif,  "{gear} gear: speed of the present plan less that of the original, km/h",       "{gear}：今のプランと元のプランの速度の差（km/h）"},
      {&Form2::Picture34,  "Head of the differences in speed",                                             "速度の差の見出し"},
      {&Form2::Label45,    "Difference: present speeds less the original ones, km/h",                      "Difference：今の速度から元の速度を引いた差（km/h）"},
      {&Form2::Picture17,  "Gear pairs of the plan",                                                       "プランの各ギヤ"},
      {&Form2::Label12, 0, "PLAN: the gear pair chosen for each gear",                                     "PLAN：各ギヤに選んだもの"},
      {&Form2::Label12, 3, "Gear pair of the 3rd gear; a click lists all; red: cannot be fitted with the 4th;\nyellow: the speed does not rise to the next gear", "3 速のギヤ。クリックで一覧。赤：4 速と同時に組めません。\n黄：隣のギヤへ速度が上がりません"},
      {&Form2::Label12, 4, "Gear pair of the 4th gear; a click lists all; red: cannot be fitted with the 3rd;\nyellow: the speed does not rise to the next gear", "4 速のギヤ。クリックで一覧。赤：3 速と同時に組めません。\n黄：隣のギヤへ速度が上がりません"},
      {&Form2::Label12,    "Gear pair of the {gear} gear; a click lists all;\nyellow: the speed does not rise to the next gear", "{gear}のギヤ。クリックで一覧。\n黄：隣のギヤへ速度が上がりません"},
      {&Form2::Picture18,  "Arrows for the gear pairs",                                                    "ギヤを替える矢印"},
      {&Form2::Spin6,      "Steps through the gear pairs of the {gear} gear, in the order of the list",    "{gear}のギヤを機種ファイルの順に 1 つずつ替えます"},
      {&Form2::Text3,      "Rolling length of the tyre, 1.0 to 3.0 m; Enter or leaving takes it over;\ndouble click empties the box", "タイヤ周長（1.0～3.0 m）。Enter か欄を出ると有効になります。\nダブルクリックで消去"},
      {&Form2::Label24,    "Tyre L: the road that one turn of the tyre rolls, in metres",                  "Tyre L：タイヤ 1 回転で進む長さ（m）"},
      {&Form2::Label42,    "Check: the revolutions at which the column above compares, rev/min",           "Check：上の列で比べる回転数（rpm）"},
      {&Form2::Command7,   "Restore: brings the plan back as it was loaded or last saved",                 "Restore：読み込んだとき、または最後に保存したときのプランに戻します"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
