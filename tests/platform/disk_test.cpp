// Files and folders by paths that are longer than old calls of Windows take, with names of any characters.
#include "platform/disk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace veldrin {
namespace {

namespace fs = std::filesystem;

constexpr int kFoldersDeep = 6;

class DiskTest : public ::testing::Test {
 protected:
  void SetUp() override {
    top_ = fs::temp_directory_path() /
           PathOfText("veldrin-disk-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
                      "-雨のテスト");
    std::error_code failure;
    MakeFolderOnDisk(top_, failure);
    folder_ = top_;
    for (int i = 0; i < kFoldersDeep; ++i) {
      folder_ /= PathOfText("フォルダ 深い " + std::string(50, 'a'));
      MakeFolderOnDisk(folder_, failure);
      ASSERT_FALSE(failure) << failure.message();
    }
    ASSERT_GT(TextOfPath(folder_).size(), 360U);
  }

  void TearDown() override { Sweep(top_); }

  static void Sweep(const fs::path& folder) {
    std::error_code failure;
    for (const FolderEntry& entry : EntriesOnDisk(folder, failure)) {
      if (entry.isFolder) Sweep(folder / entry.name);
      RemoveOnDisk(folder / entry.name, failure);
    }
    RemoveOnDisk(folder, failure);
    EXPECT_FALSE(failure) << failure.message();
  }

  static void Write(const fs::path& path, const std::string& bytes) {
    std::ofstream(OpenablePath(path), std::ios::binary) << bytes;
  }

  static std::string Read(const fs::path& path) {
    std::ifstream file(OpenablePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  fs::path top_;
  fs::path folder_;
};

TEST_F(DiskTest, ALongPathIsWrittenReadNamedAnewAndTakenAway) {
  std::error_code failure;
  const fs::path plan = folder_ / PathOfText("鈴鹿 한.nx4");
  Write(plan, "FROM:NX4.RAT\r\n");
  EXPECT_EQ(Read(plan), "FROM:NX4.RAT\r\n");
  EXPECT_TRUE(fs::is_regular_file(StatusOnDisk(plan, failure)));
  EXPECT_EQ(SizeOnDisk(plan, failure), 14U);
  EXPECT_FALSE(failure);

  const fs::path other = folder_ / "other.nx4";
  Write(other, "older");
  RenameOnDisk(plan, other, failure);
  EXPECT_FALSE(failure) << failure.message();
  EXPECT_EQ(Read(other), "FROM:NX4.RAT\r\n") << "in place of the one that was there";
  EXPECT_EQ(StatusOnDisk(plan, failure).type(), fs::file_type::not_found);

  RemoveOnDisk(other, failure);
  EXPECT_FALSE(failure);
  EXPECT_EQ(StatusOnDisk(other, failure).type(), fs::file_type::not_found);
}

TEST_F(DiskTest, AFolderTellsAllThatIsInIt) {
  Write(folder_ / PathOfText("雨.nx4"), "");
  std::error_code failure;
  MakeFolderOnDisk(folder_ / "LIST", failure);
  MakeFolderOnDisk(folder_ / "LIST", failure);
  EXPECT_FALSE(failure) << "one that is there is no failure";
  const std::vector<FolderEntry> entries = EntriesOnDisk(folder_, failure);
  EXPECT_FALSE(failure);
  ASSERT_EQ(entries.size(), 2U);
  const FolderEntry& list = entries[entries[0].isFolder ? 0 : 1];
  const FolderEntry& file = entries[entries[0].isFolder ? 1 : 0];
  EXPECT_EQ(TextOfPath(list.name), "LIST");
  EXPECT_EQ(TextOfPath(file.name), "雨.nx4");
  EXPECT_FALSE(file.isFolder);
  EXPECT_FALSE(file.isHidden);
}

TEST_F(DiskTest, WhatIsNotThereIsToldApartFromWhatFails) {
  std::error_code failure;
  EXPECT_EQ(StatusOnDisk(folder_ / "no" / "such", failure).type(), fs::file_type::not_found);
  EXPECT_TRUE(EntriesOnDisk(folder_ / "no", failure).empty());
  EXPECT_TRUE(failure);
  SizeOnDisk(folder_ / "no", failure);
  EXPECT_TRUE(failure);
  RenameOnDisk(folder_ / "no", folder_ / "other", failure);
  EXPECT_TRUE(failure);
  MakeFolderOnDisk(folder_ / "no" / "such", failure);
  EXPECT_TRUE(failure);
  EXPECT_FALSE(IsFolderOnDisk(folder_ / "no"));
  EXPECT_TRUE(IsFolderOnDisk(folder_));
}

TEST_F(DiskTest, ShortPathsAreOpenedAsTheyStand) {
  EXPECT_EQ(OpenablePath("a.nx4"), fs::path("a.nx4"));
  EXPECT_EQ(OpenablePath(top_), top_);
}

#ifdef _WIN32
TEST(OpenablePath, LongOnesGetTheFormWithoutABound) {
  const std::string name(300, 'a');
  EXPECT_EQ(TextOfPath(OpenablePath(PathOfText("C:/b/./c/../" + name))), "\\\\?\\C:\\b\\" + name);
  EXPECT_EQ(TextOfPath(OpenablePath(PathOfText("\\\\box\\share\\" + name))),
            "\\\\?\\UNC\\box\\share\\" + name);
  std::error_code failure;
  EXPECT_EQ(TextOfPath(WholeOnDisk("\\\\box\\share\\a", failure)), "\\\\box\\share\\a");
  const fs::path done = OpenablePath(PathOfText("C:\\" + name));
  EXPECT_EQ(OpenablePath(done), done);
}
#endif

}  // namespace
}  // namespace veldrin
