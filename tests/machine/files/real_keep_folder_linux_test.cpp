// Where kept plans stand: a variable of the desktop names the folder. Windows knows it by itself.
#include "machine/files/real_keep_folder.h"

#include <QDir>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealKeepFolder, StandsInTheStateFolder) {
  const QByteArray before = qgetenv("XDG_STATE_HOME");
  qputenv("XDG_STATE_HOME", "/some/state");
  EXPECT_EQ(RealKeepFolder::UsersFolder(), "/some/state/veldrin");
  qputenv("XDG_STATE_HOME", "relative");
  EXPECT_EQ(RealKeepFolder::UsersFolder(), QDir::homePath() + "/.local/state/veldrin");
  qputenv("XDG_STATE_HOME", before);
}

}  // namespace
}  // namespace veldrin
