// The guide in the folders that a variable of the desktop names.
#include "machine/output/real_guide.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealGuide, IsFoundInTheSystemsDataFolders) {
  const ScratchFolder scratch;
  scratch.Put("elsewhere/bin/veldrin", "");
  scratch.Put("second/doc/veldrin/guide/en/index.html", "");
  qputenv("XDG_DATA_DIRS", (scratch.In("first") + ":" + scratch.In("second")).toUtf8());
  EXPECT_EQ(GuideFolder(scratch.In("elsewhere/bin")), scratch.In("second/doc/veldrin/guide"));
  qunsetenv("XDG_DATA_DIRS");
}

}  // namespace
}  // namespace veldrin
