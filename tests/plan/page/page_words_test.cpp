#include "plan/page/page_words.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(PageWords, AreThoseOfTheirLanguage) {
  const struct {
    const char* PageWords::*word;
    const char* english;
    const char* japanese;
  } kWords[] = {
      {&PageWords::language, "en", "ja"},
      {&PageWords::gear, "Gear", "ギヤ"},
      {&PageWords::pair, "Pair", "組合せ"},
      {&PageWords::request, "Request", "要求"},
      {&PageWords::speed, "km/h", "km/h"},
      {&PageWords::step, "Step", "速度差"},
      {&PageWords::neAfter, "rev/min after", "変速後 rpm"},
      {&PageWords::stored, "Stored", "保存値"},
      {&PageWords::difference, "Off", "差"},
      {&PageWords::deviation, "+/- rev/min", "± rpm"},
      {&PageWords::main, "Main shaft", "メインシャフト"},
      {&PageWords::counter, "Counter shaft", "カウンターシャフト"},
      {&PageWords::primary, "Primary", "一次減速"},
      {&PageWords::final, "Final", "二次減速"},
      {&PageWords::tyre, "Tyre", "タイヤ周長"},
      {&PageWords::shift, "Shift", "シフト回転数"},
      {&PageWords::check, "Check line", "チェック回転数"},
      {&PageWords::parts, "Parts", "部品表"},
      {&PageWords::changes, "To be changed", "交換する部品"},
      {&PageWords::nothing, "nothing", "なし"},
      {&PageWords::tyreFit, "Tyre measured", "タイヤ実測"},
      {&PageWords::spread, "spread", "ばらつき"},
      {&PageWords::doesNotFit, "does not fit", "合わない"},
      {&PageWords::original, "ORG", "ORG"},
      {&PageWords::measured, "measured", "実測"},
  };
  static_assert(sizeof(kWords) / sizeof(kWords[0]) == sizeof(PageWords) / sizeof(const char*));
  for (const auto& [word, english, japanese] : kWords) {
    EXPECT_STREQ(EnglishWords().*word, english);
    EXPECT_STREQ(JapaneseWords().*word, japanese);
  }
}

TEST(PageWords, GearsAreCountedInTheirLanguage) {
  EXPECT_EQ(GearTitle(EnglishWords(), 1), "1ST");
  EXPECT_EQ(GearTitle(JapaneseWords(), 1), "1速");
}

}  // namespace
}  // namespace veldrin
