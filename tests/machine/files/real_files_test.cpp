#include "machine/files/real_files.h"

#include "platform/system_code_pages.h"
#include "runtime/fault.h"
#include "tests/desktop/child_process.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <fstream>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldrin {
namespace {

constexpr uid_t kNobody = 65534;

/// A folder of its own for each test, which the files make nothing outside of.
class RealFilesTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void MakeFolder(const std::string& name) const { QDir(folder.path()).mkpath(QString::fromStdString(name)); }

  QStringList Names() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }

  void Save(const std::string& name, const std::string& text) {
    const auto writer = files.OpenForWriting(PathOf(name));
    writer->Write(text);
    writer->Close();
  }

  RealFiles files{SystemCodePages(false)};
};

/// What `work` returns in a process of its own that has no rights beyond those of a plain user.
int AsPlainUser(const std::function<int()>& work) {
  return WaitForChild(StartChild([&] {
    const bool plain = geteuid() != 0 || setuid(kNobody) == 0;
    return plain ? work() : 255;
  }));
}

TEST_F(RealFilesTest, PathsFollowTheSystem) {
  EXPECT_EQ(files.Rules().separator, '/');
  EXPECT_EQ(files.Rules().rootLength, 0);
}

TEST_F(RealFilesTest, NamesAreFoundWithoutRegardToCaseInEachPart) {
  MakeFolder("List/Sub");
  Put("List/Sub/Nx4.Rat", "LIST");
  EXPECT_TRUE(files.FileExists(PathOf("LIST/SUB/NX4.RAT")));
  EXPECT_EQ(files.ReadText(PathOf("list/sub/nx4.rat")), "LIST");
  EXPECT_EQ(files.LongName(PathOf("LIST/SUB/NX4.RAT")), "Nx4.Rat");
  EXPECT_EQ(files.LongName(PathOf("LIST/sUB")), "Sub");
  EXPECT_EQ(files.Size(PathOf("LIST/SUB/nx4.RAT")), 4);
  EXPECT_TRUE(files.FolderExists(PathOf("LIST")));
  EXPECT_EQ(files.ResolveFolder(PathOf("LIST/SUB")), PathOf("List/Sub"));
  EXPECT_EQ(files.FindFirst(PathOf("LIST/SUB/*.RAT")), "Nx4.Rat");
  EXPECT_EQ(files.FindFirst(PathOf("LIST/SUB/NX4.rat")), "Nx4.Rat");
}

TEST_F(RealFilesTest, JapaneseAndFullWidthNamesAreFoundToo) {
  Put("鈴鹿Ａ.nx4", "a");
  EXPECT_EQ(files.LongName(PathOf("鈴鹿ａ.NX4")), "鈴鹿Ａ.nx4");
}

TEST_F(RealFilesTest, TheNameAsWrittenGoesFirst) {
  Put("PLAN.nx4", "capitals");
  Put("plan.nx4", "small");
  EXPECT_EQ(files.ReadText(PathOf("plan.nx4")), "small");
  EXPECT_EQ(files.ReadText(PathOf("PLAN.nx4")), "capitals");
  EXPECT_EQ(files.ReadText(PathOf("Plan.nx4")), "capitals");
  EXPECT_EQ(files.FileNames(PathOf(""), "*"), (std::vector<std::string>{"PLAN.nx4", "plan.nx4"}));
}

TEST_F(RealFilesTest, WritingUsesTheNameOnTheDisk) {
  Put("Plan.nx4", "old");
  Save("PLAN.NX4", "new");
  EXPECT_EQ(Names(), QStringList("Plan.nx4"));
  EXPECT_EQ(Bytes("Plan.nx4"), "new");
}

TEST_F(RealFilesTest, AFileTakesTheSpellingOfAPath) {
  Put("Plan.nx4", "a");
  files.Respell(PathOf("PLAN.nx4"));
  EXPECT_EQ(Names(), QStringList("PLAN.nx4"));
  files.Respell(PathOf("PLAN.nx4"));
  EXPECT_EQ(Names(), QStringList("PLAN.nx4"));
  EXPECT_EQ(Bytes("PLAN.nx4"), "a");
  EXPECT_EQ(Guarded([&] { files.Respell(PathOf("none.nx4")); }), kFaultFileNotFound);
}

TEST_F(RealFilesTest, NamesThatAreNoUtf8AreReadAndWritten) {
  const std::string name = "\x8a\x43.nx4";
  std::ofstream(PathOf(name)) << "a";
  EXPECT_EQ(files.FileNames(PathOf(""), "*.nx4"), std::vector<std::string>{name});
  EXPECT_EQ(files.ReadText(PathOf(name)), "a");
  Save(name, "b");
  EXPECT_EQ(files.ReadText(PathOf(name)), "b");
  files.Delete(PathOf(name));
  EXPECT_FALSE(files.FileExists(PathOf(name)));
  const std::string fresh = "\x8a\x44.nx4";
  Save(fresh, "c");
  EXPECT_EQ(files.FileNames(PathOf(""), "*"), std::vector<std::string>{fresh});
  files.Delete(PathOf(fresh));
}

