#include "desktop/input/dragged_files.h"

#include <QDir>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(DraggedFiles, OneFileIsTakenWhateverItsName) {
  const auto path = [](const char* list) {
    QMimeData data;
    data.setData("text/uri-list", list);
    return DroppedPath(data);
  };
  const auto native = [](const char* name) { return QDir::toNativeSeparators(name).toStdString(); };
  EXPECT_EQ(path("file:///tmp/a%20b%25.nx4\r\n"), native("/tmp/a b%.nx4"));
  EXPECT_EQ(path("file:///tmp/%E8%A8%88.nx4\r\n"), native("/tmp/計.nx4"));
  EXPECT_EQ(path("file:///tmp/a.nx4\r\nfile:///tmp/b.nx4\r\n"), "");
  EXPECT_EQ(path("https://example.org/a.nx4\r\n"), "");
  EXPECT_EQ(path(""), "");
}

TEST(DraggedFiles, LinksToElsewhereAreNoFiles) {
  QMimeData data;
  EXPECT_FALSE(CarriesFiles(data));
  data.setData("text/uri-list", "https://example.org/a.nx4\r\n");
  EXPECT_FALSE(CarriesFiles(data));
  data.setData("text/uri-list", "https://example.org/a.nx4\r\nfile:///tmp/a.nx4\r\n");
  EXPECT_TRUE(CarriesFiles(data));
}

}  // namespace
}  // namespace veldrin
