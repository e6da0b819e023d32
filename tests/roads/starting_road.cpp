// From the first start to the next one.
#include "tests/roads/real_program.h"

#include <QDir>
#include <QFile>

namespace veldrin {
namespace {

QString Native(const QString& path) {
  return QDir::toNativeSeparators(path);
}

TEST_F(RoadTest, AFirstStartFindsTheSamplesAndStoresWhereTheyAre) {
  RealProgram program;
  program.AwaitWindow("Mr.Veldrin[NX4]");
  EXPECT_TRUE(QFile::exists(InUsersFolder("LIST/NX4.RAT")));
  EXPECT_TRUE(QFile::exists(InUsersFolder("DAT/DRY.nx4")));
  EXPECT_EQ(Setting("App Path"), Native(InUsersFolder("")).chopped(1));
  EXPECT_EQ(program.Close(), 0);
  EXPECT_TRUE(Setting("Last Left"));
}

TEST_F(RoadTest, TheNextStartReadsWhatIsStored) {
  {
    RealProgram first;
    first.AwaitWindow("[NX4]");
    EXPECT_EQ(first.Close(), 0);
  }
  StoreSetting("Zoom", "100");
  StoreSetting("Last Left", "1500");
  StoreSetting("Last Top", "900");
  RealProgram next;
  RECT place = {};
  GetWindowRect(next.AwaitWindow("[NX4]"), &place);
  constexpr int kFrame = 8;  // pixels
  EXPECT_NEAR(place.left, 100, kFrame);
  EXPECT_NEAR(place.top, 60, kFrame);
  EXPECT_EQ(next.Close(), 0);
}

TEST_F(RoadTest, APlanOfTheCommandLineIsLoadedAndRemembered) {
  {
    RealProgram first;
    first.AwaitWindow("[NX4]");
    EXPECT_EQ(first.Close(), 0);
  }
  const QString plan = Native(InUsersFolder("DAT/DRY.nx4"));
  RealProgram program({plan});
  program.AwaitWindow("Mr.Veldrin[NX4] - [DAT] - [DRY.nx4]");
  EXPECT_EQ(program.Close(), 0);
}

}  // namespace
}  // namespace veldrin
