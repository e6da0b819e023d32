// The guide in the folders that a variable of the desktop names.
#include "machine/output/real_guide.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealGuide, IsFoundInTheSystemsDataFolders) {
  Put("elsewhere/bin/veldrin", "");
  Put("second/doc/veldrin/guide/en/index.html", "");
  qputenv("XDG_DATA_DIRS", (In("first") + ":" + In("second")).toUtf8());
  EXPECT_EQ(GuideFolder(In("elsewhere/bin")), In("second/doc/veldrin/guide"));
}

}  // namespace
}  // namespace veldrin
