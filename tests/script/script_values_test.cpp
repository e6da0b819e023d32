#include "script/script_values.h"

#include "script/script_error.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(ScriptValues, WholeNumbersKeepTheirLimits) {
  EXPECT_EQ(WholeNumber("0", 0, 5), 0);
  EXPECT_EQ(WholeNumber("-32768", -32768, 32767), -32768);
  EXPECT_EQ(IntNumber("-7"), -7);
  for (const char* word : {"6", "-1", "", " 1", "1 ", "1.5", "+1", "one", "1e2", "99999999999999999999"}) {
    EXPECT_THROW(WholeNumber(word, 0, 5), ScriptError) << word;
  }
}

TEST(ScriptValues, NumbersHaveAPoint) {
  EXPECT_EQ(Number("1.9"), 1.9);
  EXPECT_EQ(SingleNumber("-0.1"), -0.1F);
  for (const char* word : {"", "1,9", "x", "1.9x"}) EXPECT_THROW(Number(word), ScriptError) << word;
  EXPECT_THROW(SingleNumber("1e39"), ScriptError);
}

TEST(ScriptValues, Truths) {
  EXPECT_TRUE(TrueOrFalse("True"));
  EXPECT_FALSE(TrueOrFalse("false"));
  EXPECT_THROW(TrueOrFalse("1"), ScriptError);
}

TEST(ScriptValues, ColoursAreThreeNumbers) {
  EXPECT_EQ(ColourOf("0,128,255"), Rgb(0, 128, 255));
  for (const char* word : {"", "0,0", "0,0,256", "-1,0,0", "0,0,0,0", "red", "0, 0,0"}) {
    EXPECT_THROW(ColourOf(word), ScriptError) << word;
  }
}

}  // namespace
}  // namespace veldrin
