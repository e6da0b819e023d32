#include "hints/answer_hints.h"

#include "workspace/decision_panel/decision_panel.h"

namespace veldrin {

BothLanguages AnswerHint(const Program& program, const Control& answer) {
  const bool first = &answer == &program.form2.Command8;
  switch (QuestionOnPanel(program)) {
    case Question::SpeedsDiffer:
      if (first)
        return {"Takes the speeds of the file as those wanted, and searches",
                "ファイルの速度を要求速度にして検索します"};
      return {"Takes the gear pairs of the file; the speeds follow from them",
              "ファイルのギヤを使い、速度はそれに合わせます"};
    case Question::NoPlanFound:
      if (first)
        return {"Sets all gears to AUTO and searches again", "すべてのギヤを AUTO にしてもう一度検索します"};
      return {"Back to the speeds wanted, which can be changed", "要求速度の入力に戻ります"};
    case Question::QuitWithChanges:
      if (first) return {"Saves the plan, then ends the program", "プランを保存してから終了します"};
      return {"Ends the program; the changes are lost", "終了します。変更は失われます"};
    case Question::LoadWithChanges:
    case Question::HistoryLoadWithChanges:
      if (first) return {"Saves the plan, then loads", "プランを保存してから読み込みます"};
      return {"Loads; the changes are lost", "読み込みます。変更は失われます"};
    case Question::None:
      break;
  }
  return {};
}

}  // namespace veldrin
