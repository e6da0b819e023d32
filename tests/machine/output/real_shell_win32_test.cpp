// Programs as Windows starts them: by a command line that they part themselves.
#include "tests/desktop/other_half.h"
#include "tests/machine/output/shell_in_folder.h"

#include <windows.h>

namespace veldrin {
namespace {

TEST_F(RealShellTest, RunsAProgramWithItsArguments) {
  const QString program = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
  qputenv("VELDRIN_TEST_WORDS", In("words.out").toUtf8());
  shell.Run("\"" + program.toStdString() +
            "\" --gtest_also_run_disabled_tests --gtest_filter=DISABLED_RealShellWriter.Writes one \"two "
            "words\"  鈴鹿");
  const QString words = OutputIn("words.out");
  EXPECT_TRUE(words.endsWith(".Writes one \"two words\"  鈴鹿")) << words.toStdString();
}

/// Writes its whole command line to the file that its words name.
TEST(DISABLED_RealShellWriter, Writes) {
  const QString line = QString::fromWCharArray(GetCommandLineW());
  const QString path = OtherHalf::Words().front();
  QFile part(path + ".part");
  ASSERT_TRUE(part.open(QIODevice::WriteOnly));
  part.write(line.toUtf8());
  part.close();
  EXPECT_TRUE(part.rename(path));
}

TEST_F(RealShellTest, WhatIsNoProgramIsNotFound) {
  Put("plain", "text");
  EXPECT_EQ(Fault(PathOf("plain x")), kFaultFileNotFound);
}

}  // namespace
}  // namespace veldrin
