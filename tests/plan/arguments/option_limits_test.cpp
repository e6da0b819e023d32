// The numbers in the help's texts against the limits and defaults that the options are read by.
#include "plan/arguments/option_table.h"
#include "tests/plan/planner_fixture.h"
#include "tests/told_numbers.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

/// The option's text.
std::string HelpOf(const std::string& name) {
  for (const Option& option : Options()) {
    if (option.name == name) return option.help;
  }
  ADD_FAILURE() << "there is no option " << name;
  return "";
}

/// The ends of a range as texts tell it, "1 to 30"; empty where they tell none.
Numbers RangeIn(const std::string& text) {
  static const std::regex kRange("[0-9.]+ to [0-9.]+");
  std::smatch found;
  return std::regex_search(text, found, kRange) ? NumbersIn(found.str()) : Numbers{};
}

Numbers WithDefault(const Limits& limits, float byDefault) {
  Numbers numbers = EndsOf(limits);
  numbers.push_back(byDefault);
  return numbers;
}

TEST(OptionLimits, HelpTellsThoseOfTheTable) {
  const struct {
    const char* name;
    Numbers numbers;
  } kTold[] = {
      {"--speed", {1, kGears, kLowestRequest}},
      {"--manual", EndsOf(kToleranceLimits)},
      {"--min-plan", WithDefault(kMinPlanLimits, PlanArguments().minPlan)},
      {"--shift-ne", WithDefault(kRevolutionLimits, kDefaultShiftNe)},
      {"--tyre", WithDefault(kTyreLimits, kDefaultTyreLength)},
      {"--check-ne", WithDefault(kRevolutionLimits, kDefaultCheckNe)},
  };
  for (const auto& told : kTold) EXPECT_EQ(NumbersIn(HelpOf(told.name)), told.numbers) << told.name;
}

TEST(OptionLimits, HelpTellsTheRangesByWhichNumbersAreRefused) {
  int ranges = 0;
  for (const Option& option : Options()) {
    const Numbers told = RangeIn(option.help);
    const bool takesOneNumber = option.value != nullptr && std::string(option.value).size() == 1;
    if (told.empty() || !takesOneNumber) continue;
    ++ranges;
    std::string mistake;
    EXPECT_FALSE(ReadArguments({option.name, "1000000"}, mistake)) << option.name;
    EXPECT_EQ(told, RangeIn(mistake)) << option.name << ": " << mistake;
  }
  EXPECT_EQ(ranges, 6) << "--min-plan, --best, --within, --shift-ne, --tyre and --check-ne";
}

/// What the manual says below the option's line, up to the next entry.
std::string ManualOf(const std::string& name) {
  std::istringstream file(Documented("man/man1/veldrin-plan.1"));
  const std::string head = ".It Fl " + name.substr(1);
  std::string text;
  std::string line;
  while (std::getline(file, line) && line != head && !line.starts_with(head + " ")) continue;
  while (std::getline(file, line) && !line.starts_with(".It ") && line != ".El") text += line + "\n";
  return text;
}

TEST(OptionLimits, ManualTellsTheNumbersOfTheHelp) {
  int ranges = 0;
  for (const Option& option : Options()) {
    if (RangeIn(option.help).empty()) continue;
    ++ranges;
    EXPECT_EQ(NumbersIn(ManualOf(option.name)), NumbersIn(option.help)) << option.name;
  }
  EXPECT_GE(ranges, 8);
}

TEST(OptionLimits, HelpTellsHowManyPlansASearchHolds) {
  const std::string most = "more than " + std::to_string(kPlanLimit) + " plans";
  EXPECT_NE(HelpText().find(most), std::string::npos);
}

}  // namespace
}  // namespace veldrin
