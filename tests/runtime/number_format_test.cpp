// Number texts by every format that the program uses, with a point and with a comma, one line a case.
#include "runtime/number_format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace veldrin {
namespace {

constexpr char kSpeed[] = "###.#";
constexpr char kStep[] = "##.#";
constexpr char kWhole[] = "#####";
constexpr char kDeviation[] = "+###;-###;\\+-0";
constexpr char kDifference[] = "+#0.0;-#0.0;\\  +-0";

struct FormatCase {
  double value;
  const char* format;
  const char* expected;
};

void Expect(const FormatCase& c) {
  EXPECT_EQ(FormatNumber(c.value, c.format), c.expected) << c.value << " by " << c.format;
  std::string withComma = c.expected;
  std::replace(withComma.begin(), withComma.end(), '.', ',');
  EXPECT_EQ(FormatNumber(c.value, c.format, ','), withComma) << c.value << " by " << c.format;
}

TEST(Formats, GiveSpeeds) {
  const FormatCase cases[] = {
      {0, kSpeed, "."},           {12, kSpeed, "12."},           {123, kSpeed, "123."},
      {1.5, kSpeed, "1.5"},       {12.3, kSpeed, "12.3"},        {123.4, kSpeed, "123.4"},
      {0.3, kSpeed, ".3"},        {0.04, kSpeed, "."},           {0.05, kSpeed, ".1"},
      {99.95F, kSpeed, "99.9"},  // the 32-bit 99.95 lies below it
      {99.96F, kSpeed, "100."},   {0.25, kSpeed, ".3"},          {0.75, kSpeed, ".8"},
      {1234.5, kSpeed, "1234.5"}, {12345.67, kSpeed, "12345.7"}, {-1.5, kSpeed, "-1.5"},
      {-0.04, kSpeed, "-."},      {720, kSpeed, "720."},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, GiveSteps) {
  const FormatCase cases[] = {
      {0, kStep, "."},       {1, kStep, "1."},        {12, kStep, "12."},   {1.2, kStep, "1.2"},
      {0.3, kStep, ".3"},    {-1.2, kStep, "-1.2"},   {-12, kStep, "-12."}, {-0.04, kStep, "-."},
      {-0.05, kStep, "-.1"}, {123.4, kStep, "123.4"}, {9.96, kStep, "10."}, {9.95F, kStep, "9.9"},
      {9.94, kStep, "9.9"},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, GiveWholeNumbers) {
  const FormatCase cases[] = {
      {0, kWhole, ""},
      {0.4, kWhole, ""},
      {0.5, kWhole, "1"},
      {13000, kWhole, "13000"},
      {9876.5, kWhole, "9877"},
      {9876.4, kWhole, "9876"},
      {123456, kWhole, "123456"},
      {-2.5, kWhole, "-3"},
      {-0.4, kWhole, "-"},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, GiveDeviations) {
  const FormatCase cases[] = {
      {0, kDeviation, "+-0"},      {-0.0, kDeviation, "+-0"},      {1.5, kDeviation, "+2"},
      {-1.5, kDeviation, "-2"},    {2.4, kDeviation, "+2"},        {-2.4, kDeviation, "-2"},
      {2.5, kDeviation, "+3"},     {-2.5, kDeviation, "-3"},       {123, kDeviation, "+123"},
      {1234, kDeviation, "+1234"}, {-99999, kDeviation, "-99999"}, {0.4, kDeviation, "+"},
      {-0.4, kDeviation, "-"},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, GiveDifferences) {
  const FormatCase cases[] = {
      {0, kDifference, "  +-0"},    {-0.0, kDifference, "  +-0"},  {0.03, kDifference, "+0.0"},
      {-0.03, kDifference, "-0.0"}, {0.05, kDifference, "+0.1"},   {1, kDifference, "+1.0"},
      {-1.25, kDifference, "-1.3"}, {12.34, kDifference, "+12.3"}, {123.45, kDifference, "+123.5"},
      {-0.96, kDifference, "-1.0"},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, GiveOthers) {
  const FormatCase cases[] = {
      {5, "0", "5"},           {0, "0", "0"},           {7, "000", "007"},    {1.005, "0.00", "1.00"},
      {2.675, "0.00", "2.67"}, {0.125, "0.00", "0.13"}, {1, "0.0#", "1.0"},   {1.25, "0.0#", "1.25"},
      {1.05, "#.##", "1.05"},  {5, "\\##", "#5"},       {-5, "0;\\-0", "-5"}, {-5, "0", "-5"},
      {3, "+0 ", "+3 "},
  };
  for (const FormatCase& c : cases) Expect(c);
}

TEST(Formats, RoundOnTheValuesOwnDecimalsAndNotTwice) {
  EXPECT_EQ(FormatNumber(0.449999999999999, "0.0"), "0.4");
  EXPECT_EQ(FormatNumber(0.15, "0.0"), "0.1");   // the 64-bit 0.15 lies below it
  EXPECT_EQ(FormatNumber(0.15F, "0.0"), "0.2");  // the 32-bit one above
}

TEST(Formats, TakeEveryFloatingPointNumber) {
  EXPECT_EQ(FormatNumber(3.4028234663852886e38, "0").size(), 39U);
  EXPECT_EQ(FormatNumber(1e-300, "###.#"), ".");
}

}  // namespace
}  // namespace veldrin
