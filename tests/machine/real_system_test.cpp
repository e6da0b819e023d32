#include "machine/real_system.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

TEST(RealProfile, TellsTheLocale) {
  struct Case {
    QLocale locale;
    const char* country;
    std::optional<std::string> decimal;
    std::optional<std::string> thousand;
  };
  const Case cases[] = {
      {QLocale(QLocale::Japanese, QLocale::Japan), "81", ".", ","},
      {QLocale("ja"), "81", ".", ","},
      {QLocale(QLocale::English, QLocale::UnitedStates), "1", ".", ","},
      {QLocale(QLocale::German, QLocale::Germany), "1", ",", "."},
      {QLocale::c(), "1", ".", ","},
      {QLocale(QLocale::French, QLocale::France), "1", ",", std::nullopt},
      {QLocale(QLocale::Arabic, QLocale::Egypt), "1", std::nullopt, std::nullopt},
  };
  for (const Case& c : cases) {
    const RealProfile profile(c.locale);
    EXPECT_EQ(profile.International("icountry"), c.country) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("sDecimal"), c.decimal) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("STHOUSAND"), c.thousand) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("iDate"), std::nullopt);
    EXPECT_EQ(IsJapanese(profile), std::string(c.country) == "81");
  }
}

/// Gives a variable back what it held.
class Variable {
 public:
  explicit Variable(const char* name)
      : name_(name), before_(qgetenv(name)), was_(qEnvironmentVariableIsSet(name)) {}
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { was_ ? qputenv(name_, before_) : qunsetenv(name_); }

 private:
  const char* name_;
  QByteArray before_;
  bool was_;
};

TEST(RealEnvironment, TempIsTheVariableOrTheSystemsFolder) {
  const Variable temp("TEMP");
  const Variable tmpdir("TMPDIR");
  const QTemporaryDir folder;
  const RealEnvironment environment;
  qputenv("TEMP", folder.path().toUtf8() + "/");
  EXPECT_EQ(environment.Variable("TEMP"), folder.path().toStdString());
  qputenv("TEMP", "/");
  EXPECT_EQ(environment.Variable("TEMP"), "/");
  qputenv("TMPDIR", folder.path().toUtf8() + "/");
  qputenv("TEMP", "/no/such/folder");
  EXPECT_EQ(environment.Variable("TEMP"), folder.path().toStdString());
  qunsetenv("TEMP");
  EXPECT_EQ(environment.Variable("temp"), folder.path().toStdString());
}

TEST(RealEnvironment, WithoutANamedFolderTempIsTheUsersOwnForTheSession) {
  const Variable temp("TEMP");
  const Variable tmpdir("TMPDIR");
  const Variable runtime("XDG_RUNTIME_DIR");
  const QTemporaryDir folder;
  qunsetenv("TEMP");
  qunsetenv("TMPDIR");
  qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
  EXPECT_EQ(RealEnvironment().Variable("TEMP"), folder.path().toStdString());
}

TEST(RealEnvironment, AVariableThatIsNotThereIsEmpty) {
  const Variable own("VELDRIN_TEST");
  qputenv("VELDRIN_TEST", "鈴鹿");
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
