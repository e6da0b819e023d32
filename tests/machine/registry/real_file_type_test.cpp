#include "machine/registry/real_file_type.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr char kProgram[] = "C:\\Program Files\\Veldrin\\veldrin.exe";

TEST(FileType, TheCommandNamesTheRunningProgramInQuotes) {
  EXPECT_EQ(FileTypeText("Veldrin.file\\Shell\\open\\command", "C:\\VELDRIN\\veldrin.exe %1", kProgram),
            "\"C:\\Program Files\\Veldrin\\veldrin.exe\" \"%1\"");
  EXPECT_EQ(FileTypeText("veldrin.FILE\\shell\\Open\\Command", "", kProgram),
            "\"C:\\Program Files\\Veldrin\\veldrin.exe\" \"%1\"");
}

TEST(FileType, TheIconIsTheSecondOfTheRunningProgram) {
  EXPECT_EQ(FileTypeText("Veldrin.file\\DefaultIcon", "C:\\VELDRIN\\veldrin.exe,1", kProgram),
            "\"C:\\Program Files\\Veldrin\\veldrin.exe\",1");
}

TEST(FileType, WordsForPeopleStay) {
  EXPECT_EQ(FileTypeText("Veldrin.file", "「べるどりん君」ﾌｧｲﾙ", kProgram), "「べるどりん君」ﾌｧｲﾙ");
  EXPECT_EQ(FileTypeText("Veldrin.file\\Shell\\open", "「べるどりん君」で開く", kProgram),
            "「べるどりん君」で開く");
}

TEST(FileType, OnlyTheTypesOwnKeysBelongToIt) {
  EXPECT_TRUE(BelongsToFileType("Veldrin.file"));
  EXPECT_TRUE(BelongsToFileType("VELDRIN.FILE\\DefaultIcon"));
  EXPECT_FALSE(BelongsToFileType("Veldrin.filed"));
  EXPECT_FALSE(BelongsToFileType(".nx4"));
  EXPECT_FALSE(BelongsToFileType(""));
}

TEST(FileType, ACommandIsRightWithProgramAndPathInQuotes) {
  EXPECT_EQ(ProgramOfCommand("\"C:\\Program Files\\Veldrin\\veldrin.exe\" \"%1\""), kProgram);
  for (const char* wrong :
       {"", "\"", "\"\"", "C:\\VELDRIN\\veldrin.exe %1", "C:\\VELDRIN\\veldrin.exe \"%1\"",
        "\"C:\\VELDRIN\\veldrin.exe\" %1", "\"C:\\VELDRIN\\veldrin.exe\"", "\"C:\\VELDRIN\\veldrin.exe",
        "\"C:\\VELDRIN\\veldrin.exe\" /x \"%1\""}) {
    EXPECT_EQ(ProgramOfCommand(wrong), "") << wrong;
  }
}

}  // namespace
}  // namespace veldrin
