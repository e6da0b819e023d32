// Linux has no player of its own: the program looks for one, and here the test puts it there. Windows plays
// by itself.
#include "machine/files/real_files.h"
#include "machine/output/real_sound.h"
#include "platform/system_code_pages.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace veldrin {
namespace {

/// A machine whose only players are those that a test puts there.
class RealSoundTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override { qputenv("PATH", folder.path().toLocal8Bit()); }
  void TearDown() override { qputenv("PATH", path_); }

  /// A player that tells that it was started, waits for somebody to say "go", then writes its arguments, one
  /// a line.
  void PutPlayer(const QString& name) const {
    PutProgram(name,
               "PATH=/usr/bin:/bin\n"
               ": > \"$0.started.$$\"\n"
               "turns=0\n"
               "while [ ! -e \"$0.go\" ] && [ $turns -lt 500 ]; do sleep 0.02; turns=$((turns + 1)); done\n"
               "[ -e \"$0.go\" ] || exit\n"
               "printf '%s\\n' \"$@\" > \"$0.part\"\n"
               "mv \"$0.part\" \"$0.out\"\n");
  }

  void Play(const QString& name) { sound.Play(In(name).toStdString()); }

  /// Says "go" and waits for what the player wrote.
  std::string ArgumentsOf(const QString& player) const {
    Put(player + ".go", "");
    const QString output = In(player + ".out");
    QElapsedTimer timer;
    timer.start();
    while (!QFile::exists(output) && timer.elapsed() < 20000) QThread::msleep(10);
    return Bytes(player + ".out").toStdString();
  }

  RealFiles files{SystemCodePages(false)};
  RealSound sound{files};

 private:
  const QByteArray path_ = qgetenv("PATH");
};

// The player writes only after it was told to, and it is told after Play has returned.
TEST_F(RealSoundTest, AFileIsPlayedWithoutWaiting) {
  PutPlayer("paplay");
  Put("roll up 鈴鹿.wav", "");
  Play("roll up 鈴鹿.wav");
  EXPECT_EQ(ArgumentsOf("paplay"), In("roll up 鈴鹿.wav").toStdString() + "\n");
}

TEST_F(RealSoundTest, AFileIsPlayedByTheNameThatItHasOnTheDisk) {
  PutPlayer("paplay");
  Put("RollUp.WAV", "");
  Play("rollup.wav");
  EXPECT_EQ(ArgumentsOf("paplay"), In("RollUp.WAV").toStdString() + "\n");
}

TEST_F(RealSoundTest, APlayerThatWritesMessagesIsAskedNotTo) {
  PutPlayer("aplay");
  Put("unroll.wav", "");
  Play("unroll.wav");
  EXPECT_EQ(ArgumentsOf("aplay"), "-q\n" + In("unroll.wav").toStdString() + "\n");
}

TEST_F(RealSoundTest, AMissingFileStaysSilent) {
  PutPlayer("paplay");
  Put("there.wav", "");
  Play("none.wav");
  Play("none/none.wav");
  sound.Play("");
  sound.Play(folder.path().toStdString());
  Play("there.wav");
  EXPECT_EQ(ArgumentsOf("paplay"), In("there.wav").toStdString() + "\n");
  // A player of one of the others would be there by now as well.
  QThread::msleep(200);
  EXPECT_EQ(QDir(folder.path()).entryList({"paplay.started.*"}).size(), 1);
}

// A player that came later would find nothing of it.
TEST_F(RealSoundTest, AMachineWithoutAPlayerStaysSilent) {
  PutProgram("player", ": > \"$0.started\"\n");
  Put("aplay", "not a program");
  Put("there.wav", "");
  Put("later.wav", "");
  EXPECT_NO_THROW(Play("there.wav"));
  EXPECT_NO_THROW(sound.Beep());
  PutPlayer("paplay");
  Play("later.wav");
  EXPECT_EQ(ArgumentsOf("paplay"), In("later.wav").toStdString() + "\n");
  EXPECT_EQ(QDir(folder.path()).entryList({"*.started*"}).size(), 1);
}

}  // namespace
}  // namespace veldrin
