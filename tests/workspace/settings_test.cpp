#include "workspace/settings.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

struct Store : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};

  void Keep(const char* value, const std::string& text) {
    simulated.registry.Write(RegistryRoot::CurrentUser, kSettingsKey, value, text);
  }
  std::string Read(const char* value) {
    return ReadSetting(program, RegistryRoot::CurrentUser, kSettingsKey, value);
  }
  int ReadFault() {
    return Guarded([&] { ReadSettings(program); });
  }
};

TEST_F(Store, MissingKeyAndMissingValueReadAsEmpty) {
  EXPECT_EQ(Read("Language"), "");
  Keep("Language", "JP");
  EXPECT_EQ(Read("Language"), "JP");
  EXPECT_EQ(Read("Pr_Font"), "");
  EXPECT_EQ(ReadSetting(program, RegistryRoot::ClassesRoot, kSettingsKey, "Language"), "");
}

TEST_F(Store, TextIsCutAt1024Bytes) {
  Keep("List_Path", std::string(1024, 'a'));
  EXPECT_EQ(Read("List_Path"), std::string(1024, 'a'));
  Keep("List_Path", std::string(1025, 'a'));
  EXPECT_EQ(Read("List_Path"), std::string(1024, 'a'));
}

TEST_F(Store, CharacterAcrossTheCutGoesAsAWhole) {
  Keep("List_Path", std::string(1021, 'a') + "雨雨");
  EXPECT_EQ(Read("List_Path"), std::string(1021, 'a') + "雨");
  Keep("List_Path", std::string(1022, 'a') + "雨");
  EXPECT_EQ(Read("List_Path"), std::string(1022, 'a'));
  Keep("List_Path", std::string(1023, 'a') + "雨");
  EXPECT_EQ(Read("List_Path"), std::string(1023, 'a'));
}

TEST_F(Store, TextIsCutAtItsFirstZeroCharacter) {
  Keep("List_Path", std::string("C:\\A\0B\0", 7));
  EXPECT_EQ(Read("List_Path"), "C:\\A");
  Keep("List_Path", std::string("\0A", 2));
  EXPECT_EQ(Read("List_Path"), "");
}

TEST_F(Store, WriteAndDeleteTellTheirSuccess) {
  EXPECT_TRUE(WriteSetting(program, RegistryRoot::ClassesRoot, "Veldrin.file", "", "x"));
  EXPECT_EQ(ReadSetting(program, RegistryRoot::ClassesRoot, "veldrin.FILE", ""), "x");
  EXPECT_TRUE(DeleteKey(program, RegistryRoot::ClassesRoot, "Veldrin.file"));
  EXPECT_FALSE(DeleteKey(program, RegistryRoot::ClassesRoot, "Veldrin.file"));
  simulated.registry.refusesWrites = true;
  EXPECT_FALSE(WriteSetting(program, RegistryRoot::ClassesRoot, "Veldrin.file", "", "x"));
}

TEST_F(Store, CountryCodeIsTheWholeNumberInFront) {
  struct Case {
    std::optional<std::string> entry;
    int code;
  };
  const Case cases[] = {{std::nullopt, 7}, {"", 7},  {" ", 7},     {"81", 81},   {" 81 ", 81}, {"81x", 81},
                        {"8.1", 8},        {"0", 0}, {"Japan", 0}, {"-81", -81}, {"1", 1}};
  for (const Case& c : cases) {
    simulated.profile.iCountry = c.entry;
    EXPECT_EQ(CountryCode(program, 7), c.code) << c.entry.value_or("absent");
  }
}

TEST_F(Store, SeparatorsAreOneCharacterAndDefaultToAPoint) {
  struct Case {
    std::optional<std::string> entry;
    const char* separator;
  };
  const Case cases[] = {{std::nullopt, "."}, {"", "."}, {".", "."}, {",", ","}, {",.", ","}, {"、。", "、"}};
  for (const Case& c : cases) {
    simulated.profile.sDecimal = c.entry;
    simulated.profile.sThousand = c.entry;
    ReadRegionalValues(program);
    EXPECT_EQ(program.workspace.DecimalSep, c.separator);
    EXPECT_EQ(program.workspace.ThousandSep, c.separator);
  }
}

