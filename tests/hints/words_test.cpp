// What hints say of a state: why a control is out of use, what an answer does, where the mode leads. In both
// languages; that each state brings its hint is put to the program itself by scripts.
#include "hints/answer_hints.h"
#include "hints/hint.h"
#include "hints/main_window_reasons.h"
#include "hints/reasons.h"
#include "simulated/simulated_machine.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

struct HintWords : testing::Test {
  HintWords() {
    workspace.Language = kEnglish;
    LoadLanguage(program);
    workspace.MachineKey = "nx4";
    workspace.ModeWord = mode::kChange;
    workspace.PrimaryCount = 2;
  }
  ~HintWords() override { simulated.windows.Forget(); }

  void Expect(const Control& off, const char* english, const char* japanese) {
    const BothLanguages words = MainWindowReason(program, off);
    EXPECT_EQ(words.english, english) << off.name;
    EXPECT_EQ(words.japanese, japanese) << off.name;
  }

  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
};

TEST_F(HintWords, WithoutAMachineOrAPlan) {
  workspace.ModeWord = mode::kBasing;
  Expect(form2.Command4, "There is no plan yet: Mode makes one, Load opens one",
         "プランがまだありません。Mode で作るか、Load で開きます");
  workspace.MachineKey = "";
  Expect(form2.Command4, "No machine is loaded: File, Load opens its list file",
         "機種がありません。File の Load で機種ファイルを開きます");
}

TEST_F(HintWords, OnAPlan) {
  Expect(form2.clip[3], "This size is larger than the screen", "画面より大きいサイズです");
  Expect(form2.Command7, "Nothing has changed since the plan was loaded or saved",
         "読み込みまたは保存のあと、何も変わっていません");
  workspace.WorkFileStale = true;
  Expect(form2.f_rest, "There is no saved plan to go back to", "戻れる保存済みのプランがありません");
  Expect(form2.f_calc, "No speeds wanted are being entered: Mode begins that",
         "要求速度を入力していません。Mode で入力を始めます");
  workspace.PrimaryCount = 1;
  Expect(form2.Spin4, "This machine has one primary reduction only",
         "この機種のプライマリーは 1 種類だけです");
}

TEST_F(HintWords, WhileRequestsAreEntered) {
  workspace.ModeWord = mode::kSpeed;
  Expect(form2.Command5, "Speeds wanted are being entered: Mode leads back to the plan",
         "要求速度の入力中です。Mode でプランに戻ります");
  Expect(form2.Spin1[2], "This gear is on AUTO: the button in its row makes it MANUAL",
         "このギヤは AUTO です。同じ行のボタンで MANUAL にできます");
  form2.Command1[2].Caption = kManual;
  Expect(form2.Spin1[2], "", "");
}

TEST_F(HintWords, WhileASearchRunsOrItsQuestionWaits) {
  form2.Timer1.Enabled = true;
  Expect(form2.menu_file, "The search is running", "検索中です");
  form2.Timer1.Enabled = false;
  program.decisionPanel.unanswered = Question::NoPlanFound;
  Expect(form2.menu_file, "The question at the top waits for its answer", "上の質問の答えを待っています");
  Expect(form2.Command8, "All gears were on AUTO already", "すでにすべてのギヤが AUTO でした");
}

TEST_F(HintWords, OfTheChooser) {
  const auto expect = [this](const char* english, const char* japanese) {
    program.form3.Command1.Enabled = false;
    const BothLanguages words = Reason(program, program.form3.Command1);
    EXPECT_EQ(words.english, english);
    EXPECT_EQ(words.japanese, japanese);
  };
  Label& prompt = program.form3.Label4;
  prompt.Visible = false;
  expect("No file is chosen yet", "ファイルがまだ選ばれていません");
  prompt.Visible = true;
  prompt.Caption = Message(workspace, kReservedTargetMessage);
  expect("This file is about to be loaded: save under another name",
         "これから読み込むファイルです。別の名前で保存してください");
  for (const int refusal : {kUnknownKindMessage, kMissingFileMessage}) {
    prompt.Caption = Message(workspace, refusal);
    expect("This file cannot be taken: choose another one",
           "このファイルは使えません。ほかのファイルを選んでください");
  }
}

