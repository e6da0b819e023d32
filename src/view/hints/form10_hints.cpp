#include "view/forms/form10.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm10() {
  static const HintRows kRows = {
      {&Form10::Label41,       "Title of the window",                                                        "ウィンドウのタイトル"},
      {&Form10::Picture_Roll,  "Rolls the window up to its title, and down again",                           "ウィンドウをタイトルだけに巻き上げ、もう一度で戻します"},
      {&Form10::Picture_Close, "Closes the window",                                                          "ウィンドウを閉じます"},
      {&Form10::Label_Version, "Version of the program",                                                     "プログラムの版"},
      {&Form10::Label_CPU,     "Processor of the computer",                                                  "パソコンの CPU"},
      {&Form10::Label_Ram,     "Memory of the computer",                                                     "パソコンのメモリー"},
      {&Form10::Picture1,      "Bar: how much of the memory is free",                                        "バー：メモリーの空き"},
      {&Form10::Label_Free,    "Free memory, percent",                                                       "メモリーの空き（%）"},
      {&Form10::Label_VirRam,  "Size of the swap file",                                                      "スワップファイルの大きさ"},
      {&Form10::Label_Res,     "Size of the screen, pixels",                                                 "画面の大きさ（画素）"},
      {&Form10::Label_HDD,     "Free space on drive C:",                                                     "ドライブ C: の空き"},
      {&Form10::Picture2,      "Bar: how much of drive C: is free",                                          "バー：ドライブ C: の空き"},
      {&Form10::Label3,        "Opens the home page of the program",                                         "プログラムのホームページを開きます"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
