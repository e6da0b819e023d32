#include "simulated/simulated_files.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Names = std::vector<std::string>;

void Write(Files& files, const std::string& path, const std::string& text) {
  const auto writer = files.OpenForWriting(path);
  writer->Write(text);
  writer->Close();
}

TEST(SimulatedFiles, StartWithTheProgramsFoldersAndThreeDrives) {
  const SimulatedFiles files;
  EXPECT_EQ(files.Drives(), (Names{"A:", "C:", "D:"}));
  EXPECT_EQ(files.FolderNames("C:\\"), (Names{"TEMP", "VELDRIN", "WINDOWS"}));
  EXPECT_EQ(files.FolderNames("C:\\VELDRIN"), (Names{"DAT", "LIST"}));
  EXPECT_EQ(files.FolderNames("D:\\"), Names{});
  EXPECT_EQ(files.CurrentFolder(), "C:\\VELDRIN");
  EXPECT_EQ(files.Rules().separator, '\\');
  EXPECT_EQ(files.Rules().rootLength, 2);
}

TEST(SimulatedFiles, EveryWayToSpellAPathLeadsToTheFile) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\DAT\\Rain.nx4", "text");
  const char* const cases[] = {"C:\\VELDRIN\\DAT\\Rain.nx4",
                               "c:\\veldrin\\dat\\RAIN.NX4",
                               "C:/VELDRIN/DAT/Rain.nx4",
                               "\\VELDRIN\\DAT\\Rain.nx4",
                               "DAT\\Rain.nx4",
                               ".\\dat\\rain.nx4",
                               "C:dat\\rain.nx4",
                               "C:\\\\VELDRIN\\DAT\\Rain.nx4",
                               "..\\VELDRIN\\DAT\\Rain.nx4",
                               "C:\\..\\VELDRIN\\DAT\\Rain.nx4",
                               "DAT\\Rain.nx4. "};
  for (const char* path : cases) {
    EXPECT_TRUE(files.FileExists(path)) << path;
    EXPECT_EQ(files.ReadText(path), "text") << path;
    EXPECT_EQ(files.LongName(path), "Rain.nx4") << path;
    EXPECT_EQ(files.FindFirst(path), "Rain.nx4") << path;
  }
}

struct FaultCase {
  const char* path;
  int reading;
  int writing;
};

TEST(SimulatedFiles, FailingOperationsRaiseTheirNumbers) {
  const FaultCase cases[] = {
      {"", 52, 52},
      {"C:\\VELDRIN\\DAT\\C:\\VELDRIN\\DAT\\RAIN.BMP", 52, 52},
      {"C:\\VELDRIN\\*.RAT", 52, 52},
      {"C:\\VELDRIN\\a|b", 52, 52},
      {"\\\\server\\share\\x", 52, 52},
      {"C:\\VELDRIN\\NONE.TXT", 53, 0},
      {"NONE.TXT", 53, 0},
      {"D:\\NONE.TXT", 53, 0},
      {"C:\\VELDRIN\\FIXED.TXT", 0, 70},
      {"C:\\CLOSED\\IN.TXT", 0, 70},
      {"C:\\CLOSED\\NEW.TXT", 53, 70},
      {"A:\\X.TXT", 71, 71},
      {"A:", 71, 71},
      {"C:\\VELDRIN\\LIST", 75, 75},
      {"C:\\VELDRIN\\LIST\\", 75, 75},
      {"C:\\", 75, 75},
      {"C:\\NOWHERE\\X.TXT", 76, 76},
      {"C:\\VELDRIN\\FIXED.TXT\\X.TXT", 76, 76},
      {"Z:\\X.TXT", 76, 76},
  };
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\FIXED.TXT", "");
  files.SetReadOnly("C:\\VELDRIN\\FIXED.TXT");
  files.AddFile("C:\\CLOSED\\IN.TXT", "");
  files.SetReadOnly("C:\\CLOSED");
  for (const FaultCase& expected : cases) {
    const std::string path = expected.path;
    EXPECT_EQ(Guarded([&] { files.ReadText(path); }), expected.reading) << path;
    EXPECT_EQ(Guarded([&] { files.Size(path); }), expected.reading) << path;
    EXPECT_EQ(Guarded([&] { files.OpenForWriting(path); }), expected.writing) << path;
    const bool denied = expected.reading == 0;
    EXPECT_EQ(Guarded([&] { files.Delete(path); }), denied ? 70 : expected.reading) << path;
    EXPECT_EQ(files.FileExists(path), expected.reading == 0) << path;
  }
}

