#include "plan/page/page_words.h"

#include "calc/gear_names.h"

namespace veldrin {

const PageWords& EnglishWords() {
  static constexpr PageWords words = {
      .language = "en",
      .gear = "Gear",
      .pair = "Pair",
      .request = "Request",
      .speed = "km/h",
      .step = "Step",
      .neAfter = "rev/min after",
      .stored = "Stored",
      .difference = "Off",
      .deviation = "+/- rev/min",
      .main = "Main shaft",
      .counter = "Counter shaft",
      .primary = "Primary",
      .final = "Final",
      .tyre = "Tyre",
      .shift = "Shift",
      .check = "Check line",
      .parts = "Parts",
      .changes = "To be changed",
      .nothing = "nothing",
      .tyreFit = "Tyre measured",
      .spread = "spread",
      .doesNotFit = "does not fit",
      .original = "ORG",
      .measured = "measured",
  };
  return words;
}

const PageWords& JapaneseWords() {
  static constexpr PageWords words = {
      .language = "ja",
      .gear = "ギヤ",
      .pair = "組合せ",
      .request = "要求",
      .speed = "km/h",
      .step = "速度差",
      .neAfter = "変速後 rpm",
      .stored = "保存値",
      .difference = "差",
      .deviation = "± rpm",
      .main = "メインシャフト",
      .counter = "カウンターシャフト",
      .primary = "一次減速",
      .final = "二次減速",
      .tyre = "タイヤ周長",
      .shift = "シフト回転数",
      .check = "チェック回転数",
      .parts = "部品表",
      .changes = "交換する部品",
      .nothing = "なし",
      .tyreFit = "タイヤ実測",
      .spread = "ばらつき",
      .doesNotFit = "合わない",
      .original = "ORG",
      .measured = "実測",
  };
  return words;
}

std::string GearTitle(const PageWords& words, int gear) {
  return &words == &JapaneseWords() ? std::to_string(gear) + "速" : GearName(gear);
}

}  // namespace veldrin
