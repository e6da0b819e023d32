// Programs of a shell's own text, which Linux starts like any other.
#include "tests/machine/output/shell_in_folder.h"

namespace veldrin {
namespace {

/// Writes its arguments, one a line, beside itself.
constexpr char kWriter[] = "printf '%s\\n' \"$@\" > \"$0.part\"\nmv \"$0.part\" \"$0.out\"\n";

TEST_F(RealShellTest, RunsAProgramWithItsArguments) {
  PutProgram("Show It", kWriter);
  shell.Run("\"" + PathOf("show it") + "\" one \"two words\"  鈴鹿");
  EXPECT_EQ(OutputIn("Show It.out").toStdString(), "one\ntwo words\n鈴鹿\n");
}

TEST_F(RealShellTest, WhatMayNotBeRunIsNoProgram) {
  PutProgram("plain", kWriter);
  QFile::setPermissions(In("plain"), QFileDevice::ReadOwner);
  EXPECT_EQ(Fault(PathOf("plain x")), kFaultFileNotFound);
}

TEST_F(RealShellTest, PathsOfAnotherSystemAreNotFound) {
  EXPECT_EQ(Fault("c:\\progra~1\\intern~1\\iexplore.exe https://veldrin.example/"), kFaultPathNotFound);
}

}  // namespace
}  // namespace veldrin
