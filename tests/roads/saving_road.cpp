// What becomes of a plan: saved under a name, printed, kept when the program dies.
#include "tests/roads/real_program.h"

#include <QDir>
#include <QFile>
#include <QThread>

namespace veldrin {
namespace {

class SavingRoadTest : public RoadTest {
 protected:
  /// The user's folders, with the sample plan.
  void SetUp() override {
    RoadTest::SetUp();
    RealProgram first;
    first.AwaitWindow("[NX4]");
    ASSERT_EQ(first.Close(), 0);
  }

  static QString Plan() { return QDir::toNativeSeparators(InUsersFolder("DAT/DRY.nx4")); }
  static QStringList Kept() { return QDir(InUsersFolder("kept")).entryList({"*.kept"}, QDir::Files); }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
  }
  static void ChangeAndSaveAs(RealProgram& program, const QString& name) {
    program.ChangePlan();
    program.Press("[NX4]", 'S', VK_CONTROL);
    program.AwaitWindow("Save");
    program.Type("Save", name);
    program.Press("Save", VK_RETURN);
  }
};

TEST_F(SavingRoadTest, APlanIsSavedUnderAJapaneseName) {
  RealProgram program({Plan()});
  program.AwaitWindow("[DRY.nx4]");
  ChangeAndSaveAs(program, "鈴鹿 決勝");
  program.AwaitWindow("[鈴鹿 決勝.nx4]");
  EXPECT_TRUE(Bytes(InUsersFolder("DAT/鈴鹿 決勝.nx4")).startsWith("FROM:NX4.RAT\r\n"));
  EXPECT_EQ(program.Close(), 0);
}

TEST_F(SavingRoadTest, APlanBeyond260CharactersIsOpenedChangedAndSavedAgain) {
  QString folder = InUsersFolder("DAT");
  for (const char* part : {"a", "b", "c"}) folder += "/" + QString(part).repeated(90);
  ASSERT_GT(folder.size(), 260);
  ASSERT_TRUE(QDir().mkpath(folder));
  const QString plan = folder + "/鈴鹿.nx4";
  ASSERT_TRUE(QFile::copy(Plan(), plan));
  const QByteArray before = Bytes(plan);
  RealProgram program({QDir::toNativeSeparators(plan)});
  program.AwaitWindow("[鈴鹿.nx4]");
  ChangeAndSaveAs(program, "鈴鹿");
  program.Press("Save", VK_RETURN);  // it may be written over
  EXPECT_TRUE(Await([&] { return Bytes(plan) != before && Bytes(plan).startsWith("FROM:NX4.RAT\r\n"); }))
      << program.Titles().toStdString();
  EXPECT_EQ(program.Close(), 0);
}

TEST_F(SavingRoadTest, APageIsPrintedToAFile) {
  RealProgram program({Plan()});
  program.AwaitWindow("[DRY.nx4]");
  program.Press("[NX4]", 'P', VK_CONTROL);
  const HWND dialog = program.AwaitWindow("Print to PDF");
  const QString page = InUsersFolder("鈴鹿.pdf");
  program.Press("Print to PDF", VK_END, VK_SHIFT);
  program.Type("Print to PDF", QDir::toNativeSeparators(page));
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(Await([&] { return Bytes(page).contains("%%EOF"); })) << program.Titles().toStdString();
  EXPECT_TRUE(Bytes(page).startsWith("%PDF-"));
  EXPECT_EQ(program.Close(), 0);
}

TEST_F(SavingRoadTest, AKilledProgramsPlanIsOfferedByTheNext) {
  {
    RealProgram victim({Plan()});
    victim.AwaitWindow("[DRY.nx4]");
    victim.ChangePlan();
    ASSERT_TRUE(Await([] { return Kept().size() == 1; }));
    victim.Kill();
  }
  const QString lock = InUsersFolder("kept/") + Kept().front().replace(".kept", ".lock");
  RealProgram next;
  next.AwaitWindow("[NX4]");
  // Who offers it holds its lock: no one else may.
  EXPECT_TRUE(Await([&] { return QFile::exists(lock) && !QFile::remove(lock); }));
  constexpr int kStripComes = 2000;  // ms
  QThread::msleep(kStripComes);
  // Shift+F6 reaches the strip below the window by its end: "Forget", "Keep as file", "Open".
  for (int button = 0; button < 3; ++button) next.Press("[NX4]", VK_F6, VK_SHIFT);
  next.Press("[NX4]", VK_SPACE);
  next.AwaitWindow("Changed");
  EXPECT_TRUE(next.Titles().contains("[DRY.nx4]")) << next.Titles().toStdString();
  EXPECT_TRUE(Await([] { return Kept().size() == 1; })) << "from now on it is the next one's";
}

}  // namespace
}  // namespace veldrin
