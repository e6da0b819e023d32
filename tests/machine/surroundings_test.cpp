#include "tests/qt_surroundings.h"

#include <QFileInfo>

namespace veldrin {
namespace {

const ::testing::Environment* const Standing = ::testing::AddGlobalTestEnvironment(new Surroundings);

TEST(SurroundingsTest, TheSessionIsTheTestsOwn) {
  const QFileInfo session(qEnvironmentVariable("XDG_RUNTIME_DIR"));
  EXPECT_TRUE(session.isDir());
  EXPECT_EQ(session.permissions() & 0x0077, QFileDevice::Permissions()) << "open to others";
}

}  // namespace
}  // namespace veldrin
