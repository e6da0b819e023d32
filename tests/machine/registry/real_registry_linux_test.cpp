// The settings file in a folder that denies writing, which on Windows no attribute of a folder does.
#include "tests/machine/plain_user.h"
#include "tests/machine/registry/settings_file.h"

#include <sys/stat.h>

namespace veldrin {
namespace {

TEST_F(RealRegistryTest, AFolderThatDeniesWritingIsNoHindrance) {
  registry.Write(kUser, kKey, "Language", "JP");
  chmod(folder.path().toLocal8Bit().constData(), 0755);
  chmod((folder.path() + "/settings").toLocal8Bit().constData(), 0555);
  chmod(file.toLocal8Bit().constData(), 0644);
  const int status = AsPlainUser([&] {
    const bool refused = !registry.Write(kUser, kKey, "Language", "ENGLISH");
    const bool kept = registry.Read(kUser, kKey, "Language") == "ENGLISH";
    return refused && kept ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(SettingsRegistry(file).Read(kUser, kKey, "Language"), "JP");
  chmod((folder.path() + "/settings").toLocal8Bit().constData(), 0755);
}

}  // namespace
}  // namespace veldrin
