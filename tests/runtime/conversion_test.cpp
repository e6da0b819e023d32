// Conversions between numbers and between numbers and texts, one line a case.
#include "runtime/conversion.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace veldrin {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct RoundingCase {
  double value;
  double expected;
};

TEST(RoundingHalfToEven, GivesTheEvenNumberOfATie) {
  const RoundingCase cases[] = {
      {-2.5, -2},
      {-1.5, -2},
      {-0.6, -1},
      {-0.5, 0},
      {-0.4, 0},
      {0, 0},
      {0.4, 0},
      {0.5, 0},
      {0.6, 1},
      {1.5, 2},
      {2.5, 2},
      {3.5, 4},
      {0.49999999999999994, 0},  // the largest number below a half
      {0.50000000000000011, 1},
      {24000.4, 24000},
      {4503599627370495.5, 4503599627370496},
      {4503599627370497.5, 4503599627370498},
      {1e300, 1e300},
      {-1e300, -1e300},
  };
  for (const RoundingCase& c : cases) {
    EXPECT_EQ(RoundHalfToEven(c.value), c.expected) << c.value;
  }
}

/// A conversion of a number: what it gives, or the fault that it raises.
struct NarrowingCase {
  double value;
  double expected;
  int fault;
};

TEST(NarrowingTo16Bits, RoundsAndChecksItsRange) {
  const NarrowingCase cases[] = {
      {-1.5, -2, 0},         {-0.6, -1, 0},       {-0.5, 0, 0},        {-0.4, 0, 0},
      {0.4, 0, 0},           {0.5, 0, 0},         {0.6, 1, 0},         {1.5, 2, 0},
      {32767, 32767, 0},     {-32768, -32768, 0}, {32767.4, 32767, 0}, {-32768.4, -32768, 0},
      {-32768.5, -32768, 0},  // the tie goes to the even end
      {32767.5, 0, 6},       {32768, 0, 6},       {-32769, 0, 6},      {kInfinity, 0, 6},
      {-kInfinity, 0, 6},    {kNoNumber, 0, 6},
  };
  for (const NarrowingCase& c : cases) {
    double found = 0;
    const int fault = Guarded([&] { found = ToInt16(c.value); });
    EXPECT_EQ(fault, c.fault) << c.value;
    if (fault == 0) {
      EXPECT_EQ(found, c.expected) << c.value;
    }
  }
}

TEST(NarrowingTo32Bits, RoundsAndChecksItsRange) {
  const NarrowingCase cases[] = {
      {-1.5, -2, 0},
      {-0.6, -1, 0},
      {-0.5, 0, 0},
      {-0.4, 0, 0},
      {0.4, 0, 0},
      {0.5, 0, 0},
      {0.6, 1, 0},
      {1.5, 2, 0},
      {2147483647, 2147483647, 0},
      {-2147483648.0, -2147483648.0, 0},
      {2147483647.4, 2147483647, 0},
      {-2147483648.5, -2147483648.0, 0},
      {2147483647.5, 0, 6},
      {2147483648.0, 0, 6},
      {-2147483649.0, 0, 6},
      {kInfinity, 0, 6},
      {kNoNumber, 0, 6},
  };
  for (const NarrowingCase& c : cases) {
    double found = 0;
    const int fault = Guarded([&] { found = ToInt32(c.value); });
    EXPECT_EQ(fault, c.fault) << c.value;
    if (fault == 0) {
      EXPECT_EQ(found, c.expected) << c.value;
    }
  }
}

TEST(NarrowingToSingle, ChecksItsRange) {
  const NarrowingCase cases[] = {
      {0, 0, 0},
      {-1.5, -1.5, 0},
      {0.1, 0.1, 0},
      {16777217, 16777216, 0},  // the first whole number without a float
      {3.4028234663852886e38, 3.4028234663852886e38, 0},
      {-3.4028234663852886e38, -3.4028234663852886e38, 0},
      {1e-60, 0, 0},
      {3.5e38, 0, 6},
      {-3.5e38, 0, 6},
      {kInfinity, 0, 6},
      {kNoNumber, 0, 6},
  };
  for (const NarrowingCase& c : cases) {
    float found = 0;
    const int fault = Guarded([&] { found = ToSingle(c.value); });
    EXPECT_EQ(fault, c.fault) << c.value;
    if (fault == 0) {
      EXPECT_EQ(found, static_cast<float>(c.expected)) << c.value;
    }
  }
}

struct ParsingCase {
  const char* text;
  char separator;
  double expected;
  int fault;
};

