// The folder of the session, which Linux alone keeps from others by rights.
#include <QFileInfo>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(SurroundingsTest, TheSessionIsTheTestsOwn) {
  const QFileInfo session(qEnvironmentVariable("XDG_RUNTIME_DIR"));
  EXPECT_TRUE(session.isDir());
  EXPECT_EQ(session.permissions() & 0x0077, QFileDevice::Permissions()) << "open to others";
}

}  // namespace
}  // namespace veldrin
