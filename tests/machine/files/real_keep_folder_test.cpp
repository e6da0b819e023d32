#include "machine/files/real_keep_folder.h"

#include "runtime/fault.h"
#include "tests/desktop/scratch_folder.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

class RealKeepFolderTest : public ::testing::Test, protected ScratchFolder {
 protected:
  RealKeepFolder kept{In("state/veldrin")};
};

TEST_F(RealKeepFolderTest, WhatIsReplacedIsRead) {
  EXPECT_TRUE(kept.KeptNames().empty());
  EXPECT_FALSE(kept.Read("a.kept"));
  kept.Replace("b.kept", "one");
  kept.Replace("a.kept", std::string("two\0three", 9));
  kept.Replace("a-1.nx4", "plan");
  EXPECT_EQ(kept.KeptNames(), (std::vector<std::string>{"a.kept", "b.kept"}));
  EXPECT_EQ(kept.Read("a.kept"), std::string("two\0three", 9));
  kept.Remove("a.kept");
  kept.Remove("a.kept");
  EXPECT_EQ(kept.KeptNames(), std::vector<std::string>{"b.kept"});
}

TEST_F(RealKeepFolderTest, NamesElsewhereAreRefused) {
  Put("state/secret", "mine");
  EXPECT_FALSE(kept.Read("../secret"));
  kept.Remove("../secret");
  EXPECT_TRUE(QFile::exists(In("state/secret")));
  EXPECT_EQ(Guarded([&] { kept.Replace("../other", "x"); }), kFaultBadFileName);
  EXPECT_EQ(kept.Claim("../other"), nullptr);
}

TEST_F(RealKeepFolderTest, OneHasAClaimAtATime) {
  auto first = kept.Claim("a");
  ASSERT_NE(first, nullptr);
  RealKeepFolder other(In("state/veldrin"));
  EXPECT_EQ(other.Claim("a"), nullptr);
  EXPECT_NE(other.Claim("b"), nullptr);
  first.reset();
  EXPECT_NE(other.Claim("a"), nullptr);
}

TEST_F(RealKeepFolderTest, IdsDifferAndBeginWithTheTime) {
  const std::string first = kept.NewId();
  const std::string second = kept.NewId();
  EXPECT_NE(first, second);
  const QRegularExpression form("^\\d{8}-\\d{6}-\\d{3}-[0-9a-f]{8}$");
  EXPECT_TRUE(form.match(QString::fromStdString(first)).hasMatch()) << first;
  EXPECT_EQ(kept.Now().size(), 19U);
}

TEST_F(RealKeepFolderTest, FolderThatCannotBeMadeIsAFault) {
  Put("file", "no folder");
  RealKeepFolder blocked(In("file/veldrin"));
  EXPECT_NE(Guarded([&] { blocked.Replace("a.kept", "x"); }), 0);
  EXPECT_EQ(blocked.Claim("a"), nullptr);
}

}  // namespace
}  // namespace veldrin