struct FolderCase {
  const char* path;
  int fault;
  const char* spelled;
};

TEST(SimulatedFiles, FoldersResolveToTheirSpellingOnDisk) {
  const FolderCase cases[] = {
      {"c:\\veldrin\\dat", 0, "C:\\VELDRIN\\DAT"},
      {"C:\\VELDRIN\\DAT\\", 0, "C:\\VELDRIN\\DAT"},
      {"c:\\", 0, "C:\\"},
      {"C:", 0, "C:\\VELDRIN"},
      {"D:", 0, "D:\\"},
      {"list", 0, "C:\\VELDRIN\\LIST"},
      {".", 0, "C:\\VELDRIN"},
      {"..", 0, "C:\\"},
      {"C:\\NOWHERE", 76, ""},
      {"C:\\VELDRIN\\A.TXT", 76, ""},
      {"A:\\", 71, ""},
      {"Z:\\", 68, ""},
      {"", 52, ""},
      {"C:\\A\\C:\\B", 52, ""},
  };
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\A.TXT", "");
  for (const FolderCase& expected : cases) {
    std::string spelled;
    EXPECT_EQ(Guarded([&] { spelled = files.ResolveFolder(expected.path); }), expected.fault)
        << expected.path;
    EXPECT_EQ(spelled, expected.spelled) << expected.path;
    EXPECT_EQ(files.FolderExists(expected.path), expected.fault == 0) << expected.path;
    EXPECT_EQ(Guarded([&] { files.FileNames(expected.path, "*"); }), expected.fault) << expected.path;
    EXPECT_EQ(Guarded([&] { files.FolderNames(expected.path); }), expected.fault) << expected.path;
    if (expected.fault != 0) {
      EXPECT_EQ(Guarded([&] { files.SetCurrentFolder(expected.path); }), expected.fault) << expected.path;
    }
  }
}

TEST(SimulatedFiles, EveryDriveKeepsItsOwnCurrentFolder) {
  SimulatedFiles files;
  files.AddFolder("D:\\Data");
  files.SetCurrentFolder("d:\\data");
  EXPECT_EQ(files.CurrentFolder(), "D:\\Data");
  EXPECT_EQ(files.ResolveFolder("C:"), "C:\\VELDRIN");
  EXPECT_EQ(files.ResolveFolder("C:LIST"), "C:\\VELDRIN\\LIST");
  Write(files, "x.txt", "here");
  EXPECT_EQ(files.ReadText("D:\\Data\\x.txt"), "here");
  files.SetCurrentFolder("C:");
  EXPECT_EQ(files.CurrentFolder(), "C:\\VELDRIN");
  EXPECT_EQ(files.ReadText("D:x.txt"), "here");
}

TEST(SimulatedFiles, CurrentFolderKeepsItsNameWhenItIsGone) {
  SimulatedFiles files;
  files.SetCurrentFolder("C:\\veldrin\\dat");
  EXPECT_TRUE(files.Remove("C:\\VELDRIN\\DAT"));
  EXPECT_EQ(files.CurrentFolder(), "C:\\VELDRIN\\DAT");
  EXPECT_EQ(Guarded([&] { files.OpenForWriting("x.txt"); }), 76);
}

TEST(SimulatedFiles, DriveOfAPathReadsAsInADriveBox) {
  SimulatedFiles files;
  EXPECT_EQ(files.DriveOf("c:\\VELDRIN"), "C:");
  EXPECT_EQ(files.DriveOf("a:"), "A:");
  EXPECT_EQ(files.DriveOf("D:\\no such folder"), "D:");
  EXPECT_EQ(files.DriveOf("DAT"), "C:");
  EXPECT_EQ(files.DriveOf("Z:\\"), "");
  EXPECT_EQ(files.DriveOf(""), "");
  EXPECT_EQ(files.DriveOf("\\\\server\\share"), "");
}

TEST(SimulatedFiles, NamesAreKeptAsWrittenAndFoundWithoutRegardToCase) {
  SimulatedFiles files;
  Write(files, "C:\\VELDRIN\\DAT\\Rain.nx4", "one");
  Write(files, "c:\\veldrin\\dat\\RAIN.NX4", "two");
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "*.*"), (Names{"Rain.nx4"}));
  EXPECT_EQ(files.ReadText("C:\\VELDRIN\\DAT\\Rain.nx4"), "two");
  files.Delete("C:\\VELDRIN\\DAT\\rain.NX4");
  Write(files, "C:\\VELDRIN\\DAT\\RAIN.nx4", "three");
  EXPECT_EQ(files.FindFirst("C:\\VELDRIN\\DAT\\rain.nx4"), "RAIN.nx4");
}