TEST_F(Store, RegionalValuesClearThePrintOptions) {
  program.workspace.PrintFontBold = true;
  program.workspace.PrintFontItalic = true;
  ReadRegionalValues(program);
  EXPECT_FALSE(program.workspace.PrintFontBold);
  EXPECT_FALSE(program.workspace.PrintFontItalic);
}

TEST_F(Store, AbsentOrEmptyProgramFolderMarksTheFirstRun) {
  EXPECT_TRUE(ReadAppPath(program));
  Keep("App Path", "");
  EXPECT_TRUE(ReadAppPath(program));
  Keep("App Path", "D:\\V");
  EXPECT_FALSE(ReadAppPath(program));
  EXPECT_EQ(program.workspace.AppPath, "D:\\V");
}

TEST_F(Store, RefusedWritesGoUnnoticedOnTheFirstRun) {
  simulated.registry.refusesWrites = true;
  CreateSettings(program);
  EXPECT_EQ(program.workspace.AppPath, "C:\\VELDRIN");
  EXPECT_EQ(Read("App Path"), "");
  ReadSettings(program);
  EXPECT_EQ(program.workspace.DataPath, "C:\\VELDRIN\\DAT");
}

TEST_F(Store, StoredTextThatIsNoNumberFaults) {
  const char* numbers[] = {"Tyre_l",  "Check_Ne", "Shift_Ne", "Max_Speed", "Max_Ne",  "His_Num", "Min Plan",
                           "Color_1", "Color_2",  "Color_3",  "Color_4",   "Color_5", "Color_6"};
  for (const char* value : numbers) {
    for (const char* text : {"x", "1x", " ", "1.2.3", "1,2,3", "--1"}) {
      Keep(value, text);
      EXPECT_EQ(ReadFault(), kFaultTypeMismatch) << value << " \"" << text << '"';
    }
    Keep(value, "");
    EXPECT_EQ(ReadFault(), 0) << value;
  }
}

TEST_F(Store, StoredNumberBeyondItsWidthFaults) {
  struct Case {
    const char* value;
    const char* lowest;
    const char* below;
    const char* highest;
    const char* above;
  };
  const Case cases[] = {
      {"Check_Ne", "-32768", "-32769", "32767", "32768"},
      {"Shift_Ne", "-32768", "-32769", "32767", "32768"},
      {"Max_Speed", "-32768", "-32769", "32767", "32768"},
      {"Max_Ne", "-32768", "-32769", "32767", "32768"},
      {"His_Num", "-32768", "-32769", "32767", "32768"},
      {"Min Plan", "-32768", "-32769", "32767", "32768"},
      {"Color_1", "-2147483648", "-2147483649", "2147483647", "2147483648"},
      {"Color_6", "-2147483648", "-2147483649", "2147483647", "2147483648"},
      {"Tyre_l", "-3.4e38", "-3.5e38", "3.4e38", "3.5e38"},
  };
  for (const Case& c : cases) {
    for (const char* text : {c.lowest, c.highest}) {
      Keep(c.value, text);
      EXPECT_EQ(ReadFault(), 0) << c.value << ' ' << text;
    }
    for (const char* text : {c.below, c.above}) {
      Keep(c.value, text);
      EXPECT_EQ(ReadFault(), kFaultOverflow) << c.value << ' ' << text;
    }
    Keep(c.value, "");
  }
}

TEST_F(Store, WholeNumbersAreRoundedHalfToEven) {
  struct Case {
    const char* text;
    int number;
  };
  const Case cases[] = {{"-1.5", -2}, {"-0.6", -1}, {"-0.5", 6}, {"-0.4", 6},
                        {"0.4", 6},   {"0.5", 6},   {"0.6", 1},  {"1.5", 2}};
  for (const Case& c : cases) {
    Keep("His_Num", c.text);
    ReadSettings(program);
    EXPECT_EQ(program.workspace.HistoryMax, c.number) << c.text;
  }
}

}  // namespace
}  // namespace veldrin
