// The sort of the tables of ratios.
#include "model/ratio_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace veldrin {
namespace {

RatioRow Row(int drive, int driven) {
  RatioRow row;
  row.Drive = static_cast<std::int16_t>(drive);
  row.Driven = static_cast<std::int16_t>(driven);
  row.Text = RatioText(drive, driven);
  row.Ratio = static_cast<double>(drive) / driven;
  return row;
}

class Sort : public testing::Test {
 protected:
  void SortAll() { SortRows(1, static_cast<int>(rows.size())); }
  void SortRows(int first, int last) {
    SortRatioRows([this](int row) -> RatioRow& { return rows.at(static_cast<std::size_t>(row - 1)); }, first,
                  last, random);
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const RatioRow& row : rows) texts.push_back(row.Text);
    return texts;
  }

  using Names = std::vector<std::string>;

  std::vector<RatioRow> rows;
  std::uint32_t random = 1;
};

TEST_F(Sort, TwoRowsNeverUseTheRandomPivot) {
  rows = {Row(15, 40), Row(14, 45)};
  SortAll();
  EXPECT_EQ(Texts(), (Names{"14-45", "15-40"}));
  SortAll();
  EXPECT_EQ(Texts(), (Names{"14-45", "15-40"}));
  EXPECT_EQ(random, 1U);
}

TEST_F(Sort, OneRowAndNoneStay) {
  rows = {Row(15, 40)};
  SortAll();
  SortRows(1, 0);
  EXPECT_EQ(Texts(), Names{"15-40"});
  EXPECT_EQ(random, 1U);
}

TEST_F(Sort, TwoRowsAreComparedIn64Bits) {
  rows = {Row(1, 1), Row(1, 1)};
  rows[0].Ratio = 1 + 1e-12;
  rows[0].Text = "high ";
  SortAll();
  EXPECT_EQ(rows[1].Text, "high ");
}

TEST_F(Sort, EqualPairStaysAsItIs) {
  rows = {Row(15, 45), Row(14, 42)};
  SortAll();
  EXPECT_EQ(Texts(), (Names{"15-45", "14-42"}));
}

// Rows of equal ratios change places by the rule, always alike. The generator begins with 48271 of 2^31 - 2,
// so that the first row is the first pivot: it changes places with the last one.
//
//   15-45 14-42 14-45    pivot and last row change places: 14-45 14-42 15-45
//                        no row is above 15-45, which stays the last
//                        the two others are a pair in order
TEST_F(Sort, OfEqualRowsThePivotComesLast) {
  rows = {Row(15, 45), Row(14, 42), Row(14, 45)};
  SortAll();
  EXPECT_EQ(Texts(), (Names{"14-45", "14-42", "15-45"}));
}

//   15-45 18-34 14-42 14-45    pivot and last row change places: 14-45 18-34 14-42 15-45
//                              from the left 18-34 is above; from the right nothing is below before it
//                              so 18-34 and the pivot change places: 14-45 15-45 14-42 18-34
//                              on the right 14-42 18-34 are a pair in order
TEST_F(Sort, OfEqualRowsThoseBehindARowAboveStayBehindThePivot) {
  rows = {Row(15, 45), Row(18, 34), Row(14, 42), Row(14, 45)};
  SortAll();
  EXPECT_EQ(Texts(), (Names{"14-45", "15-45", "14-42", "18-34"}));
}

TEST_F(Sort, MovesAllFieldsOfARow) {
  rows = {Row(18, 34), Row(14, 45), Row(16, 40), Row(15, 36)};
  SortAll();
  EXPECT_EQ(Texts(), (Names{"14-45", "16-40", "15-36", "18-34"}));
  for (const RatioRow& row : rows) {
    EXPECT_EQ(row.Text, RatioText(row.Drive, row.Driven));
    EXPECT_EQ(row.Ratio, static_cast<double>(row.Drive) / row.Driven);
  }
}

TEST_F(Sort, LeavesRowsOutsideTheRangeAlone) {
  rows = {Row(20, 30), Row(18, 34), Row(14, 45), Row(16, 40), Row(10, 45)};
  SortRows(2, 4);
  EXPECT_EQ(Texts(), (Names{"20-30", "14-45", "16-40", "18-34", "10-45"}));
}

TEST_F(Sort, GivesTheSameOrderOnEveryRun) {
  const auto shuffled = [] {
    std::vector<RatioRow> some;
    for (int k = 0; k < 60; ++k) some.push_back(Row(12 + k * 7 % 10, 30 + k * 11 % 17));
    return some;
  };
  rows = shuffled();
  SortAll();
  const Names first = Texts();
  rows = shuffled();
  random = 1;
  SortAll();
  EXPECT_EQ(Texts(), first);
  EXPECT_NE(random, 1U);
}

TEST_F(Sort, SortsEveryTableAndLosesNoRow) {
  std::mt19937 any(11);
  for (int round = 0; round < 3000; ++round) {
    rows.clear();
    const bool equals = any() % 3 == 0;
    for (unsigned count = any() % (round % 50 == 0 ? 201 : 20); count > 0; --count) {
      rows.push_back(Row(12 + static_cast<int>(any() % (equals ? 2 : 8)), 32 + static_cast<int>(any() % 16)));
    }
    std::map<std::string, int> before;
    for (const RatioRow& row : rows) ++before[row.Text];
    SortAll();
    std::map<std::string, int> after;
    for (const RatioRow& row : rows) ++after[row.Text];
    ASSERT_EQ(after, before);
    for (std::size_t k = 1; k < rows.size(); ++k) {
      ASSERT_LE(static_cast<float>(rows[k - 1].Ratio), static_cast<float>(rows[k].Ratio))
          << "round " << round;
    }
  }
}

TEST_F(Sort, TakesRatiosThatDifferBeyond32BitsForEqual) {
  for (int k = 0; k < 50; ++k) {
    rows.push_back(Row(1, 1));
    rows.back().Ratio = 1 + 1e-12 * k;
  }
  SortAll();
  EXPECT_EQ(rows.size(), 50U);
}

TEST(RatioText, HasFiveCharactersAlways) {
  EXPECT_EQ(RatioText(14, 34), "14-34");
  EXPECT_EQ(RatioText(9, 34), "9-34 ");
  EXPECT_EQ(RatioText(9, 8), "9-8  ");
  EXPECT_EQ(RatioText(13, 100), "13-10");
  EXPECT_EQ(RatioText(100, 34), "100-3");
  EXPECT_EQ(RatioText(-5, 34), "-5-34");
  EXPECT_EQ(RatioText(32767, 32767), "32767");
}

}  // namespace
}  // namespace veldrin
