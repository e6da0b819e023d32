#include "view/forms/form2.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& MenuHintsOfForm2() {
  static const HintRows kRows = {
      {&Form2::menu_file,      "File: saving, loading, printing, the files used last, and the end",         "File：保存、読み込み、印刷、最近のファイル、終了"},
      {&Form2::menu_save,      "Writes the plan and its remark into a plan file, as the button Save does",  "プランとメモを保存します（ボタン Save と同じ）"},
      {&Form2::menu_load,      "Lists, plans, references and quick ratios",                                 "機種、プラン、参照、クイックレシオの読み込み"},
      {&Form2::menu_list_load, "Opens the list file of a machine",                                          "機種ファイルを開きます"},
      {&Form2::menu_data_load, "Opens a plan file, as the button Load does",                                "プランファイルを開きます（ボタン Load と同じ）"},
      {&Form2::menu_data_ref,  "Takes the speeds of a plan file as those wanted, and searches",             "プランファイルの速度を要求速度にして検索します"},
      {&Form2::menu_qr,        "Takes tyre, revolutions and speeds of a quick-ratio file, and searches",    "クイックレシオファイルのタイヤ・回転数・速度で検索します"},
      {&Form2::menu_del,       "Deletes a plan file of this machine",                                       "この機種のプランファイルを消去します"},
      {&Form2::menu_folder,    "Opens the folder of the plan files on the desktop",                         "プランファイルのフォルダーをデスクトップで開きます"},
      {&Form2::menu_print,     "Prints the plan, its figures and its chart on one page",                    "プランの数値と線図を 1 ページに印刷します"},
      {&Form2::menu_comb,      "Shows the shaft parts of the plan over the chart, or hides them again",     "線図の上にプランの部品表を出し、もう一度で隠します"},
      {&Form2::menu_quit,      "Ends the program",                                                          "プログラムを終了します"},
      {&Form2::menu_files,     "Opens this plan file again, number {n} of those used last",                 "最近使った {n} 番目のプランファイルを開きます"},
      {&Form2::menu_his_clear, "Takes the files used last out of this menu; the files stay",                "最近使ったファイルの一覧を消します。ファイルは残ります"},
      {&Form2::menu_edit,      "Edit: the page of the plan as a picture",                                   "Edit：プランのページを画像にします"},
      {&Form2::menu_copy,      "A picture of the page for the clipboard or a file",                         "ページの画像をクリップボードかファイルに出します"},
      {&Form2::menu_print_clip, "The page as a picture on the clipboard, in one of these sizes",            "ページの画像をクリップボードへ。大きさを選びます"},
      {&Form2::clip, 0,        "Picture of 320 by 240 pixels on the clipboard",                             "320 x 240 画素の画像をクリップボードへ"},
      {&Form2::clip, 1,        "Picture of 400 by 300 pixels on the clipboard",                             "400 x 300 画素の画像をクリップボードへ"},
      {&Form2::clip, 2,        "Picture of 640 by 480 pixels on the clipboard",                             "640 x 480 画素の画像をクリップボードへ"},
      {&Form2::clip, 3,        "Picture of 800 by 600 pixels on the clipboard",                             "800 x 600 画素の画像をクリップボードへ"},
      {&Form2::clip, 4,        "Picture of 1024 by 768 pixels on the clipboard",                            "1024 x 768 画素の画像をクリップボードへ"},
      {&Form2::clip, 5,        "Picture of 1280 by 960 pixels on the clipboard",                            "1280 x 960 画素の画像をクリップボードへ"},
      {&Form2::menu_print_bmp, "The page as a picture in a BMP file, in one of these sizes",                "ページの画像を BMP ファイルへ。大きさを選びます"},
      {&Form2::bmp, 0,         "Picture of 320 by 240 pixels in a BMP file",                                "320 x 240 画素の画像を BMP ファイルへ"},
      {&Form2::bmp, 1,         "Picture of 400 by 300 pixels in a BMP file",                                "400 x 300 画素の画像を BMP ファイルへ"},
      {&Form2::bmp, 2,         "Picture of 640 by 480 pixels in a BMP file",                                "640 x 480 画素の画像を BMP ファイルへ"},
      {&Form2::bmp, 3,         "Picture of 800 by 600 pixels in a BMP file",                                "800 x 600 画素の画像を BMP ファイルへ"},
      {&Form2::bmp, 4,         "Picture of 1024 by 768 pixels in a BMP file",                               "1024 x 768 画素の画像を BMP ファイルへ"},
      {&Form2::bmp, 5,         "Picture of 1280 by 960 pixels in a BMP file",                               "1280 x 960 画素の画像を BMP ファイルへ"},
      {&Form2::menu_f,         "Function: what the buttons do, and the colours",                            "Function：ボタンと同じはたらきと、色"},
      {&Form2::f_mode,         "On to entering speeds, as the button Mode does",                            "要求速度の入力に移ります（ボタン Mode と同じ）"},
      {&Form2::f_calc,         "Searches for plans that meet the speeds wanted, as the button Calcurate does", "要求速度に合うプランを探します（ボタン Calcurate と同じ）"},
      {&Form2::f_comp,         "Shows this plan and up to two plan files in turn, as the button Compare does", "プランファイルと比べます（ボタン Compare と同じ）"},
      {&Form2::f_rest,         "Brings the plan back as it was, as the button Restore does",                "プランを元に戻します（ボタン Restore と同じ）"},
      {&Form2::menu_font,      "The font for printing stands in the settings, under Option",                "印刷フォントは Option の設定にあります"},
      {&Form2::menu_color,     "Colours of the gears, in the windows, the charts and on the page",          "各ギヤの色（画面・線図・印刷）を選びます"},
      {&Form2::menu_opt,       "Option: about the program, settings, file extensions",                      "Option：このプログラムについて、設定、拡張子"},
      {&Form2::menu_about,     "Version of the program, and what machine it runs on",                       "プログラムの版と、動いているパソコンの情報"},
      {&Form2::menu_set,       "Language, history, font, tyre, revolutions, scales and folders at the start", "起動時の言語・履歴・フォント・タイヤ・回転数・目盛り・フォルダー"},
      {&Form2::menu_reg_title, "Extensions of plan files that open with this program",                      "このプログラムで開くプランファイルの拡張子"},
      {&Form2::menu_reg,       "Ties the extension in entry {n} to this program, or unties it again",       "{n} 番目の拡張子をこのプログラムに関連づけるか、外します"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
