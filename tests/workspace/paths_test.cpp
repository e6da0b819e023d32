#include "workspace/paths.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr PathRules kDrives;
constexpr PathRules kOneTree{'/', 0, true};

TEST(StoredFolder, StandsInCapitalsWhereNamesDoNotDependOnCase) {
  EXPECT_EQ(StoredFolder(kDrives, "C:\\My Lists"), "C:\\MY LISTS");
  EXPECT_EQ(StoredFolder(kDrives, "d:\\"), "D:\\");
  EXPECT_EQ(StoredFolder(kDrives, "C:\\Données"), "C:\\DONNÉES");
  EXPECT_EQ(StoredFolder(kDrives, ""), "");
}

TEST(StoredFolder, KeepsItsCaseWhereNamesDependOnIt) {
  EXPECT_EQ(StoredFolder(kOneTree, "/home/rider/My Lists"), "/home/rider/My Lists");
  EXPECT_EQ(StoredFolder(kOneTree, "/"), "/");
  EXPECT_EQ(StoredFolder(kOneTree, ""), "");
}

}  // namespace
}  // namespace veldrin