TEST(SimulatedFiles, FilesOfAFolderComeInTheOrderOfTheirNames) {
  SimulatedFiles files;
  for (const char* name : {"b.nx4", "A.NX4", "c.rat", "D", "a10.nx4"}) {
    files.AddFile(std::string("C:\\VELDRIN\\DAT\\") + name, "");
  }
  files.AddFolder("C:\\VELDRIN\\DAT\\folder.nx4");
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "*.*"), (Names{"A.NX4", "a10.nx4", "b.nx4", "c.rat", "D"}));
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "*.nx4"), (Names{"A.NX4", "a10.nx4", "b.nx4"}));
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "*.RAT; b.*"), (Names{"b.nx4", "c.rat"}));
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "*."), (Names{"D"}));
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", "?.nx4"), (Names{"A.NX4", "b.nx4"}));
  EXPECT_EQ(files.FileNames("C:\\VELDRIN\\DAT", ""), Names{});
  EXPECT_EQ(files.Matches("DAT\\a*"), (Names{"A.NX4", "a10.nx4"}));
}

TEST(SimulatedFiles, FindFirstGivesTheFirstNameAndNothingForFailures) {
  SimulatedFiles files;
  files.AddFile("C:\\TEMP\\VELD001.TMP", "");
  files.AddFile("C:\\TEMP\\veld000.tmp", "");
  EXPECT_EQ(files.FindFirst("C:\\TEMP\\veld???.tmp"), "veld000.tmp");
  EXPECT_EQ(files.FindFirst("C:\\TEMP\\"), "veld000.tmp");
  EXPECT_EQ(files.FindFirst("C:\\TEMP\\veld??.tmp"), "");
  EXPECT_EQ(files.FindFirst("C:\\TEMP"), "");
  EXPECT_EQ(files.FindFirst("C:\\NOWHERE\\*"), "");
  EXPECT_EQ(files.FindFirst("A:\\*"), "");
  EXPECT_EQ(files.FindFirst("Z:\\*"), "");
  EXPECT_EQ(files.FindFirst("C:\\TEMP\\<*"), "");
  files.SetCurrentFolder("C:\\TEMP");
  EXPECT_EQ(files.FindFirst("*.tmp"), "veld000.tmp");
  EXPECT_EQ(files.FindFirst("C:*1.tmp"), "VELD001.TMP");
}

TEST(SimulatedFiles, ShortNamesOpenAndLongNamesAnswer) {
  SimulatedFiles files;
  files.AddFile("C:\\Long Folder\\Long Name.nx4", "text");
  EXPECT_TRUE(files.AddShortName("C:\\Long Folder", "LONGFO~1"));
  EXPECT_TRUE(files.AddShortName("C:\\LONGFO~1\\Long Name.nx4", "LONGNA~1.NX4"));
  EXPECT_FALSE(files.AddShortName("C:\\Nothing", "NOTHIN~1"));
  EXPECT_FALSE(files.AddShortName("C:\\", "ROOT"));
  EXPECT_EQ(files.ReadText("c:\\longfo~1\\longna~1.nx4"), "text");
  EXPECT_EQ(files.LongName("C:\\LONGFO~1"), "Long Folder");
  EXPECT_EQ(files.LongName("C:\\LONGFO~1\\LONGNA~1.NX4"), "Long Name.nx4");
  EXPECT_EQ(files.LongName("C:\\LONGFO~1\\NONE.NX4"), "");
  EXPECT_EQ(files.ResolveFolder("C:\\longfo~1"), "C:\\Long Folder");
  EXPECT_EQ(files.FindFirst("C:\\LONGFO~1\\LONGNA~1.NX4"), "Long Name.nx4");
  EXPECT_EQ(files.FindFirst("C:\\LONGFO~1\\longna*.*"), "Long Name.nx4");
  Write(files, "C:\\LONGFO~1\\LONGNA~1.NX4", "new");
  EXPECT_EQ(files.FileNames("C:\\Long Folder", "*"), (Names{"Long Name.nx4"}));
  EXPECT_EQ(files.ReadText("C:\\Long Folder\\Long Name.nx4"), "new");
  files.Delete("C:\\LONGFO~1\\LONGNA~1.NX4");
  EXPECT_FALSE(files.FileExists("C:\\Long Folder\\Long Name.nx4"));
}

}  // namespace
}  // namespace veldrin
