#include "simulated/simulated_system.h"

#include "simulated/simulated_registry.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr auto kClasses = RegistryRoot::ClassesRoot;

TEST(SimulatedRegistry, NamesDoNotDependOnCase) {
  SimulatedRegistry registry;
  EXPECT_TRUE(registry.Write(kUser, "Software\\Tarn Ridge\\Veldrin", "Tyre_L", "1.9"));
  EXPECT_EQ(registry.Read(kUser, "software\\TARN RIDGE\\veldrin", "tyre_l"), "1.9");
  EXPECT_EQ(registry.Read(kUser, "\\Software\\Tarn Ridge\\Veldrin\\", "Tyre_L"), "1.9");
}

TEST(SimulatedRegistry, AbsentIsNotEmpty) {
  SimulatedRegistry registry;
  registry.Write(kUser, "Key", "", "");
  EXPECT_EQ(registry.Read(kUser, "Key", ""), "");
  EXPECT_EQ(registry.Read(kUser, "Key", "Other"), std::nullopt);
  EXPECT_EQ(registry.Read(kUser, "Other", ""), std::nullopt);
  EXPECT_EQ(registry.Read(kClasses, "Key", ""), std::nullopt);
}

TEST(SimulatedRegistry, DeletingAKeyDeletesWhatIsBelowIt) {
  SimulatedRegistry registry;
  registry.Write(kClasses, ".nx4", "", "Veldrin.file");
  registry.Write(kClasses, ".nx4\\shell\\open\\command", "", "veldrin.exe");
  registry.Write(kClasses, ".nx4b", "", "stays");
  registry.Write(kUser, ".nx4", "", "stays too");
  EXPECT_TRUE(registry.DeleteKey(kClasses, ".NX4\\Shell"));
  EXPECT_EQ(registry.Read(kClasses, ".nx4\\shell\\open\\command", ""), std::nullopt);
  EXPECT_EQ(registry.Read(kClasses, ".nx4", ""), "Veldrin.file");
  EXPECT_TRUE(registry.DeleteKey(kClasses, ".nx4"));
  EXPECT_FALSE(registry.DeleteKey(kClasses, ".nx4"));
  EXPECT_FALSE(registry.HasKey(kClasses, ".nx4"));
  EXPECT_EQ(registry.Read(kClasses, ".nx4b", ""), "stays");
  EXPECT_EQ(registry.Read(kUser, ".nx4", ""), "stays too");
  EXPECT_FALSE(registry.DeleteKey(kClasses, ""));
}

TEST(SimulatedRegistry, KeyIsThereWithOneBelowIt) {
  SimulatedRegistry registry;
  registry.Write(kUser, "A\\B", "v", "t");
  EXPECT_TRUE(registry.HasKey(kUser, "a"));
  EXPECT_TRUE(registry.HasKey(kUser, "a\\b"));
  EXPECT_FALSE(registry.HasKey(kUser, "a\\b\\v"));
}

TEST(SimulatedRegistry, RefusedWritesChangeNothing) {
  SimulatedRegistry registry;
  registry.Write(kUser, "Key", "", "old");
  registry.refusesWrites = true;
  EXPECT_FALSE(registry.Write(kUser, "Key", "", "new"));
  EXPECT_FALSE(registry.DeleteKey(kUser, "Key"));
  EXPECT_EQ(registry.Read(kUser, "Key", ""), "old");
}

TEST(SimulatedProfile, HasItsThreeEntriesUnlessTheyLack) {
  SimulatedProfile profile;
  EXPECT_EQ(profile.International("icountry"), "1");
  EXPECT_EQ(profile.International("sDecimal"), ".");
  EXPECT_EQ(profile.International("sThousand"), ",");
  EXPECT_EQ(profile.International("sList"), std::nullopt);
  profile.iCountry = std::nullopt;
  EXPECT_EQ(profile.International("iCountry"), std::nullopt);
}

TEST(SimulatedEnvironment, SpellingsOfOneNameAreEntriesOfTheirOwn) {
  SimulatedEnvironment environment;
  EXPECT_EQ(environment.Variable("TEMP"), "C:\\TEMP");
  EXPECT_EQ(environment.Variable("temp"), "C:\\TEMP");
  environment.Set("windir", "D:\\WIN");
  EXPECT_EQ(environment.Variable("WINDIR"), "C:\\WINDOWS");
  EXPECT_EQ(environment.Variable("windir"), "D:\\WIN");
  environment.Remove("WINDIR");
  EXPECT_EQ(environment.Variable("WINDIR"), "");
  EXPECT_EQ(environment.Variable("windir"), "D:\\WIN");
  EXPECT_EQ(environment.Variable("Windir"), "D:\\WIN");
}

TEST(SimulatedEnvironment, OtherSpellingReachesTheEntryThatIsThere) {
  SimulatedEnvironment environment;
  environment.Set("Temp", "D:\\T");
  EXPECT_EQ(environment.Variable("TEMP"), "D:\\T");
  environment.Remove("tEMP");
  EXPECT_EQ(environment.Variable("TEMP"), "");
  environment.Set("New", "x");
  EXPECT_EQ(environment.Variable("NEW"), "x");
  EXPECT_EQ(environment.Variable("none of them"), "");
}

TEST(SimulatedSystem, StartsWithItsDefaults) {
  const SimulatedScreen screen;
  EXPECT_EQ(screen.Width(), 15360);
  EXPECT_EQ(screen.Height(), 11520);
  EXPECT_EQ(SimulatedInstances().Others(), 0);
  const SimulatedFigures figures;
  EXPECT_EQ(figures.Memory().total, 67108864);
  EXPECT_EQ(figures.Memory().available, 33554432);
  const DiskFigures disk = figures.Disk("C:\\");
  EXPECT_EQ(disk.sectorsPerCluster, 8);
  EXPECT_EQ(disk.bytesPerSector, 512);
  EXPECT_EQ(disk.freeClusters, 100000);
  EXPECT_EQ(disk.allClusters, 400000);
}

}  // namespace
}  // namespace veldrin
