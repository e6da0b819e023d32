#include "tests/desktop/other_half.h"
#include "tests/machine/files/replaced_file.h"

#include <chrono>
#include <random>
#include <thread>

namespace veldrin {
namespace {

constexpr int kParts = 16;
constexpr int kPart = 4096;  // bytes

TEST_F(ReplacingFileTest, TheLongestNameIsWritten) {
#ifdef _WIN32
  constexpr int kLongest = 245;  // there the neighbour's name is a little longer
#else
  constexpr int kLongest = 255;
#endif
  const std::string name(kLongest, 'n');
  EXPECT_EQ(Replace(name, "new"), 0);
  EXPECT_EQ(Bytes(name), "new");
}

TEST_F(ReplacingFileTest, WhatWasDroppedDoesNotComeBack) {
  {
    ReplacingFile file(In("plan.nx4"));
    file.Append("a long first text");
    file.StartOver();
    file.Append("short");
    file.Commit();
  }
  EXPECT_EQ(Bytes("plan.nx4"), "short");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST(DISABLED_ReplacingFileWriter, WritesOnAndOn) {
  const fs::path path = OtherHalf::Words().front().toStdString();
  OtherHalf::TellReady();
  for (char sign = 'a';; sign = sign == 'z' ? 'a' : static_cast<char>(sign + 1)) {
    ReplacingFile file(path);
    for (int part = 0; part < kParts; ++part) file.Append(std::string(kPart, sign));
    file.Commit();
  }
}

TEST_F(ReplacingFileTest, AKillAtAnyMomentLeavesAWholeFile) {
  std::mt19937 chance(1);
  for (int kills = 0; kills < 8; ++kills) {
    OtherHalf writer("DISABLED_ReplacingFileWriter.WritesOnAndOn", {folder.path() + "/plan.nx4"});
    ASSERT_TRUE(writer.AwaitReady());
    std::this_thread::sleep_for(std::chrono::milliseconds(5 + chance() % 50));
    writer.Kill();
    if (!fs::exists(In("plan.nx4"))) continue;
    const std::string bytes = Bytes("plan.nx4");
    ASSERT_EQ(bytes.size(), static_cast<std::size_t>(kParts * kPart));
    EXPECT_EQ(bytes, std::string(bytes.size(), bytes.front()));
  }
  EXPECT_TRUE(fs::exists(In("plan.nx4")));
}

}  // namespace
}  // namespace veldrin
