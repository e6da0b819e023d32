#include "workspace/language.h"

#include "runtime/fault.h"
#include "simulated/simulated_machine.h"
#include "workspace/language_tables.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace veldrin {
namespace {

TEST(MessageTables, EveryMessageHasAText) {
  for (int k = 0; k < kMessages; ++k) {
    EXPECT_STRNE(JapaneseMessages[k], "") << k + 1;
    EXPECT_STRNE(EnglishMessages[k], "") << k + 1;
  }
}

TEST(MessageTables, TextsThatSteerTheFlowDiffer) {
  for (const MessageTexts* texts : {&JapaneseMessages, &EnglishMessages}) {
    std::set<std::string> captions;
    for (const int number : {1, 2, 3, 4, 5, 27}) captions.insert((*texts)[number - 1]);
    EXPECT_EQ(captions.size(), 6U);
    std::set<std::string> questions;
    for (int number = 13; number <= 17; ++number) questions.insert((*texts)[number - 1]);
    EXPECT_EQ(questions.size(), 5U);
  }
}

TEST(MessageTables, EnglishSixteenAndSeventeenDifferByOneTrailingBlank) {
  EXPECT_STREQ(EnglishMessages[15], "Processing file's data is changed !");
  EXPECT_STREQ(EnglishMessages[16], "Processing file's data is changed ! ");
}

TEST(MessageTables, BlanksInsideTextsAreKept) {
  const std::string blank = "\xE3\x80\x80";
  EXPECT_EQ(JapaneseMessages[7], "同名のファイルが存在します" + blank + "上書き？");
  std::string eight;
  for (int k = 0; k < 8; ++k) eight += blank;
  EXPECT_EQ(JapaneseMessages[10], "計算中です" + eight + "お待ち下さい");
  EXPECT_EQ(EnglishMessages[10], "Calcurating..." + std::string(15, ' ') + "Please wait.");
}

TEST(Message, IsTheElementOfItsNumber) {
  Workspace workspace;
  workspace.MessageTable[1] = "one";
  workspace.MessageTable[30] = "thirty";
  EXPECT_EQ(Message(workspace, 1), "one");
  EXPECT_EQ(Message(workspace, 29), "");
  EXPECT_EQ(Message(workspace, 30), "thirty");
}

TEST(Message, OutsideTheTableIsASubscriptFault) {
  const Workspace workspace;
  for (const int number : {0, 31, -1}) {
    EXPECT_EQ(Guarded([&] { Message(workspace, number); }), kFaultSubscript) << number;
  }
}

/// A caption file of `count` lines: "line 1", "line 2" ...
std::string Lines(int count) {
  std::string text;
  for (int k = 1; k <= count; ++k) text += "line " + std::to_string(k) + "\r\n";
  return text;
}

struct CaptionFile : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;

  CaptionFile() {
    workspace.AppPath = "C:\\VELDRIN";
    workspace.Language = "DEUTSCH";
    workspace.IsJapanese = 1;
    workspace.TitlePrefix = "prefix";
    workspace.ChangedMark = "mark";
  }
  void Put(const std::string& text) {
    const auto writer = simulated.files.OpenForWriting("C:\\VELDRIN\\DEUTSCH.CAP");
    writer->Write(text);
    writer->Close();
  }
};

TEST_F(CaptionFile, FillsTitleAndMessages) {
  Put(Lines(31));
  LoadLanguage(program);
  EXPECT_EQ(workspace.TitlePrefix, "line 1");
  EXPECT_EQ(workspace.ChangedMark, "line 2");
  for (int number = 1; number <= kMessages; ++number) {
    EXPECT_EQ(Message(workspace, number), "line " + std::to_string(number + 2));
  }
  EXPECT_EQ(Message(workspace, 29), "");
  EXPECT_EQ(workspace.Language, "DEUTSCH");
  EXPECT_FALSE(program.files.IsOpen(Handle::Captions));
}

TEST_F(CaptionFile, ThatIsTooShortFaultsWhereItEndsAndStaysOpen) {
  for (const int lines : {0, 1, 2, 3, 29}) {
    Put(Lines(lines));
    workspace.MessageTable.Clear();
    workspace.TitlePrefix = "prefix";
    workspace.ChangedMark = "mark";
    EXPECT_EQ(Guarded([&] { LoadLanguage(program); }), kFaultPastEnd) << lines;
    EXPECT_EQ(workspace.TitlePrefix, lines < 1 ? "prefix" : "line 1");
    EXPECT_EQ(workspace.ChangedMark, lines < 2 ? "mark" : "line 2");
    for (int number = 1; number <= kMessages; ++number) {
      const std::string expected = number + 2 <= lines ? "line " + std::to_string(number + 2) : "";
      EXPECT_EQ(Message(workspace, number), expected) << lines;
    }
    EXPECT_TRUE(program.files.IsOpen(Handle::Captions));
    program.files.Close(Handle::Captions);
  }
}

TEST_F(CaptionFile, OfThirtyLinesIsEnough) {
  Put(Lines(30));
  LoadLanguage(program);
  EXPECT_EQ(Message(workspace, 28), "line 30");
}

TEST_F(CaptionFile, WithoutItTheLanguageBecomesTheSystems) {
  LoadLanguage(program);
  EXPECT_EQ(workspace.Language, "JP");
  EXPECT_EQ(Message(workspace, 24), "破棄して終了");
  EXPECT_EQ(workspace.TitlePrefix, "prefix");

  workspace.Language = "DEUTSCH";
  workspace.IsJapanese = 0;
  LoadLanguage(program);
  EXPECT_EQ(workspace.Language, "ENGLISH");
  EXPECT_EQ(Message(workspace, 24), "Not save. Quit");
}

TEST_F(CaptionFile, NamesOfBuiltInLanguagesNeedNone) {
  workspace.Language = "JP";
  LoadLanguage(program);
  for (int k = 0; k < kMessages; ++k) EXPECT_EQ(Message(workspace, k + 1), JapaneseMessages[k]);
  workspace.Language = "ENGLISH";
  LoadLanguage(program);
  for (int k = 0; k < kMessages; ++k) EXPECT_EQ(Message(workspace, k + 1), EnglishMessages[k]);
}

TEST_F(CaptionFile, TitleTextsFollowTheCountry) {
  simulated.profile.iCountry = "81";
  SetTitleTexts(program, 12);
  EXPECT_EQ(workspace.TitlePrefix, "べるどりん君[12] - ");
  EXPECT_EQ(workspace.ChangedMark, " - 変更");
  EXPECT_EQ(workspace.IsJapanese, 1);
  simulated.profile.iCountry = std::nullopt;
  SetTitleTexts(program, 12);
  EXPECT_EQ(workspace.TitlePrefix, "Mr.Veldrin");
  EXPECT_EQ(workspace.ChangedMark, " - Changed");
  EXPECT_EQ(workspace.IsJapanese, 0);
}

}  // namespace
}  // namespace veldrin
