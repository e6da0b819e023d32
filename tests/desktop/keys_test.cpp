#include "desktop/keys.h"

#include "view/event.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

int NumberOf(int qtKey) {
  return KeyNumber(QKeyEvent(QEvent::KeyPress, qtKey, Qt::NoModifier));
}

TEST(Keys, HaveThePlatformsNumbers) {
  EXPECT_EQ(NumberOf(Qt::Key_Return), kKeyEnter);
  EXPECT_EQ(NumberOf(Qt::Key_Enter), kKeyEnter);
  EXPECT_EQ(NumberOf(Qt::Key_Backspace), kKeyBackspace);
  EXPECT_EQ(NumberOf(Qt::Key_Left), kKeyLeft);
  EXPECT_EQ(NumberOf(Qt::Key_Up), kKeyUp);
  EXPECT_EQ(NumberOf(Qt::Key_Right), kKeyRight);
  EXPECT_EQ(NumberOf(Qt::Key_Down), kKeyDown);
  EXPECT_EQ(NumberOf(Qt::Key_F1), kKeyF1);
  EXPECT_EQ(NumberOf(Qt::Key_F12), 123);
  EXPECT_EQ(NumberOf(Qt::Key_A), 65);
  EXPECT_EQ(NumberOf(Qt::Key_9), 57);
  EXPECT_EQ(NumberOf(Qt::Key_Escape), 27);
  EXPECT_EQ(NumberOf(Qt::Key_VolumeUp), 0);
}

TEST(Keys, AndBack) {
  for (const int number : {8, 9, 13, 27, 32, 37, 38, 39, 40, 46, 48, 57, 65, 90, 112, 123}) {
    EXPECT_EQ(NumberOf(QtKey(number)), number);
  }
  EXPECT_EQ(QtKey(1), 0);
}

}  // namespace
}  // namespace veldrin
