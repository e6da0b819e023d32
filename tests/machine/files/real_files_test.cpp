#include "machine/files/real_files.h"

#include "tests/machine/files/files_in_folder.h"

#include <ctime>
#include <string>
#include <vector>

namespace veldrin {
namespace {

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

TEST_F(RealFilesTest, WritingUsesTheNameOnTheDisk) {
  Put("Plan.nx4", "old");
  Save("PLAN.NX4", "new");
  EXPECT_EQ(Names(), QStringList("Plan.nx4"));
  EXPECT_EQ(Bytes("Plan.nx4"), "new");
}

TEST_F(RealFilesTest, AFileTakesTheSpellingOfAPath) {
  Put("Plan.nx4", "a");
  files.Respell(PathOf("PLAN.nx4"));
  files.Respell(PathOf("PLAN.nx4"));
  EXPECT_EQ(Names().size(), 1);
  EXPECT_EQ(Names().front().toLower(), "plan.nx4");
  EXPECT_EQ(Bytes("PLAN.nx4"), "a");
  EXPECT_EQ(Guarded([&] { files.Respell(PathOf("none.nx4")); }), kFaultFileNotFound);
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

TEST_F(RealFilesTest, FaultsTellWhatIsMissing) {
  MakeFolder("sub");
  Put("file", "x");
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("none")); }), kFaultFileNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("none/none")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("file/none")); }), kFaultPathNotFound);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("sub")); }), kFaultPathAccess);
  EXPECT_EQ(Guarded([&] { files.ReadText(""); }), kFaultBadFileName);
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
  EXPECT_EQ(files.FindFirst(""), files.FindFirst("*"));
  EXPECT_EQ(files.DriveOf(""), "");
}

TEST_F(RealFilesTest, DeleteTakesTheFileAway) {
  Put("Plan.nx4", "x");
  files.Delete(PathOf("PLAN.NX4"));
  EXPECT_TRUE(Names().isEmpty());
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
