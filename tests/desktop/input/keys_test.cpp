#include "desktop/input/keys.h"

#include "view/event.h"

#include <gtest/gtest.h>

#include <map>

namespace veldrin {
namespace {

int NumberOf(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
  return KeyNumber(QKeyEvent(QEvent::KeyPress, qtKey, modifiers, text));
}

TEST(Keys, HaveThePlatformsNumbers) {
  const std::map<int, int> kNumbers = {
      {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
      {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
      {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
      {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
      {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
      {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},   {Qt::Key_0, 48},       {Qt::Key_9, 57},
      {Qt::Key_A, 65},        {Qt::Key_Z, 90},        {Qt::Key_F1, 112},     {Qt::Key_F12, 123}};
  for (const auto& [key, number] : kNumbers) EXPECT_EQ(NumberOf(key), number) << key;
  EXPECT_EQ(NumberOf(Qt::Key_VolumeUp), 0);
}

TEST(Keys, OfPunctuationHaveThePlatformsNumbersToo) {
  EXPECT_EQ(NumberOf(Qt::Key_Semicolon), 186);
  EXPECT_EQ(NumberOf(Qt::Key_Colon, Qt::ShiftModifier), 186);
  EXPECT_EQ(NumberOf(Qt::Key_Plus, Qt::ShiftModifier), 187);
  EXPECT_EQ(NumberOf(Qt::Key_Equal), 187);
  EXPECT_EQ(NumberOf(Qt::Key_Comma), 188);
  EXPECT_EQ(NumberOf(Qt::Key_Minus), 189);
  EXPECT_EQ(NumberOf(Qt::Key_Underscore, Qt::ShiftModifier), 189);
  EXPECT_EQ(NumberOf(Qt::Key_Period), 190);
  EXPECT_EQ(NumberOf(Qt::Key_Slash), 191);
  EXPECT_EQ(NumberOf(Qt::Key_Question, Qt::ShiftModifier), 191);
  EXPECT_EQ(NumberOf(Qt::Key_QuoteLeft), 192);
  EXPECT_EQ(NumberOf(Qt::Key_BracketLeft), 219);
  EXPECT_EQ(NumberOf(Qt::Key_Backslash), 220);
  EXPECT_EQ(NumberOf(Qt::Key_BraceRight, Qt::ShiftModifier), 221);
  EXPECT_EQ(NumberOf(Qt::Key_Apostrophe), 222);
  EXPECT_EQ(NumberOf(Qt::Key_QuoteDbl, Qt::ShiftModifier), 222);
  // The key beside the left shift of keyboards that have one more; elsewhere the sign lies on the comma.
  EXPECT_EQ(NumberOf(Qt::Key_Less), 226);
  EXPECT_EQ(NumberOf(Qt::Key_Less, Qt::ShiftModifier), 188);
}

TEST(Keys, OfDigitsHaveTheDigitsNumberAlsoWithShift) {
  const QString kSigns = ")!@#$%^&*(";
  for (int digit = 0; digit <= 9; ++digit) {
    EXPECT_EQ(NumberOf(kSigns[digit].unicode(), Qt::ShiftModifier), '0' + digit);
  }
}

TEST(Keys, OfTheKeypadsSignsHaveTheirOwn) {
  EXPECT_EQ(NumberOf(Qt::Key_Asterisk, Qt::KeypadModifier), 106);
  EXPECT_EQ(NumberOf(Qt::Key_Plus, Qt::KeypadModifier), 107);
  EXPECT_EQ(NumberOf(Qt::Key_Minus, Qt::KeypadModifier), 109);
  EXPECT_EQ(NumberOf(Qt::Key_Period, Qt::KeypadModifier), 110);
  EXPECT_EQ(NumberOf(Qt::Key_Slash, Qt::KeypadModifier), 111);
}

TEST(Keys, ThatWriteAnythingElseHaveANumber) {
  for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key) EXPECT_NE(NumberOf(key), 0) << key;
  EXPECT_EQ(NumberOf(Qt::Key_Udiaeresis), 255);
  EXPECT_EQ(NumberOf(Qt::Key_unknown, Qt::NoModifier, "雨"), 255);
  EXPECT_EQ(NumberOf(Qt::Key_unknown, Qt::NoModifier, "𠮷"), 255);
  EXPECT_EQ(NumberOf(Qt::Key_unknown, Qt::ControlModifier, "\x01"), 0);
  EXPECT_EQ(NumberOf(Qt::Key_unknown), 0);
  EXPECT_EQ(NumberOf(0), 0);
}

TEST(Keys, OfSignsAreNotTakenForThoseThatMove) {
  for (int key = Qt::Key_Exclam; key <= Qt::Key_Slash; ++key) {
    const int number = NumberOf(key, Qt::ShiftModifier);
    EXPECT_TRUE(number < 33 || number > 46) << key;
  }
}

TEST(Keys, AndBack) {
  for (const int number : {8,   9,   13,  27,  32,  37,  38,  39,  40,  46,  48,  49,  57,  65, 90,
                           112, 123, 186, 187, 188, 189, 190, 191, 192, 219, 220, 221, 222, 226}) {
    EXPECT_EQ(NumberOf(QtKey(number)), number);
  }
  EXPECT_EQ(QtKey('1'), Qt::Key_1);
  EXPECT_EQ(QtKey(1), 0);
  EXPECT_EQ(QtKey(255), 0);
}

TEST(Keys, OfTheRightButton) {
  const auto rightClick = [](int key, Qt::KeyboardModifiers modifiers) {
    return IsRightClick(QKeyEvent(QEvent::KeyPress, key, modifiers));
  };
  EXPECT_TRUE(rightClick(Qt::Key_Menu, Qt::NoModifier));
  EXPECT_TRUE(rightClick(Qt::Key_F10, Qt::ShiftModifier));
  EXPECT_FALSE(rightClick(Qt::Key_F10, Qt::NoModifier));
  EXPECT_FALSE(rightClick(Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier));
  EXPECT_FALSE(rightClick(Qt::Key_Menu, Qt::AltModifier));
  EXPECT_FALSE(rightClick(Qt::Key_Space, Qt::ShiftModifier));
}

}  // namespace
}  // namespace veldrin
