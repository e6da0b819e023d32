#include "script/script_error.h"
#include "script/variables.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <set>

namespace veldrin {
namespace {

struct Variables : ::testing::Test {
  std::string Get(const char* name) { return VariableText(FindVariable(program, ParseName(name))); }
  void Set(const char* name, const char* value) {
    SetVariable(FindVariable(program, ParseName(name)), value);
  }

  SimulatedMachine machine;
  Program program{machine.machine};
};

TEST_F(Variables, EachNameIsListedOnce) {
  const std::vector<std::string> names = VariableNames(program);
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
  for (const std::string& name : names) EXPECT_TRUE(IsVariable(program, name)) << name;
  EXPECT_FALSE(IsVariable(program, "Drive"));
}

TEST_F(Variables, NamesLeadToTheRecords) {
  program.workspace.ModeWord = mode::kChange;
  program.workspace.SpeedNow[0] = 98.4F;
  program.workspace.GearTable(6, 10) = "13-40";
  program.workspace.FinalTable[200] = {13, 100, RatioText(13, 100), 0.13};
  program.workspace.GearColour[6] = Rgb(1, 2, 3);
  program.planDialog.ShownRow[6] = 7;
  program.compare.CompareSlot[2].Step[5] = 1.5F;
  program.settingsDialog.ValidationResult = "NG";
  EXPECT_EQ(Get("ModeWord"), "CHANGE");
  EXPECT_EQ(Get("SpeedNow(0)"), "98.4");
  EXPECT_EQ(Get("GearTable(6,10)"), "13-40");
  EXPECT_EQ(Get("FinalTable(200).Drive"), "13");
  EXPECT_EQ(Get("FinalTable(200).Driven"), "100");
  EXPECT_EQ(Get("FinalTable(200).Text"), "13-10");
  EXPECT_EQ(Get("FinalTable(200).Ratio"), "0.13");
  EXPECT_EQ(Get("GearColour(6)"), "1,2,3");
  EXPECT_EQ(Get("ShownRow(6)"), "7");
  EXPECT_EQ(Get("CompareSlot(2).Step(5)"), "1.5");
  EXPECT_EQ(Get("ValidationResult"), "NG");
  EXPECT_EQ(Get("WorkFileStale"), "False");
}

TEST_F(Variables, ValuesAreWritten) {
  Set("CompareSlot(0).Speed(0)", "60");
  EXPECT_EQ(program.compare.CompareSlot[0].Speed[0], 60);
  Set("M34Matrix(10,1)", "99");
  EXPECT_EQ(program.workspace.M34Matrix(10, 1), 99);
  Set("PrimaryTable(1).Text", "1-2");
  EXPECT_EQ(program.workspace.PrimaryTable[1].Text, "1-2  ");
  Set("TempCleaned", "True");
  EXPECT_TRUE(program.workspace.TempCleaned);
}

TEST_F(Variables, OtherNamesAreErrors) {
  for (const char* name :
       {"Nothing", "SpeedNow", "SpeedNow(7)", "SpeedNow(-1)", "SpeedNow(1,1)", "SpeedBaseline(0)",
        "GearTable(1)", "GearTable(7,1)", "GearTable(1,0)", "ModeWord(1)", "ModeWord.Text", "FinalTable(1)",
        "FinalTable(1).None", "FinalTable(1).Text.Text", "FinalTable(201).Text", "CompareSlot(0)",
        "CompareSlot(3).Plan(1)", "CompareSlot(0).Plan", "CompareSlot(0).Plan(0)"}) {
    EXPECT_THROW(FindVariable(program, ParseName(name)), ScriptError) << name;
  }
}

TEST_F(Variables, ValuesThatDoNotFitAreErrors) {
  EXPECT_THROW(Set("ShiftNe", "-32769"), ScriptError);
  EXPECT_THROW(Set("ShiftNe", "1.5"), ScriptError);
  EXPECT_THROW(Set("TyreLength", "1,9"), ScriptError);
  EXPECT_THROW(Set("TyreLength", "1e39"), ScriptError);
  EXPECT_THROW(Set("WorkFileStale", "YES"), ScriptError);
  EXPECT_THROW(Set("GearColour(1)", "1,2"), ScriptError);
}

}  // namespace
}  // namespace veldrin
