// The settings file among processes and folders that deny writing. On Windows settings stand in the registry,
// which the system itself shares out.
#include "tests/desktop/other_half.h"
#include "tests/machine/plain_user.h"
#include "tests/machine/registry/settings_file.h"

#include <memory>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace veldrin {
namespace {

constexpr int kWrites = 25;

TEST_F(RealRegistryTest, ProcessesThatWriteAtTheSameTimeLoseNothing) {
  constexpr int kWriters = 4;
  std::vector<std::unique_ptr<OtherHalf>> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    const QStringList words = {file, QString::number(writer)};
    writers.push_back(std::make_unique<OtherHalf>("DISABLED_RealRegistryWriter.Writes", words));
  }
  for (const auto& writer : writers) writer->AwaitEnd();
  EXPECT_EQ(Text().count("=\"x\""), kWriters * kWrites);
}

TEST(DISABLED_RealRegistryWriter, Writes) {
  const QStringList words = OtherHalf::Words();
  SettingsRegistry own(words[0]);
  for (int i = 0; i < kWrites; ++i) {
    EXPECT_TRUE(own.Write(kUser, kKey, words[1].toStdString() + "/" + std::to_string(i), "x"));
  }
}

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