TEST_F(RealFilesTest, ListsComeInOrderWithoutHiddenNamesAndFolders) {
  for (const char* name : {"b.NX4", "A.nx4", "c.vt2", ".hidden.nx4"}) Put(name, "");
  MakeFolder("zz.nx4");
  MakeFolder("Aa");
  MakeFolder(".git");
  EXPECT_EQ(files.FileNames(PathOf(""), "*.nx4"), (std::vector<std::string>{"A.nx4", "b.NX4"}));
  EXPECT_EQ(files.FileNames(PathOf(""), "*.nx4; *.VT2"),
            (std::vector<std::string>{"A.nx4", "b.NX4", "c.vt2"}));
  EXPECT_EQ(files.FolderNames(PathOf("")), (std::vector<std::string>{"Aa", "zz.nx4"}));
  EXPECT_EQ(files.FindFirst(PathOf("*.vt?")), "c.vt2");
  EXPECT_EQ(files.FindFirst(PathOf("*.xyz")), "");
  EXPECT_EQ(files.FindFirst(PathOf("nowhere/*.nx4")), "");
}

TEST_F(RealFilesTest, WhatIsWrittenStandsAfterCloseOnly) {
  Put("plan.nx4", "old");
  const auto writer = files.OpenForWriting(PathOf("plan.nx4"));
  writer->Write("new");
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  writer->Close();
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  EXPECT_EQ(Guarded([&] { writer->Write("more"); }), kFaultBadFileName);
  writer->Close();
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, RightsAndLinksStayAsTheyWere) {
  Put("plan.nx4", "old");
  ASSERT_EQ(chmod(PathOf("plan.nx4").c_str(), 0640), 0);
  ASSERT_EQ(symlink("plan.nx4", PathOf("link.nx4").c_str()), 0);
  Save("link.nx4", "new");
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  struct stat status = {};
  ASSERT_EQ(lstat(PathOf("link.nx4").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(stat(PathOf("plan.nx4").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
  Save("new.nx4", "new");
  const mode_t mask = umask(0);
  umask(mask);
  ASSERT_EQ(stat(PathOf("new.nx4").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0666 & ~mask);
}

TEST_F(RealFilesTest, AWriterThatIsDroppedLeavesTheFileAndNothingElse) {
  Put("plan.nx4", "old");
  files.OpenForWriting(PathOf("plan.nx4"))->Write("new");
  files.OpenForWriting(PathOf("other.nx4"))->Write("new");
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, AProcessThatDiesWhileWritingLeavesTheOldFileWhole) {
  Put("plan.nx4", "old");
  const pid_t child = StartChild([&] {
    const auto writer = files.OpenForWriting(PathOf("plan.nx4"));
    writer->Write("half of a pl");
    return raise(SIGKILL);
  });
  ASSERT_EQ(WaitForChild(child), -SIGKILL);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
}

TEST_F(RealFilesTest, AFullDiskIsFault61AndLeavesTheOldFileWhole) {
  Put("plan.nx4", "old");
  int written = 0;
  int closed = 0;
  // A limit on the size of files stands for the end of the disk.
  signal(SIGXFSZ, SIG_IGN);
  rlimit before = {};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full = {4096, before.rlim_max};
  {
    const auto writer = files.OpenForWriting(PathOf("plan.nx4"));
    setrlimit(RLIMIT_FSIZE, &full);
    written = Guarded([&] { writer->Write(std::string(100000, 'x')); });
    closed = Guarded([&] { writer->Close(); });
    setrlimit(RLIMIT_FSIZE, &before);
  }
  EXPECT_EQ(written, kFaultDiskFull);
  EXPECT_EQ(closed, kFaultDiskFull);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, AReadOnlyFileIsNeitherReplacedNorDeleted) {
  Put("plan.nx4", "old");
  ASSERT_EQ(chmod(PathOf("plan.nx4").c_str(), 0444), 0);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("PLAN.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Guarded([&] { files.Delete(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
}

TEST_F(RealFilesTest, AFolderThatDeniesWritingIsFault70) {
  Put("plan.nx4", "old");
  ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
  const auto fault = [&](const std::function<void()>& operation) {
    return AsPlainUser([&] { return Guarded(operation); });
  };
  EXPECT_EQ(fault([&] { files.OpenForWriting(PathOf("new.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(fault([&] { files.OpenForWriting(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(fault([&] { files.Delete(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  chmod(folder.path().toLocal8Bit().constData(), 0700);
}

TEST_F(RealFilesTest, WhatMayNotBeReadIsFault70) {
  Put("plan.nx4", "old");
  MakeFolder("closed");
  chmod(folder.path().toLocal8Bit().constData(), 0755);
  chmod(PathOf("plan.nx4").c_str(), 0000);
  chmod(PathOf("closed").c_str(), 0000);
  EXPECT_EQ(AsPlainUser([&] { return Guarded([&] { files.ReadText(PathOf("plan.nx4")); }); }),
            kFaultPermissionDenied);
  EXPECT_EQ(AsPlainUser([&] { return Guarded([&] { files.ResolveFolder(PathOf("closed")); }); }),
            kFaultPermissionDenied);
  EXPECT_EQ(AsPlainUser([&] { return files.FileExists(PathOf("closed/x")) ? 1 : 0; }), 0);
}

TEST_F(RealFilesTest, FaultsTellWhatIsMissing) {
  MakeFolder("sub");
  Put("file", "x");
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("none")); }), kFaultFileNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("none/none")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("file/none")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("sub")); }), kFaultPathAccess);
  EXPECT_EQ(Guarded([&] { files.ReadText(""); }), kFaultBadFileName);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf(std::string(300, 'n'))); }), kFaultBadFileName);
  EXPECT_EQ(Guarded([&] { files.ReadText("/dev/zero"); }), kFaultPathAccess);
  EXPECT_EQ(Guarded([&] { files.Delete(PathOf("none")); }), kFaultFileNotFound);
  EXPECT_EQ(Guarded([&] { files.Delete(PathOf("sub")); }), kFaultPathAccess);
  EXPECT_EQ(Guarded([&] { files.Size(PathOf("none")); }), kFaultFileNotFound);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("none/x")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("file/x")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("sub")); }), kFaultPathAccess);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("a*b")); }), kFaultBadFileName);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(""); }), kFaultBadFileName);
  EXPECT_EQ(Guarded([&] { files.ResolveFolder(PathOf("none")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.ResolveFolder(PathOf("file")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.FileNames(PathOf("none"), "*"); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.SetCurrentFolder(PathOf("none")); }), kFaultPathNotFound);
}

TEST_F(RealFilesTest, FailuresOfLookingAreNoFaults) {
  EXPECT_FALSE(files.FileExists(""));
  EXPECT_FALSE(files.FolderExists(std::string("a\0b", 3)));
  EXPECT_FALSE(files.FileExists(PathOf("")));
  EXPECT_EQ(files.LongName(""), "");
  EXPECT_EQ(files.LongName("/"), "");
  EXPECT_EQ(files.FindFirst(""), files.FindFirst("*"));
  EXPECT_EQ(files.DriveOf(""), "");
}

TEST_F(RealFilesTest, DeleteTakesTheFileAway) {
  Put("Plan.nx4", "x");
  files.Delete(PathOf("PLAN.NX4"));
  EXPECT_TRUE(Names().isEmpty());
}

TEST_F(RealFilesTest, FoldersAreSpelledFromTheRootOn) {
  const std::string before = files.CurrentFolder();
  MakeFolder("Sub/Deep");
  files.SetCurrentFolder(PathOf("SUB"));
  EXPECT_EQ(files.CurrentFolder(), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder("deep"), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("."), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder("deep/../.."), folder.path().toStdString());
  EXPECT_EQ(files.ResolveFolder(PathOf("sub/deep/")), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("/"), "/");
  EXPECT_EQ(files.ResolveFolder("/../.."), "/");
  files.SetCurrentFolder(before);
}

TEST_F(RealFilesTest, ACurrentFolderThatIsGoneIsTheRoot) {
  const std::string before = files.CurrentFolder();
  MakeFolder("gone");
  files.SetCurrentFolder(PathOf("gone"));
  QDir(folder.path()).rmdir("gone");
  EXPECT_EQ(files.CurrentFolder(), "/");
  files.SetCurrentFolder(before);
}

TEST_F(RealFilesTest, DrivesAreTheRootAndTheHomeFolder) {
  const std::vector<std::string> drives = files.Drives();
  ASSERT_FALSE(drives.empty());
  EXPECT_EQ(drives.front(), "/");
  EXPECT_EQ(files.DriveOf("/usr/share"), "/");
  EXPECT_EQ(files.DriveOf("/"), "/");
  const std::string home = QDir::homePath().toStdString();
  EXPECT_EQ(files.DriveOf(home), home);
  EXPECT_EQ(files.DriveOf(home + "/x/y"), home);
  EXPECT_EQ(files.DriveOf(home + "x"), "/");
}

TEST_F(RealFilesTest, TenThousandFilesAreListedQuickly) {
  for (int i = 0; i < 10000; ++i) Put(QString("Plan %1.NX4").arg(i), "");
  const clock_t begin = clock();
  EXPECT_EQ(files.FileNames(PathOf(""), "*.nx4").size(), 10000U);
  EXPECT_TRUE(files.FileExists(PathOf("PLAN 9999.nx4")));
  EXPECT_LT(static_cast<double>(clock() - begin) / CLOCKS_PER_SEC, 5);
}

}  // namespace
}  // namespace veldrin
