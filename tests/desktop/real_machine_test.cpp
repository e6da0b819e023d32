#include "desktop/real_machine.h"

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "script/simulated_machine.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace veldrin {
namespace {

/// Screen, clipboard and dialogs need an application. Another one that is there serves as well.
class DesktopEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (QCoreApplication::instance() != nullptr) return;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[13] = "test-desktop";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const ::testing::Environment* const Desktop = ::testing::AddGlobalTestEnvironment(new DesktopEnvironment);

constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";
constexpr char kList[] =
    "LIST\r\nNX4\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-\r\n-"
    "\r\n"
    "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
constexpr char kPlan[] =
    "FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n80\r\n100\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n"
    "1A-2A-3A-4A-5A-6A\r\nremark\r\n";

/// The program on the real machine, with the simulated one's windows and clock, in folders of its own.
class RealMachineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    before_ = QDir::currentPath();
    for (const char* name : {"program/LIST", "program/DAT", "temp"}) QDir(folder.path()).mkpath(name);
    Put("program/LIST/nx4.rat", kList);
    Put("program/DAT/Dry.nx4", kPlan);
    qputenv("XDG_CONFIG_HOME", In("config").toUtf8());
    qputenv("TEMP", In("temp").toUtf8());
    QDir::setCurrent(In("program"));
  }
  void TearDown() override {
    simulated.windows.Forget();
    program.reset();
    real.reset();
    QDir::setCurrent(before_);
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("TEMP");
  }

  QString In(const QString& name) const { return folder.path() + "/" + name; }

  void Put(const QString& name, const QByteArray& bytes) const {
    QFile file(In(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QStringList TempFiles() const { return QDir(In("temp")).entryList(QDir::Files); }

  void Start(const QString& commandLine) {
    real = std::make_unique<RealMachine>(simulated.windows, simulated.metrics);
    program = AssembleProgram(real->machine);
    StartProgram(*program, commandLine.toStdString());
    simulated.clock.Advance(3000,
                            [this](TimerControl& timer) { RunEvent(*program, [&] { timer.Timer(); }); });
  }

  void End() {
    RunEvent(*program, [this] { program->form2.UnloadWindow(); });
  }

  QTemporaryDir folder;
  SimulatedMachine simulated;
  std::unique_ptr<RealMachine> real;
  std::unique_ptr<Program> program;

 private:
  QString before_;
};

TEST_F(RealMachineTest, TheFirstRunTakesTheCurrentFolderAndReadsTheDefaultList) {
  Start("");
  EXPECT_EQ(program->endFault, 0);
  EXPECT_TRUE(program->form2.Visible);
  EXPECT_EQ(program->workspace.AppPath, In("program").toStdString());
  EXPECT_EQ(program->workspace.MachineName, "NX4");
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, kSettings, "App Path"),
            In("program").toStdString());
  EXPECT_EQ(TempFiles(), QStringList("VELD000.TMP"));
}

TEST_F(RealMachineTest, APlanOfTheCommandLineIsInTheHistoryAfterwards) {
  const std::string plan = In("program/DAT/Dry.nx4").toStdString();
  Start(In("PROGRAM/dat/DRY.NX4"));
  EXPECT_EQ(program->workspace.CommandFile, plan);
  EXPECT_EQ(program->workspace.DataFile, plan);
  EXPECT_EQ(program->form2.Text6.Text, "remark");
  EXPECT_GT(QFile(In("temp/VELD000.TMP")).size(), 50);
  RunEvent(*program, [this] { program->workspace.DataChanged = "NO"; });
  End();
  EXPECT_TRUE(program->ended);
  EXPECT_EQ(program->endFault, 0);
  EXPECT_EQ(TempFiles(), QStringList());
  const std::string history = std::string(kSettings) + "\\Ext\\Sub";
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, history, "0"), "1");
  EXPECT_EQ(real->registry.Read(RegistryRoot::CurrentUser, history, "1"), plan);
}

TEST_F(RealMachineTest, TheProgramGoesOnWhereSettingsCannotBeStored) {
  // A file where the folder should be.
  Put("config", "");
  Start("");
  EXPECT_EQ(program->endFault, 0);
  EXPECT_FALSE(program->ended);
  EXPECT_TRUE(program->form2.Visible);
  EXPECT_EQ(program->workspace.MachineName, "NX4");
  End();
  EXPECT_TRUE(program->ended);
  EXPECT_EQ(program->endFault, 0);
}

TEST_F(RealMachineTest, ASecondCopyTakesTheNextWorkingFile) {
  Start("");
  RealMachine other(simulated.windows, simulated.metrics);
  EXPECT_EQ(other.instances.Others(), 1);
  const std::unique_ptr<Program> second = AssembleProgram(other.machine);
  StartProgram(*second, "");
  EXPECT_FALSE(second->workspace.FirstInstance);
  EXPECT_EQ(TempFiles(), (QStringList{"VELD000.TMP", "VELD001.TMP"}));
  simulated.windows.Forget();
}

TEST_F(RealMachineTest, LeftoversOfACrashGoAway) {
  Put("temp/VELD000.TMP", "left");
  Put("temp/veld007.tmp", "left");
  Start("");
  EXPECT_TRUE(program->workspace.TempCleaned);
  EXPECT_EQ(TempFiles(), QStringList("VELD000.TMP"));
}

}  // namespace
}  // namespace veldrin
