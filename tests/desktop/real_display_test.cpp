#include "desktop/real_display.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealDisplay, OnlyALostConnectionIsALostDisplay) {
  EXPECT_TRUE(TellsLostDisplay("The X11 connection broke (error 1). Did the X11 server die?"));
  EXPECT_TRUE(TellsLostDisplay("The Wayland connection broke. Did the Wayland compositor die?"));
  EXPECT_TRUE(TellsLostDisplay("The Wayland connection experienced a fatal error: Protocol error"));
  EXPECT_FALSE(TellsLostDisplay("This plugin does not support raise()"));
  EXPECT_FALSE(TellsLostDisplay(""));
}

TEST(RealDisplay, AConnectionThatIsMadeAgainIsNotLost) {
  qputenv("QT_WAYLAND_RECONNECT", "1");
  EXPECT_FALSE(TellsLostDisplay("The Wayland connection broke. Did the Wayland compositor die?"));
  qunsetenv("QT_WAYLAND_RECONNECT");
}

}  // namespace
}  // namespace veldrin
