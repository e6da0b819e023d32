#include "machine/real_system.h"

#include "tests/machine/variable.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

TEST(RealEnvironment, AVariableThatIsNotThereIsEmpty) {
  const Variable own("VELDRIN_TEST");
#ifdef _WIN32
  _wputenv_s(L"VELDRIN_TEST", L"鈴鹿");
#else
  qputenv("VELDRIN_TEST", "鈴鹿");
#endif
  EXPECT_EQ(RealEnvironment().Variable("VELDRIN_TEST"), "鈴鹿");
  qunsetenv("VELDRIN_TEST");
  EXPECT_EQ(RealEnvironment().Variable("VELDRIN_TEST"), "");
}

TEST(RealScreen, IsMeasuredInTwips) {
  RealScreen screen;
  const float width = screen.Width();
  const float height = screen.Height();
  EXPECT_GT(width, 0);
  EXPECT_GT(height, 0);
  EXPECT_EQ(static_cast<int>(width) % kTwipsPerPixel, 0);
  const int pixels = screen.PixelsAcross();
  screen.zoom = 2;
  EXPECT_FLOAT_EQ(screen.Width(), width / 2);
  EXPECT_FLOAT_EQ(screen.Height(), height / 2);
  EXPECT_EQ(screen.PixelsAcross(), pixels) << "the screen has no fewer pixels for windows that are enlarged";
  EXPECT_EQ(screen.PixelsDown(), static_cast<int>(height) / kTwipsPerPixel);
}

TEST(RealFigures, MemoryComesFromTheList) {
  std::istringstream list(
      "MemTotal:       65536 kB\nMemFree:  1 kB\nMemAvailable:   32768 kB\nHugePages_Total:   0\n");
  const MemoryFigures figures = ReadMemoryFigures(list);
  EXPECT_EQ(figures.total, 67108864);
  EXPECT_EQ(figures.available, 33554432);
}

TEST(RealFigures, AreOnesThatSharesCanBeTakenOf) {
  const MemoryFigures memory = RealFigures().Memory();
  EXPECT_GT(memory.total, 0);
  EXPECT_GE(memory.available, 0);
  EXPECT_LE(memory.available, memory.total);
  for (const char* root : {"C:\\", "/", "/no/such/folder"}) {
    const DiskFigures disk = RealFigures().Disk(root);
    EXPECT_GT(disk.sectorsPerCluster, 0) << root;
    EXPECT_GT(disk.bytesPerSector, 0) << root;
    EXPECT_GT(disk.allClusters, 0) << root;
    EXPECT_GE(disk.freeClusters, 0) << root;
    EXPECT_LE(disk.freeClusters, disk.allClusters) << root;
  }
  EXPECT_EQ(RealFigures().Disk("C:\\").allClusters, RealFigures().Disk("/").allClusters);
}

}  // namespace
}  // namespace veldrin
