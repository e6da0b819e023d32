// The command line of the planner, one line a case.
#include "plan/arguments/arguments.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Words = std::vector<std::string>;

constexpr char kSpeeds[] = "60,80,100,120,140,160";

/// A mistake fails the test.
PlanArguments ReadAll(const Words& words) {
  std::string mistake;
  const std::optional<PlanArguments> arguments = ReadArguments(words, mistake);
  EXPECT_TRUE(arguments) << mistake;
  return arguments.value_or(PlanArguments());
}

/// The arguments of a search with these words more.
PlanArguments Read(const Words& more = {}) {
  Words words = {"NX4.RAT", "--speed", kSpeeds};
  words.insert(words.end(), more.begin(), more.end());
  return ReadAll(words);
}

std::string Mistake(const Words& words) {
  std::string mistake;
  EXPECT_FALSE(ReadArguments(words, mistake));
  return mistake;
}

std::string MistakeOfSearch(Words more) {
  more.insert(more.begin(), {"NX4.RAT", "--speed", kSpeeds});
  return Mistake(more);
}

TEST(Arguments, SearchHasDefaults) {
  const PlanArguments arguments = Read();
  EXPECT_EQ(arguments.action, PlanAction::Search);
  EXPECT_EQ(arguments.listPath, "NX4.RAT");
  EXPECT_EQ(arguments.speed[1], 60);
  EXPECT_EQ(arguments.speed[6], 160);
  EXPECT_FALSE(arguments.HasManual());
  EXPECT_EQ(arguments.mainGear, 0);
  EXPECT_FALSE(arguments.shiftNe);
  EXPECT_FALSE(arguments.tyreLength);
  EXPECT_EQ(arguments.minPlan, 1);
  EXPECT_EQ(arguments.format, PlanFormat::Table);
}

TEST(Arguments, OptionsAreRead) {
  EXPECT_EQ(Read({"--main", "6"}).mainGear, 6);
  EXPECT_EQ(Read({"--main=1"}).mainGear, 1);
  EXPECT_EQ(Read({"--min-plan", "30"}).minPlan, 30);
  EXPECT_EQ(Read({"--shift-ne", "5000"}).shiftNe, 5000);
  EXPECT_EQ(Read({"--shift-ne", "24000"}).shiftNe, 24000);
  EXPECT_EQ(Read({"--tyre", "1.95"}).tyreLength, 1.95F);
  EXPECT_EQ(Read({"--tyre=3"}).tyreLength, 3);
  EXPECT_EQ(Read({"--format", "csv"}).format, PlanFormat::Csv);
  EXPECT_EQ(Read({"--format=json"}).format, PlanFormat::Json);
  EXPECT_EQ(Read({"--format", "table"}).format, PlanFormat::Table);
}

TEST(Arguments, ManualGearsHaveTheirBounds) {
  const PlanArguments arguments = Read({"--manual", "3=-2+3", "--manual=6=-21+1"});
  EXPECT_TRUE(arguments.HasManual());
  ASSERT_TRUE(arguments.manual[3]);
  EXPECT_EQ(arguments.manual[3]->minus, 2);
  EXPECT_EQ(arguments.manual[3]->plus, 3);
  ASSERT_TRUE(arguments.manual[6]);
  EXPECT_EQ(arguments.manual[6]->minus, 21);
  EXPECT_EQ(arguments.manual[6]->plus, 1);
  EXPECT_FALSE(arguments.manual[1]);
}

TEST(Arguments, ListMayStandAnywhereAndMayBeginWithAMinus) {
  std::string mistake;
  EXPECT_EQ(ReadArguments({"--speed", kSpeeds, "A.RAT"}, mistake)->listPath, "A.RAT");
  EXPECT_EQ(ReadArguments({"--speed", kSpeeds, "--", "-A.RAT"}, mistake)->listPath, "-A.RAT");
}

TEST(Arguments, EncodingsAreNamedByTheirPages) {
  EXPECT_FALSE(Read().page);
  EXPECT_EQ(Read({"--encoding", "utf-8"}).page, 65001);
  EXPECT_EQ(Read({"--encoding=UTF8"}).page, 65001);
  EXPECT_EQ(Read({"--encoding=cp932"}).page, 932);
  EXPECT_EQ(Read({"--encoding", "CP1252"}).page, 1252);
}

