// Where the locks of running copies stand: a variable of the session names the folder. Windows knows it by
// itself.
#include "machine/real_instances.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealInstances, LocksStandInTheFolderOfTheSession) {
  const QTemporaryDir folder;
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
  EXPECT_EQ(RealInstances::UsersLocks(), folder.path() + "/veldrin-");
  before.isEmpty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", before);
}

}  // namespace
}  // namespace veldrin
