#include "machine/real_display.h"

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

TEST(RealDisplay, FatalMessagesAreOneLine) {
  const QString noPlugin =
      "This application failed to start because no Qt platform plugin could be initialized.\n\nMore";
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  qunsetenv("QT_QPA_PLATFORM");
  EXPECT_EQ(FatalText(noPlugin), "the display cannot be opened; DISPLAY or WAYLAND_DISPLAY must name one");
  qputenv("QT_QPA_PLATFORM", "nonesuch");
  EXPECT_EQ(FatalText(noPlugin), noPlugin.section('\n', 0, 0));
  qputenv("QT_QPA_PLATFORM", platform);
  EXPECT_EQ(FatalText("out of threads"), "out of threads");
}

}  // namespace
}  // namespace veldrin