TEST(Arguments, CheckMayTakeItsFileLikeAnOption) {
  std::string mistake;
  const auto check = ReadArguments({"--check=A.RAT"}, mistake);
  ASSERT_TRUE(check) << mistake;
  EXPECT_EQ(check->action, PlanAction::Check);
  EXPECT_EQ(check->listPath, "A.RAT");
  EXPECT_EQ(ReadArguments({"--check=-A=B.RAT"}, mistake)->listPath, "-A=B.RAT");
  EXPECT_EQ(ReadArguments({"--check=A.RAT", "--encoding", "cp932"}, mistake)->page, 932);
  EXPECT_EQ(ReadArguments({"--encoding=cp932", "--check", "A.RAT"}, mistake)->page, 932);
  EXPECT_EQ(Mistake({"--check="}), "the list's name is empty");
  EXPECT_EQ(Mistake({"--check=A.RAT", "B.RAT"}), "a second list, \"B.RAT\"");
  EXPECT_EQ(Mistake({"--check=A.RAT", "--encoding=cp932", "--main=1"}),
            "--check and --main do not go together");
}

TEST(Arguments, EveryOptionTakesItsValueBehindTheSignAsWell) {
  const PlanArguments arguments =
      ReadAll({"--speed=60,80,100,120,140,160", "--main=6", "--min-plan=2", "--shift-ne=12000", "--tyre=2",
               "--format=csv", "--encoding=utf-8", "A.RAT"});
  EXPECT_EQ(arguments.speed[6], 160);
  EXPECT_EQ(arguments.mainGear, 6);
  EXPECT_EQ(arguments.minPlan, 2);
  EXPECT_EQ(arguments.shiftNe, 12000);
  EXPECT_EQ(arguments.tyreLength, 2);
  EXPECT_EQ(arguments.format, PlanFormat::Csv);
  EXPECT_EQ(arguments.page, 65001);
  EXPECT_EQ(arguments.listPath, "A.RAT");
}

TEST(Arguments, OtherActions) {
  std::string mistake;
  EXPECT_EQ(ReadArguments({"--help"}, mistake)->action, PlanAction::Help);
  EXPECT_EQ(ReadArguments({"-h"}, mistake)->action, PlanAction::Help);
  EXPECT_EQ(ReadArguments({"--version"}, mistake)->action, PlanAction::Version);
  EXPECT_EQ(ReadArguments({"A.RAT", "--help", "--nonsense"}, mistake)->action, PlanAction::Help);
  EXPECT_EQ(ReadArguments({"--check", "A.RAT"}, mistake)->action, PlanAction::Check);
  EXPECT_EQ(ReadArguments({"A.RAT", "--check"}, mistake)->listPath, "A.RAT");
}

TEST(Arguments, SpeedsAreWholeAndTenOrMore) {
  std::string mistake;
  EXPECT_EQ(ReadArguments({"A", "--speed", "10,20.0, 30,4e1,50,1000"}, mistake)->speed[4], 40);
  struct Case {
    const char* speeds;
    const char* mistake;
  };
  const Case cases[] = {
      {"60,80,100,120,140", "--speed: six speeds are needed, found 5"},
      {"60,80,100,120,140,160,180", "--speed: six speeds are needed, found 7"},
      {"", "--speed: six speeds are needed, found 1"},
      {"60,80,100,120,140,", "--speed: \"\" is no number"},
      {"60,80,100,120,140,x", "--speed: \"x\" is no number"},
      {"9,80,100,120,140,160", "--speed: 9 is too low, 10 is the least"},
      {"-60,80,100,120,140,160", "--speed: -60 is too low, 10 is the least"},
      {"60,80.5,100,120,140,160", "--speed: 80.5 is not a whole number of km/h"},
      {"60,80,100,120,140,1e39", "--speed: 1e39 is too high"},
      {"60,80,100,120,140,1e999", "--speed: \"1e999\" is no number"},
      {"60,80,100,120,140,nan", "--speed: \"nan\" is no number"},
  };
  for (const Case& c : cases) EXPECT_EQ(Mistake({"A.RAT", "--speed", c.speeds}), c.mistake) << c.speeds;
}

