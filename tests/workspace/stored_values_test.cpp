#include "workspace/stored_values.h"

#include "runtime/fault.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

/// In the order in which a start reads them.
constexpr const char* kNumbers[] = {"Tyre_l",  "Check_Ne", "Shift_Ne", "Max_Speed", "Max_Ne",
                                    "His_Num", "Min Plan", "Color_1",  "Color_2",   "Color_3",
                                    "Color_4", "Color_5",  "Color_6"};

struct BadSetting : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};

  void Keep(const std::string& value, const std::string& text) {
    simulated.registry.Write(RegistryRoot::CurrentUser, kSettingsKey, value, text);
  }
  int ReadFault() {
    return Guarded([&] { ReadSettings(program); });
  }
};

TEST_F(BadSetting, IsFoundWhereverTheStartFaults) {
  for (const char* value : kNumbers) {
    for (const char* text : {"abc", "1.2.3", " ", "1e400", "99999999999", "0", "7", "-1", ""}) {
      Keep(value, text);
      const auto bad = FindBadSetting(program);
      EXPECT_EQ(bad.has_value(), ReadFault() != 0) << value << " \"" << text << '"';
      EXPECT_EQ(bad.value_or(StoredValue{value, text}), (StoredValue{value, text}));
    }
  }
  EXPECT_EQ(FindBadSetting(program), std::nullopt);
}

TEST_F(BadSetting, OfSeveralTheOneIsFoundAtWhichTheStartFaults) {
  for (const char* value : kNumbers) Keep(value, "abc");
  for (const char* value : kNumbers) {
    EXPECT_EQ(FindBadSetting(program), (StoredValue{value, "abc"}));
    Keep(value, "");
  }
  EXPECT_EQ(ReadFault(), 0);
}

TEST_F(BadSetting, FollowsTheSystemsDecimalMark) {
  program.workspace.DecimalSep = ",";
  Keep("Max_Ne", "12000.5");
  EXPECT_EQ(FindBadSetting(program), (StoredValue{"Max_Ne", "12000.5"}));
  Keep("Max_Ne", "12000,5");
  EXPECT_EQ(FindBadSetting(program), std::nullopt);
}

TEST_F(BadSetting, TextsAreNone) {
  for (const char* value : {"List_File", "Language", "Pr_Font", "App Path"}) Keep(value, "abc");
  EXPECT_EQ(FindBadSetting(program), std::nullopt);
}

}  // namespace
}  // namespace veldrin