TEST(ParsingNumbers, TakesTheWholeText) {
  const ParsingCase cases[] = {
      {"0", '.', 0, 0},
      {"13000", '.', 13000, 0},
      {"007", '.', 7, 0},
      {"+5", '.', 5, 0},
      {"-5", '.', -5, 0},
      {"-0", '.', 0, 0},
      {"1.9", '.', 1.9, 0},
      {".5", '.', 0.5, 0},
      {"5.", '.', 5, 0},
      {" 12 ", '.', 12, 0},
      {"\t12\t", '.', 12, 0},
      {"-.5", '.', -0.5, 0},
      {"1e3", '.', 1000, 0},
      {"1E3", '.', 1000, 0},
      {"1e+3", '.', 1000, 0},
      {"25e-1", '.', 2.5, 0},
      {"1e-999", '.', 0, 0},
      {"", '.', 0, 13},
      {" ", '.', 0, 13},
      {".", '.', 0, 13},
      {"-", '.', 0, 13},
      {"abc", '.', 0, 13},
      {"12a", '.', 0, 13},
      {"1 2", '.', 0, 13},
      {"1.2.3", '.', 0, 13},
      {"--1", '.', 0, 13},
      {"- 1", '.', 0, 13},
      {"+-1", '.', 0, 13},
      {"1e", '.', 0, 13},
      {"1e+", '.', 0, 13},
      {"e3", '.', 0, 13},
      {"nan", '.', 0, 13},
      {"inf", '.', 0, 13},
      {"0x10", '.', 0, 13},
      {"1\n", '.', 0, 13},
      {"１２", '.', 0, 13},
      {"1e999", '.', 0, 6},
      {"-1e999", '.', 0, 6},
      // The separator of the system is the only one.
      {"1,9", ',', 1.9, 0},
      {",5", ',', 0.5, 0},
      {"1.9", ',', 0, 13},
      {"1,9", '.', 0, 13},
      {"1,2,3", ',', 0, 13},
      {"1e3", ',', 1000, 0},
  };
  for (const ParsingCase& c : cases) {
    double found = 0;
    const int fault = Guarded([&] { found = ParseNumber(c.text, c.separator); });
    EXPECT_EQ(fault, c.fault) << '"' << c.text << '"';
    if (fault == 0) {
      EXPECT_EQ(found, c.expected) << '"' << c.text << '"';
    }
  }
}

TEST(ParsingNarrowNumbers, RoundsWholeOnesHalfToEvenAndChecksTheirRange) {
  EXPECT_EQ(ParseInt16("2.5"), 2);
  EXPECT_EQ(ParseInt16("3,5", ','), 4);
  EXPECT_EQ(ParseInt16("32767.4"), 32767);
  EXPECT_EQ(Guarded([] { ParseInt16("32768"); }), kFaultOverflow);
  EXPECT_EQ(Guarded([] { ParseInt16("-32769"); }), kFaultOverflow);
  EXPECT_EQ(Guarded([] { ParseInt16("x"); }), kFaultTypeMismatch);
  EXPECT_EQ(ParseInt32("40000.5"), 40000);
  EXPECT_EQ(Guarded([] { ParseInt32("2147483648"); }), kFaultOverflow);
  EXPECT_EQ(Guarded([] { ParseInt32(""); }), kFaultTypeMismatch);
  EXPECT_EQ(ParseSingle("1.9"), 1.9F);
  EXPECT_EQ(ParseSingle("1,9", ','), 1.9F);
  EXPECT_EQ(Guarded([] { ParseSingle("1e39"); }), kFaultOverflow);
  EXPECT_EQ(Guarded([] { ParseSingle("1,9"); }), kFaultTypeMismatch);
}

struct LeadingCase {
  const char* text;
  double expected;
};

TEST(LeadingNumbers, StopAtTheFirstCharacterThatFitsNone) {
  const LeadingCase cases[] = {
      {"", 0},   {"abc", 0},    {"12abc", 12}, {"  -3.5x", -3.5}, {"1.2.3", 1.2}, {"7,8", 7},
      {"1e", 1}, {"1e2e", 100}, {"-", 0},      {"+4 5", 4},       {".", 0},       {".5.", 0.5},
  };
  for (const LeadingCase& c : cases) {
    EXPECT_EQ(LeadingNumber(c.text), c.expected) << '"' << c.text << '"';
  }
}

TEST(Division, ByZeroIsFault11AndZeroByZeroFault6) {
  EXPECT_EQ(Divide(1, 4), 0.25);
  EXPECT_EQ(Divide(0, -4), 0);
  EXPECT_EQ(Guarded([] { Divide(1, 0); }), kFaultDivisionByZero);
  EXPECT_EQ(Guarded([] { Divide(-1, -0.0); }), kFaultDivisionByZero);
  EXPECT_EQ(Guarded([] { Divide(0, 0); }), kFaultOverflow);
}

struct SingleTextCase {
  float value;
  const char* expected;
};

TEST(ShortestTextOfASingle, HasNoMoreDigitsThanNeeded) {
  const SingleTextCase cases[] = {
      {0, "0"},
      {-0.0F, "0"},
      {60, "60"},
      {1.9F, "1.9"},
      {-1.9F, "-1.9"},
      {0.1F, "0.1"},
      {1.95F, "1.95"},
      {187.3F, "187.3"},
      {16777216, "16777216"},
      {1.0F / 3, "0.33333334"},
      {1e-7F, "0.0000001"},
      {720, "720"},
  };
  for (const SingleTextCase& c : cases) {
    EXPECT_EQ(ShortestText(c.value), c.expected);
  }
}

TEST(ShortestTexts, TakeTheSystemsSeparatorAndNeverAnExponent) {
  EXPECT_EQ(ShortestText(1.9F, ','), "1,9");
  EXPECT_EQ(ShortestText(60.0F, ','), "60");
  EXPECT_EQ(ShortestText(0.1), "0.1");
  EXPECT_EQ(ShortestText(0.1, ','), "0,1");
  EXPECT_EQ(ShortestText(1e21), "1000000000000000000000");
  EXPECT_EQ(ShortestText(std::numeric_limits<double>::max()).size(), 309U);
  EXPECT_EQ(ShortestText(1.0 / 3), "0.3333333333333333");
}

TEST(ShortestTexts, ReadBackToTheSameValue) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> anyPart(0.5F, 1.0F);
  std::uniform_int_distribution<int> anyScale(-60, 60);
  for (int k = 0; k < 20000; ++k) {
    const float value = std::ldexp(anyPart(random), anyScale(random));
    EXPECT_EQ(ParseSingle(ShortestText(value)), value);
    EXPECT_EQ(ParseSingle(ShortestText(value, ','), ','), value);
  }
}

}  // namespace
}  // namespace veldrin
