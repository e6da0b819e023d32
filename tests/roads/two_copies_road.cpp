// Two copies of the program side by side.
#include "tests/roads/real_program.h"

#include <QDir>

namespace veldrin {
namespace {

TEST_F(RoadTest, TwoCopiesHaveWorkingFilesOfTheirOwn) {
  const QDir temp(QDir::tempPath());
  const auto workingFiles = [&] { return temp.entryList({"VELD*.TMP"}, QDir::Files, QDir::Name); };
  RealProgram first;
  first.AwaitWindow("[NX4]");
  EXPECT_EQ(workingFiles(), QStringList{"VELD000.TMP"});
  RealProgram second;
  second.AwaitWindow("[NX4]");
  EXPECT_EQ(workingFiles(), (QStringList{"VELD000.TMP", "VELD001.TMP"}));
  EXPECT_EQ(second.Close(), 0);
  EXPECT_EQ(workingFiles(), QStringList{"VELD000.TMP"});
  EXPECT_EQ(first.Close(), 0);
  EXPECT_EQ(workingFiles(), QStringList{});
}

TEST_F(RoadTest, WhatAKilledCopyLeavesGoesWithTheNext) {
  const QDir temp(QDir::tempPath());
  {
    RealProgram victim;
    victim.AwaitWindow("[NX4]");
    victim.Kill();
  }
  EXPECT_EQ(temp.entryList({"VELD*.TMP"}, QDir::Files), QStringList{"VELD000.TMP"});
  RealProgram next;
  next.AwaitWindow("[NX4]");
  EXPECT_EQ(next.Close(), 0);
  EXPECT_EQ(temp.entryList({"VELD*.TMP"}, QDir::Files), QStringList{});
}

}  // namespace
}  // namespace veldrin
