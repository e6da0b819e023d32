#include "platform/paths.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr PathRules kDrives;
constexpr PathRules kOneRoot{.separator = '/', .rootLength = 0};

TEST(Paths, FolderIsCutToJoinToIt) {
  EXPECT_EQ(TrimRoot(kDrives, "C:\\"), "C:");
  EXPECT_EQ(TrimRoot(kDrives, "C:\\DAT"), "C:\\DAT");
  EXPECT_EQ(TrimRoot(kDrives, "C:\\DAT\\"), "C:");
  EXPECT_EQ(TrimRoot(kOneRoot, "/"), "");
  EXPECT_EQ(TrimRoot(kOneRoot, "/dat"), "/dat");
}

TEST(Paths, RootGetsItsSeparatorBack) {
  EXPECT_EQ(WithRoot(kDrives, "C:"), "C:\\");
  EXPECT_EQ(WithRoot(kDrives, "C:\\DAT"), "C:\\DAT");
  EXPECT_EQ(WithRoot(kOneRoot, ""), "/");
  EXPECT_EQ(WithRoot(kOneRoot, "/dat"), "/dat");
}

}  // namespace
}  // namespace veldrin