TEST_F(HintWords, OfTheDialogs) {
  const auto expect = [this](Control& off, const char* english, const char* japanese) {
    off.Enabled = false;
    const BothLanguages words = Reason(program, off);
    EXPECT_EQ(words.english, english);
    EXPECT_EQ(words.japanese, japanese);
  };
  expect(program.form4.Load().Spin1, "Only one plan was found", "見つかったプランは 1 つだけです");
  Form5& form5 = program.form5.Load();
  expect(form5.Spin1, "There is one plan only: Append adds others",
         "プランが 1 つだけです。Append で追加できます");
  expect(form5.Command1, "Three plans are the limit", "比べられるのは 3 つまでです");
  expect(form5.Command4, "No file is chosen yet", "ファイルがまだ選ばれていません");
  expect(program.form7.Load().Combo1[4], "There is no printer", "プリンターがありません");
}

TEST_F(HintWords, OfTheAnswers) {
  const struct {
    Question question;
    const char* left[2];
    const char* right[2];
  } kAnswers[] = {
      {Question::SpeedsDiffer,
       {"Takes the speeds of the file as those wanted, and searches",
        "ファイルの速度を要求速度にして検索します"},
       {"Takes the gear pairs of the file; the speeds follow from them",
        "ファイルのギヤを使い、速度はそれに合わせます"}},
      {Question::NoPlanFound,
       {"Sets all gears to AUTO and searches again", "すべてのギヤを AUTO にしてもう一度検索します"},
       {"Back to the speeds wanted, which can be changed", "要求速度の入力に戻ります"}},
      {Question::QuitWithChanges,
       {"Saves the plan, then ends the program", "プランを保存してから終了します"},
       {"Ends the program; the changes are lost", "終了します。変更は失われます"}},
      {Question::LoadWithChanges,
       {"Saves the plan, then loads", "プランを保存してから読み込みます"},
       {"Loads; the changes are lost", "読み込みます。変更は失われます"}},
      {Question::HistoryLoadWithChanges,
       {"Saves the plan, then loads", "プランを保存してから読み込みます"},
       {"Loads; the changes are lost", "読み込みます。変更は失われます"}},
  };
  for (const auto& row : kAnswers) {
    SetQuestionTexts(program, row.question);
    EXPECT_EQ(AnswerHint(program, form2.Command8).english, row.left[0]);
    EXPECT_EQ(AnswerHint(program, form2.Command8).japanese, row.left[1]);
    EXPECT_EQ(AnswerHint(program, form2.Command9).english, row.right[0]);
    EXPECT_EQ(AnswerHint(program, form2.Command9).japanese, row.right[1]);
  }
}

TEST_F(HintWords, OfTheMode) {
  const struct {
    const char* mode;
    const char* button[2];
    const char* entry[2];
  } kModes[] = {
      {mode::kBasing,
       {"Mode: makes a plan of the lowest rows", "Mode：一番低い組み合わせからプランを作ります"},
       {"Makes a plan of the lowest rows, as the button Mode does",
        "一番低い組み合わせからプランを作ります（ボタン Mode と同じ）"}},
      {mode::kSpeed,
       {"Mode: back to the plan; right button: on to entering revolutions",
        "Mode：プランに戻ります。右ボタンでは回転数で入力します"},
       {"Back to the plan, as the button Mode does", "プランに戻ります（ボタン Mode と同じ）"}},
      {mode::kRpm,
       {"Mode: back to the plan; right button: back to entering speeds",
        "Mode：プランに戻ります。右ボタンでは速度の入力に戻ります"},
       {"Back to the plan, as the button Mode does", "プランに戻ります（ボタン Mode と同じ）"}},
  };
  for (const auto& row : kModes) {
    workspace.ModeWord = row.mode;
    for (const bool japanese : {false, true}) {
      workspace.Language = japanese ? kJapanese : kEnglish;
      EXPECT_EQ(Hint(program, form2.Command2), row.button[japanese ? 1 : 0]) << row.mode;
      EXPECT_TRUE(Hint(program, form2.f_mode).starts_with(row.entry[japanese ? 1 : 0])) << row.mode;
    }
  }
}

}  // namespace
}  // namespace veldrin
