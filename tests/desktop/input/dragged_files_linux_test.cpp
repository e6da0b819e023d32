// Names of dragged files that are mere bytes; on Windows all names are text.
#include "desktop/input/dragged_files.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(DraggedFiles, PathsOfDragsKeepTheirBytes) {
  QMimeData data;
  data.setData("text/uri-list", "file:///tmp/%8aC.nx4\r\n");
  EXPECT_EQ(DroppedPath(data),
            "/tmp/\x8a"
            "C.nx4");
}

}  // namespace
}  // namespace veldrin
