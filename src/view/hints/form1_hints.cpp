#include "view/forms/form1.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm1() {
  static const HintRows kRows = {
      {&Form1::Pic1,   "The program is starting; the main window follows by itself", "起動しています。まもなくメイン画面が出ます"},
      {&Form1::Label1, "The program's name",                                         "プログラムの名前"},
      {&Form1::Label2, "What the program is for: choosing the gearing of a machine", "プログラムの用途：マシンのギヤ比を決めます"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
