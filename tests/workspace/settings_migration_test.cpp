// The older settings file's lines, and the separators that are repaired in them.
#include "model/decimal.h"
#include "workspace/settings.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

Workspace WithSeparator(const char* separator) {
  Workspace workspace;
  workspace.DecimalSep = separator;
  return workspace;
}

TEST(FixDecimal, BringsTheFirstSeparatorToTheSystems) {
  struct Case {
    const char* separator;
    const char* text;
    const char* repaired;
  };
  const Case cases[] = {
      {".", "1,9", "1.9"},
      {".", "1.9", "1.9"},
      {".", "1,234,5", "1.234,5"},
      {".", "1.234,5", "1.234.5"},
      {".", "19", "19"},
      {".", "", ""},
      {".", ",", "."},
      {",", "1.9", "1,9"},
      {",", "1,9", "1,9"},
      {",", "1.234.5", "1,234.5"},
      {",", "1,234.5", "1,234,5"},
      {",", "", ""},
      // Any other separator counts as a point.
      {"'", "1,9", "1.9"},
      {"'", "1.9", "1.9"},
      {"", "1,9", "1.9"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FixDecimal(WithSeparator(c.separator), c.text), c.repaired) << c.separator << ' ' << c.text;
  }
}

struct Migrated {
  const char* line;
  const char* value;  // empty: dropped
  const char* text;
};

void ExpectMigrated(const Workspace& workspace, const Migrated& c) {
  const std::optional<StoredValue> stored = MigrateLine(workspace, c.line);
  if (*c.value == '\0') {
    EXPECT_EQ(stored, std::nullopt) << c.line;
  } else {
    EXPECT_EQ(stored, (StoredValue{c.value, c.text})) << c.line;
  }
}

TEST(MigrateLine, TakesTyreLengthsFromOneToThree) {
  const Workspace workspace;
  const Migrated cases[] = {
      {"TYRE_L=1.0", "Tyre_L", "1.0"},
      {"TYRE_L=1", "Tyre_L", "1"},
      {"TYRE_L=0.9", "", ""},
      {"TYRE_L=0.999", "", ""},
      {"TYRE_L=3.0", "Tyre_L", "3.0"},
      {"TYRE_L=3.001", "", ""},
      {"TYRE_L=1,95", "Tyre_L", "1.95"},
      {"TYRE_L=1.2.3", "", ""},
      {"TYRE_L=", "", ""},
      {"TYRE_L=two", "", ""},
      {"TYRE_L=-2", "", ""},
      {"TYRE_L=1e400", "", ""},
      {"TYRE_L= 2 ", "Tyre_L", " 2 "},
  };
  for (const Migrated& c : cases) ExpectMigrated(workspace, c);
}

TEST(MigrateLine, RepairsTheTyreLengthToAComma) {
  const Workspace workspace = WithSeparator(",");
  ExpectMigrated(workspace, {"TYRE_L=1.95", "Tyre_L", "1,95"});
  ExpectMigrated(workspace, {"TYRE_L=1,95", "Tyre_L", "1,95"});
  ExpectMigrated(workspace, {"TYRE_L=0.9", "", ""});
}

TEST(MigrateLine, TakesWholeNumbersWithinTheirRanges) {
  const Workspace workspace;
  const Migrated cases[] = {
      {"CHECK_NE=5000", "Check_Ne", "5000"},
      {"CHECK_NE=4999", "", ""},
      {"CHECK_NE=24000", "Check_Ne", "24000"},
      {"CHECK_NE=24001", "", ""},
      {"SHIFT_NE=5000", "Shift_Ne", "5000"},
      {"SHIFT_NE=4999", "", ""},
      {"SHIFT_NE=24000", "Shift_Ne", "24000"},
      {"SHIFT_NE=24001", "", ""},
      {"MAX_SPEED=100", "Max_Speed", "100"},
      {"MAX_SPEED=99", "", ""},
      {"MAX_SPEED=340", "Max_Speed", "340"},
      {"MAX_SPEED=341", "", ""},
      {"MAX_NE=5000", "Max_Ne", "5000"},
      {"MAX_NE=4999", "", ""},
      {"MAX_NE=24000", "Max_Ne", "24000"},
      {"MAX_NE=24001", "", ""},
      // Rounded half to even before the range is looked at; the text goes over as it stands.
      {"MAX_SPEED=99.4", "", ""},
      {"MAX_SPEED=99.5", "Max_Speed", "99.5"},
      {"MAX_SPEED=340.5", "Max_Speed", "340.5"},
      {"MAX_SPEED=340.6", "", ""},
      // No number, and beyond 16 bits.
      {"CHECK_NE=", "", ""},
      {"CHECK_NE=10000rpm", "", ""},
      {"CHECK_NE=32768", "", ""},
      {"CHECK_NE=-32769", "", ""},
  };
  for (const Migrated& c : cases) ExpectMigrated(workspace, c);
}

