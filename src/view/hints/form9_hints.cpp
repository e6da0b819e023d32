#include "view/forms/form9.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm9() {
  static const HintRows kRows = {
      {&Form9::Label2, 0,   "NOW: the colours in use",                                                       "NOW：今の色"},
      {&Form9::Label2, 1,   "AFTER: the colours as picked; OK takes them",                                   "AFTER：選んだ色。OK で決まります"},
      {&Form9::Picture2, 0, "Row of the colours in use",                                                     "今の色の列"},
      {&Form9::Picture2, 1, "Row of the colours picked",                                                     "選んだ色の列"},
      {&Form9::Label1, 1,   "Colour of the 1st gear now",                                                    "1 速の今の色"},
      {&Form9::Label1, 2,   "Colour of the 2nd gear now",                                                    "2 速の今の色"},
      {&Form9::Label1, 3,   "Colour of the 3rd gear now",                                                    "3 速の今の色"},
      {&Form9::Label1, 4,   "Colour of the 4th gear now",                                                    "4 速の今の色"},
      {&Form9::Label1, 5,   "Colour of the 5th gear now",                                                    "5 速の今の色"},
      {&Form9::Label1, 6,   "Colour of the 6th gear now",                                                    "6 速の今の色"},
      {&Form9::Label1,      "Colour of the {gear} gear after OK",                                            "OK のあとの {gear}の色"},
      {&Form9::Command1,    "Picks a colour for the {gear} gear, beginning with the one in use",             "{gear}の色を、今の色から選びます"},
      {&Form9::Command2,    "OK: takes the lower row and keeps it",                                          "OK：下の列の色に決めます"},
      {&Form9::Command3,    "Cancel: leaves the colours as they are",                                        "Cancel：色を変えずに閉じます"},
      {&Form9::Command4,    "Default: takes the colours that the program came with, at once",                "Default：はじめの色にすぐ戻します"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