TEST(Arguments, MistakesAreTold) {
  struct Case {
    Words more;
    const char* mistake;
  };
  const Case cases[] = {
      {{"--main", "0"}, "--main: 0 is out of range, 1 to 6"},
      {{"--main", "7"}, "--main: 7 is out of range, 1 to 6"},
      {{"--main", "1.5"}, "--main: 1.5 is not a whole number"},
      {{"--main", "first"}, "--main: \"first\" is no number"},
      {{"--main"}, "--main needs a value"},
      {{"--main="}, "--main: \"\" is no number"},
      {{"--min-plan", "0"}, "--min-plan: 0 is out of range, 1 to 30"},
      {{"--min-plan", "31"}, "--min-plan: 31 is out of range, 1 to 30"},
      {{"--shift-ne", "4999"}, "--shift-ne: 4999 is out of range, 5000 to 24000"},
      {{"--shift-ne", "24001"}, "--shift-ne: 24001 is out of range, 5000 to 24000"},
      {{"--shift-ne", "12000.5"}, "--shift-ne: 12000.5 is not a whole number"},
      {{"--tyre", "0.99"}, "--tyre: 0.99 is out of range, 1 to 3"},
      {{"--tyre", "3.01"}, "--tyre: 3.01 is out of range, 1 to 3"},
      {{"--tyre", "1,9"}, "--tyre: \"1,9\" is no number"},
      {{"--format", "xml"}, "--format: \"xml\" is none of table, csv, json, svg and html"},
      {{"--encoding", "latin"}, "--encoding: \"latin\" is neither utf-8 nor cpN"},
      {{"--encoding", "cp"}, "--encoding: \"cp\" is neither utf-8 nor cpN"},
      {{"--encoding", "cp-932"}, "--encoding: \"cp-932\" is neither utf-8 nor cpN"},
      {{"--encoding", "cp+932"}, "--encoding: \"cp+932\" is neither utf-8 nor cpN"},
      {{"--encoding", "cp0"}, "--encoding: \"cp0\" is neither utf-8 nor cpN"},
      {{"--encoding", "cp65536"}, "--encoding: \"cp65536\" is neither utf-8 nor cpN"},
      {{"--encoding=cp932", "--encoding=cp932"}, "--encoding is given twice"},
      {{"--help=search"}, "--help takes no value"},
      {{"--version=2"}, "--version takes no value"},
      {{"--manual", "3"}, "--manual: \"3\" is not of the form G=-A+B"},
      {{"--manual", "3=2+3"}, "--manual: \"3=2+3\" is not of the form G=-A+B"},
      {{"--manual", "3=-2"}, "--manual: \"3=-2\" is not of the form G=-A+B"},
      {{"--manual", "7=-2+3"}, "--manual: 7 is out of range, 1 to 6"},
      {{"--manual", "3=-0+3"}, "--manual: 0 is out of range, 1 to 21"},
      {{"--manual", "3=-2+22"}, "--manual: 22 is out of range, 1 to 21"},
      {{"--manual", "3=-2+x"}, "--manual: \"x\" is no number"},
      {{"--manual", "3=-2+3", "--manual", "3=-1+1"}, "--manual: gear 3 is given twice"},
      {{"--manual", "3=-2+3", "--main", "1"}, "--main and --manual do not go together"},
      {{"--manual", "3=-2+3", "--min-plan", "2"}, "--min-plan and --manual do not go together"},
      {{"--speed", kSpeeds}, "--speed is given twice"},
      {{"--sped"}, "unknown option \"--sped\"; --help tells all"},
      {{"-x"}, "unknown option \"-x\"; --help tells all"},
      {{"VT2.RAT"}, "a second list, \"VT2.RAT\""},
      {{"--check"}, "--check and --speed do not go together"},
      {{"--from="}, "--from: the plan's name is empty"},
  };
  for (const Case& c : cases) EXPECT_EQ(MistakeOfSearch(c.more), c.mistake);
  EXPECT_EQ(Mistake({}), "no list is named; --help tells more");
  EXPECT_EQ(Mistake({""}), "the list's name is empty");
  EXPECT_EQ(Mistake({"--check"}), "no list is named; --help tells more");
  EXPECT_EQ(Mistake({"A.RAT"}), "--speed is missing; --help tells more");
  EXPECT_EQ(Mistake({"A.RAT", "--speed"}), "--speed needs a value");
}

}  // namespace
}  // namespace veldrin