TEST(MigrateLine, WholeNumbersAreNotRepaired) {
  ExpectMigrated(Workspace(), {"MAX_NE=12000,4", "", ""});
  ExpectMigrated(WithSeparator(","), {"MAX_NE=12000,4", "Max_Ne", "12000,4"});
  ExpectMigrated(WithSeparator(","), {"MAX_NE=12000.4", "", ""});
}

TEST(MigrateLine, TakesAnyHistorySizeOfSixteenBits) {
  const Workspace workspace;
  const Migrated cases[] = {
      {"HISTORY=0", "His_Num", "0"},
      {"HISTORY=-1", "His_Num", "-1"},
      {"HISTORY=32767", "His_Num", "32767"},
      {"HISTORY=32768", "", ""},
      {"HISTORY=-32768", "His_Num", "-32768"},
      {"HISTORY=-32769", "", ""},
      {"HISTORY=six", "", ""},
      {"HISTORY=", "", ""},
  };
  for (const Migrated& c : cases) ExpectMigrated(workspace, c);
}

TEST(MigrateLine, TakesColoursOfThirtyTwoBits) {
  const Workspace workspace;
  const Migrated cases[] = {
      {"1st=255", "Color_1", "255"},
      {"2nd=0", "Color_2", "0"},
      {"3rd=16777215", "Color_3", "16777215"},
      {"4th=2147483647", "Color_4", "2147483647"},
      {"4th=2147483648", "", ""},
      {"5th=-2147483648", "Color_5", "-2147483648"},
      {"5th=-2147483649", "", ""},
      {"6th=1", "Color_6", "1"},
      {"6th=blue", "", ""},
      {"7th=1", "", ""},
      {"1ST=1", "", ""},
  };
  for (const Migrated& c : cases) ExpectMigrated(workspace, c);
}

TEST(MigrateLine, TakesTextsAsTheyStandOrInCapitals) {
  const Workspace workspace;
  const Migrated cases[] = {
      {"LIST_FILE=nx4.rat", "List_File", "nx4.rat"},
      {"LIST_PATH=D:\\Lists", "List_Path", "D:\\Lists"},
      {"DATA_PATH= d:\\dat ", "Data_Path", " d:\\dat "},
      {"FONT=ＭＳ 明朝", "Pr_Font", "ＭＳ 明朝"},
      {"SEPARATE_34=vt2 nv0", "Separate_34", "vt2 nv0"},
      {"LIST_FILE=", "List_File", ""},
      {"LIST_FILE=a=b", "List_File", "a=b"},
      {"QUICKQUIT=yes", "QuickQuit", "YES"},
      {"LANGUAGE=Deutsch", "Language", "DEUTSCH"},
  };
  for (const Migrated& c : cases) ExpectMigrated(workspace, c);
}

TEST(MigrateLine, SkipsWhatItDoesNotKnow) {
  const Workspace workspace;
  for (const char* line : {"", "TYRE_L", "[Settings]", "=1.9", "COLOUR=1", "tyre_l=1.9", " TYRE_L=1.9",
                           "TYRE_L =1.9", "Tyre_L=1.9", "MIN PLAN=2"}) {
    ExpectMigrated(workspace, {line, "", ""});
  }
}

}  // namespace
}  // namespace veldrin
