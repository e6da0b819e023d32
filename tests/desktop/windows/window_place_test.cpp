// Where on the screens a window stands.
#include "tests/desktop/windows/form_widget.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace veldrin {
namespace {

TEST_F(FormWidgetTest, TitleBarIsInReachWhenAWindowIsShown) {
  form->Hide();
  form->Left = 90000;
  form->Top = -9000;
  form->Show();
  ServeEvents();
  const QRect screen = Widget().screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(Widget().geometry()));
}

/// What holds on every screen; run again below where the primary one begins elsewhere.
class OriginTest : public FormWidgetTest {
 protected:
  static QRect Primary() { return QGuiApplication::primaryScreen()->geometry(); }
  QPoint CornerInTwips() const { return {qRound(form->Left.get()), qRound(form->Top.get())}; }
};

TEST_F(OriginTest, PlacesAreCountedFromWhereThePrimaryScreenBegins) {
  form->Left = 1500;
  form->Top = 900;
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(100, 60));
  form->Left = (Primary().width() * 15.0F - form->Width) / 2;
  form->Top = (Primary().height() * 15.0F - form->Height) / 2;
  ServeEvents();
  EXPECT_LE((Widget().geometry().center() - Primary().center()).manhattanLength(), 60);
}

TEST_F(OriginTest, PlaceThatIsToldIsThePlaceThatWasMovedTo) {
  Widget().move(Primary().topLeft() + QPoint(120, 45));
  ServeEvents();
  EXPECT_EQ(CornerInTwips(), QPoint(1800, 675));
  for (const double factor : {1.5, 0.5, 1.0}) {
    Zoom(factor);
    EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(120, 45));
    EXPECT_EQ(CornerInTwips(), QPoint(qRound(1800 / factor), qRound(675 / factor)));
  }
  const float left = form->Left;
  form->Left = 0;
  form->Left = left;
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(120, 45));
}

TEST_F(OriginTest, WindowIsShownWhereTheProgramPutIt) {
  form->Hide();
  form->Left = 1500;
  form->Top = 1500;
  form->Show();
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(100, 100));
  windows.SetEllipticRegion(*form, 10, 20, 110, 80);
  EXPECT_EQ(Widget().geometry(), QRect(Primary().topLeft() + QPoint(110, 120), QSize(100, 60)));
}

TEST(OriginOfScreens, PrimaryScreenMayBeginAnywhere) {
  const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
  if (platform != "offscreen") GTEST_SKIP() << "screens are made up by the platform without any";
  const QTemporaryDir folder;
  const QString name = folder.filePath("screens.json");
  QFile screens(name);
  ASSERT_TRUE(screens.open(QIODevice::WriteOnly));
  screens.write(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [
      {"name": "first", "x": 1920, "y": 300, "width": 1600, "height": 1200,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
      {"name": "second", "x": 0, "y": 0, "width": 1920, "height": 1080,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  screens.close();
  QProcess again;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // By its name alone: behind a colon, as in a path with a drive, Qt reads another option.
  environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + QFileInfo(name).fileName());
  again.setWorkingDirectory(folder.path());
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=OriginTest.*"});
  ASSERT_TRUE(again.waitForFinished());
  EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

TEST(CornerInReach, LeavesAFrameThatCanBeTaken) {
  const QList<QRect> screens = {{0, 0, 1000, 700}, {1000, 100, 800, 600}};
  for (const QPoint corner : {QPoint(0, 0), QPoint(-300, 5), QPoint(920, 668), QPoint(1700, 100)}) {
    EXPECT_EQ(CornerInReach({corner, QSize(400, 300)}, 32, screens), corner);
  }
  EXPECT_EQ(CornerInReach({5000, 5000, 400, 300}, 32, {}), QPoint(5000, 5000));
}

TEST(CornerInReach, BringsOthersOntoTheNearestScreen) {
  const QList<QRect> screens = {{0, 0, 1000, 700}, {1000, 100, 800, 600}};
  const auto corner = [&](int x, int y) { return CornerInReach({x, y, 400, 300}, 32, screens); };
  EXPECT_EQ(corner(-350, 5), QPoint(0, 5));
  EXPECT_EQ(corner(200, -10), QPoint(200, 0));
  EXPECT_EQ(corner(200, 690), QPoint(200, 400));
  EXPECT_EQ(corner(1900, 50), QPoint(1400, 100));
  EXPECT_EQ(corner(9000, 9000), QPoint(1400, 400));
  // One that is larger than the screen shows its left top.
  EXPECT_EQ(CornerInReach({-2000, -50, 1500, 900}, 32, screens), QPoint(0, 0));
}

}  // namespace
}  // namespace veldrin
