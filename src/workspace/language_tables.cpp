#include "workspace/language_tables.h"

namespace veldrin {

// clang-format off
const MessageTexts JapaneseMessages = {
    "機種ファイル選択",
    "データファイル選択",
    "セーブファイル選択",
    "消去ファイル選択",
    "クイックレシオファイル選択",
    "ファイルの種類を認識できません",
    "機種が変更されますがよろしいですか？",
    "同名のファイルが存在します　上書き？",
    "開こうとしたファイルに書き込もうとしました",
    "クイックレシオのファイルを選択して下さい",
    "計算中です　　　　　　　　お待ち下さい",
    "見つかりました",
    "データファイルの値が不正です",
    "希望した条件での組み合わせが見つかりません",
    "処理していたデータは変更されています",
    "処理中のデータは変更されています",
    "処理中のデータが変更されています",
    "記載されたスピードで再計算",
    "FULL AUTO で再計算",
    "セーブして終了",
    "セーブしてロード",
    "記載されたプランを読み込む",
    "要求スピードを入力し直す",
    "破棄して終了",
    "破棄してロード",
    "指定されたファイルが存在しません",
    "参照ファイル選択",
    "参照するファイルを選んでください",
};

const MessageTexts EnglishMessages = {
    "Load List File Select",
    "Load Data File Select",
    "Save File Select",
    "Delete File Select",
    "Quick-Ratio File Select",
    "You selected unknown file type.",
    "RAT file will be changed. Are you sure?",
    "Same name file exist!! Over write?",
    "The file you selected is reserved to load !!",
    "Please select Quick-Ratio File",
    "Calcurating...               Please wait.",
    "...done.",
    "Data file's value is not correct!",
    "Can't found the gear-ratio combination for your request",
    "Processed file's data was changed !",
    "Processing file's data is changed !",
    "Processing file's data is changed ! ",
    "Recalc by SPEED",
    "Recalc by FULL AUTO",
    "Save and Quit",
    "Save and Load",
    "Read Mission Plan",
    "Re-Input request speed",
    "Not save. Quit",
    "Not save. Load",
    "Selected File is not exist !!",
    "Reference File Select",
    "Please select Reference File",
};
// clang-format on

}  // namespace veldrin
