#include "view/forms/form3.h"
#include "view/hints/hint_table.h"

namespace veldrin {

// clang-format off
const HintRows& HintsOfForm3() {
  static const HintRows kRows = {
      {&Form3::Label1,   "File Name: what is to be opened, saved or deleted",                               "File Name：開く・保存する・消去するファイル"},
      {&Form3::Combo1,   "Name of the file; Enter does what OK does, down goes to the list",                "ファイル名。Enter は OK と同じ、下矢印で一覧へ"},
      {&Form3::File1,    "Files of the folder; a click picks one, a double click takes it at once",         "フォルダーのファイル。クリックで選び、ダブルクリックで決定します"},
      {&Form3::Combo2,   "Which files are listed: machine lists (*.RAT), or plans of the machine",          "表示する種類：機種ファイル（*.RAT）か、この機種のプラン"},
      {&Form3::Label2,   "Directory: the folder that is listed",                                            "Directory：一覧を出しているフォルダー"},
      {&Form3::Drive1,   "Drive that is listed; Enter goes to its folders",                                 "ドライブ。Enter でフォルダーの一覧へ"},
      {&Form3::Dir1,     "Folders: Enter or a double click opens one, Backspace goes up,\nleft goes to the files", "フォルダー：Enter かダブルクリックで開き、Backspace で上へ。\n左矢印でファイルの一覧へ"},
      {&Form3::Label3,   "Folder in full",                                                                  "フォルダーの完全なパス"},
      {&Form3::Label4,   "What the window asks for, or why a file was refused",                             "この画面からの質問や、ファイルを受け付けない理由"},
      {&Form3::Command1, "Does what the title says with the file; a question above is confirmed by it",     "タイトルのとおりに実行します。上の質問にはこれで「はい」と答えます"},
      {&Form3::Command2, "Closes the window and changes nothing",                                           "何も変えずに閉じます"},
      {&Form3::Command3, "Ends the program, as long as no machine is loaded",                               "プログラムを終了します（機種がまだないとき）"},
  };
  return kRows;
}
// clang-format on

}  // namespace veldrin
