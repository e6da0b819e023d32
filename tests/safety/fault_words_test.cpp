#include "safety/fault_words.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

struct FaultWordsTest : testing::Test {
  ~FaultWordsTest() override { simulated.windows.Forget(); }

  void Expect(int fault, const char* english, const char* japanese, bool inBox = false) {
    const BothLanguages words = FaultWords(program, fault, inBox);
    EXPECT_EQ(words.english, english) << fault;
    EXPECT_EQ(words.japanese, japanese) << fault;
  }

  SimulatedMachine simulated;
  Program program{simulated.machine};
};

TEST_F(FaultWordsTest, EachIsToldInBothLanguages) {
  Expect(13, "A number was asked for where none stood.", "数値であるべきところが数値ではありません。");
  Expect(13, "A box held no number.", "数値ではない入力がありました。", true);
  Expect(6, "A number was too large.", "数値が大きすぎます。");
  Expect(11, "A speed or a number of revolutions was 0.", "速度または回転数が 0 になりました。");
  Expect(7, "The memory was not enough.", "メモリーが足りません。");
  Expect(62, "A file ended too early.", "ファイルが途中で終わっています。");
  Expect(340, "An entry was asked for that is no longer there.", "もうない項目が指定されました。");
  for (const int other : {5, 51, 380, 1000}) {
    Expect(other, "The program came upon something that it cannot do.", "実行できない処理がありました。");
  }
}

TEST_F(FaultWordsTest, ASubscriptIsAPartUntilThereAreThirtyPlans) {
  program.workspace.PlanCount = 29;
  Expect(9, "A part was asked for that the machine does not have.", "この機種にない部品が指定されました。");
  program.workspace.PlanCount = 30;
  Expect(9, "There were more than 30 plans.", "プランが 30 を超えました。");
}

TEST_F(FaultWordsTest, WhatAFileIsRefusedByIsItsCause) {
  Expect(52, "This file name is not possible.", "このファイル名は使えません");
  Expect(53, "The file is not there.", "ファイルがありません");
  Expect(55, "The file is in use.", "ファイルは使用中です");
  Expect(61, "There is no room left on the disk.", "ディスクに空きがありません");
  Expect(68, "There is no such drive.", "ドライブがありません");
  Expect(70, "There is no permission for this file or folder.",
         "このファイルまたはフォルダーを使う権限がありません");
  Expect(71, "The drive is not ready.", "ドライブの準備ができていません");
  Expect(75, "This name does not stand for a file that can be opened.",
         "この名前のファイルを開くことができません");
  Expect(76, "The folder does not exist any more.", "フォルダーがなくなっています");
}

}  // namespace
}  // namespace veldrin
