// The working file's name and number, and the end of the program.
#include "workspace/files/working_files.h"

#include "tests/workspace/history_program.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(WorkingFiles, TheTemporaryFolderIsTheVariablesValue) {
  FindTempDir(program);
  EXPECT_EQ(workspace.TempDir, "C:\\TEMP");
}

TEST_F(WorkingFiles, ASeparatorAtItsEndLeavesTwoCharacters) {
  simulated.environment.Set("TEMP", "D:\\");
  FindTempDir(program);
  EXPECT_EQ(workspace.TempDir, "D:");
  // A longer folder loses all its names as well.
  simulated.environment.Set("TEMP", "C:\\TEMP\\");
  FindTempDir(program);
  EXPECT_EQ(workspace.TempDir, "C:");
}

TEST_F(WorkingFiles, TheFirstInstanceTakesNumberZero) {
  EXPECT_EQ(ChooseWorkFile(program), 1);
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD000.TMP");
  EXPECT_EQ(simulated.files.Text("C:\\TEMP\\VELD000.TMP"), "\r\n");
  EXPECT_FALSE(workspace.TempCleaned);
  EXPECT_FALSE(program.files.IsOpen(Handle::WorkFile));
}

TEST_F(WorkingFiles, ALaterInstanceTakesTheNextFreeNumber) {
  simulated.instances.others = 2;
  simulated.files.AddFile("C:\\TEMP\\veld000.tmp", "plan");
  simulated.files.AddFile("C:\\TEMP\\VELD001.TMP", "plan");
  simulated.files.AddFile("C:\\TEMP\\VELD003.TMP", "plan");
  EXPECT_EQ(ChooseWorkFile(program), 3);
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD002.TMP");
  EXPECT_EQ(simulated.files.Text("C:\\TEMP\\veld000.tmp"), "plan");
  EXPECT_FALSE(workspace.TempCleaned);
}

TEST_F(WorkingFiles, TheFirstInstanceDeletesLeftoversOfACrash) {
  for (const char* name :
       {"VELD000.TMP", "veld001.tmp", "VELDABC.TMP", "VELD01.TMP", "VELD0001.TMP", "VELD000.TXT"}) {
    simulated.files.AddFile(std::string("C:\\TEMP\\") + name, "plan");
  }
  EXPECT_EQ(ChooseWorkFile(program), 1);
  EXPECT_TRUE(workspace.TempCleaned);
  EXPECT_EQ(simulated.files.Matches("C:\\TEMP\\*.*"),
            (Paths{"VELD000.TMP", "VELD000.TXT", "VELD0001.TMP", "VELD01.TMP"}));
}

TEST_F(WorkingFiles, ALeftoverThatCannotBeDeletedIsLeft) {
  simulated.files.AddFile("C:\\TEMP\\VELD000.TMP", "plan");
  simulated.files.AddFile("C:\\TEMP\\VELD001.TMP", "plan");
  simulated.files.SetReadOnly("C:\\TEMP\\VELD000.TMP");
  EXPECT_EQ(ChooseWorkFile(program), 2);
  EXPECT_TRUE(workspace.TempCleaned);
  EXPECT_EQ(simulated.files.Text("C:\\TEMP\\VELD000.TMP"), "plan");
  EXPECT_EQ(simulated.files.Text("C:\\TEMP\\VELD001.TMP"), "\r\n");
}

TEST_F(WorkingFiles, NumberNineHundredNinetyNineIsTheLast) {
  simulated.instances.others = 1;
  for (int number = 1000; number <= 1998; ++number) {
    simulated.files.AddFile("C:\\TEMP\\VELD" + std::to_string(number).substr(1) + ".TMP", "");
  }
  EXPECT_EQ(ChooseWorkFile(program), 1000);
  EXPECT_EQ(workspace.WorkFile, "C:\\TEMP\\VELD999.TMP");
  EXPECT_THROW(ChooseWorkFile(program), EndOfProgram);
}

TEST_F(WorkingFiles, TheRootOfADriveIsSearchedByItsRoot) {
  simulated.environment.Set("TEMP", "C:\\");
  simulated.files.AddFile("C:\\VELD000.TMP", "plan");
  simulated.files.AddFile("C:\\VELDRIN\\VELD000.TMP", "plan");
  EXPECT_EQ(ChooseWorkFile(program), 1);
  EXPECT_EQ(workspace.WorkFile, "C:\\VELD000.TMP");
  EXPECT_EQ(simulated.files.Text("C:\\VELD000.TMP"), "\r\n");
  EXPECT_EQ(simulated.files.Text("C:\\VELDRIN\\VELD000.TMP"), "plan");
}

TEST_F(WorkingFiles, AMissingTemporaryFolderIsAFault) {
  simulated.environment.Set("TEMP", "C:\\NOWHERE");
  EXPECT_EQ(Guarded([&] { ChooseWorkFile(program); }), kFaultPathNotFound);
}

TEST_F(WorkingFiles, TheLastInstanceDeletesItsFileAndStoresTheHistory) {
  ChooseWorkFile(program);
  Add({"C:\\A.t1"});
  EXPECT_TRUE(End());
  EXPECT_FALSE(Exists("C:\\TEMP\\VELD000.TMP"));
  EXPECT_EQ(Stored(kSub, "0"), "1");
  EXPECT_EQ(Stored(kSettings, "Last Left"), "0");
}

TEST_F(WorkingFiles, AnInstanceThatIsNotTheLastStoresNothing) {
  ChooseWorkFile(program);
  simulated.files.AddFile("C:\\TEMP\\VELD001.TMP", "");
  Add({"C:\\A.t1"});
  EXPECT_TRUE(End());
  EXPECT_FALSE(Exists("C:\\TEMP\\VELD000.TMP"));
  EXPECT_TRUE(Exists("C:\\TEMP\\VELD001.TMP"));
  EXPECT_EQ(Stored(kSub, "0"), "(none)");
  EXPECT_EQ(Stored(kSettings, "Last Left"), "(none)");
}

TEST_F(WorkingFiles, TheEndFindsTheTemporaryFolderAnew) {
  ChooseWorkFile(program);
  workspace.TempDir = "C:\\VELDRIN\\DAT";
  simulated.files.AddFile("C:\\VELDRIN\\DAT\\VELD001.TMP", "");
  EXPECT_TRUE(End());
  EXPECT_EQ(workspace.TempDir, "C:\\TEMP");
  EXPECT_EQ(Stored(kSub, "0"), "0");
}

TEST_F(WorkingFiles, AFileThatCannotBeDeletedDoesNotStopTheEnd) {
  ChooseWorkFile(program);
  simulated.files.SetReadOnly("C:\\TEMP\\VELD000.TMP");
  EXPECT_TRUE(End());
  EXPECT_EQ(Stored(kSub, "0"), "(none)");
}

}  // namespace
}  // namespace veldrin
