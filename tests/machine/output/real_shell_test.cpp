#include "tests/desktop/opened_links.h"
#include "tests/machine/output/shell_in_folder.h"

#include <QDir>

namespace veldrin {
namespace {

TEST_F(RealShellTest, TellsAMissingProgramFromAMissingFolder) {
  EXPECT_EQ(Fault(PathOf("none x")), kFaultFileNotFound);
  EXPECT_EQ(Fault(PathOf("none/none x")), kFaultPathNotFound);
  EXPECT_EQ(Fault("veldrin-no-such-program x"), kFaultFileNotFound);
  EXPECT_EQ(Fault("\"unclosed"), kFaultFileNotFound);
  EXPECT_EQ(Fault(""), kFaultFileNotFound);
}

TEST_F(RealShellTest, LinksAndFoldersGoToTheDesktop) {
  const OpenedLinks desktop;
  QDir(folder.path()).mkdir("Some Plans");
  EXPECT_TRUE(shell.OpenWithDesktop("https://veldrin.example/"));
  EXPECT_TRUE(shell.OpenWithDesktop(PathOf("some plans")));
  EXPECT_EQ(desktop.opened,
            (QStringList{"https://veldrin.example/", QUrl::fromLocalFile(In("Some Plans")).toString()}));
}

TEST_F(RealShellTest, WhatIsNotThereIsNotOpened) {
  const OpenedLinks desktop;
  EXPECT_FALSE(shell.OpenWithDesktop(PathOf("none")));
  EXPECT_FALSE(shell.OpenWithDesktop(""));
  EXPECT_EQ(desktop.opened, QStringList{});
}

}  // namespace
}  // namespace veldrin
