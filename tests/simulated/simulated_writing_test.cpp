// What is written to the simulated machine's files, and what keeps it from being written.
#include "runtime/fault.h"
#include "simulated/simulated_files.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Names = std::vector<std::string>;

TEST(SimulatedFiles, WhatWasWrittenStandsThereAfterClose) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "old");
  const auto old = files.OpenForWriting("C:\\VELDRIN\\OLD.TXT");
  const auto fresh = files.OpenForWriting("C:\\VELDRIN\\NEW.TXT");
  old->Write("a");
  old->Write("b");
  EXPECT_EQ(files.Text("C:\\VELDRIN\\OLD.TXT"), "old");
  EXPECT_FALSE(files.FileExists("C:\\VELDRIN\\NEW.TXT"));
  old->Close();
  fresh->Close();
  EXPECT_EQ(files.ReadText("C:\\VELDRIN\\OLD.TXT"), "ab");
  EXPECT_EQ(files.Size("C:\\VELDRIN\\OLD.TXT"), 2);
  EXPECT_EQ(files.ReadText("C:\\VELDRIN\\NEW.TXT"), "");
  EXPECT_EQ(Guarded([&] { old->Write("c"); }), 52);
  EXPECT_EQ(Guarded([&] { old->Close(); }), 0);
}

TEST(SimulatedFiles, WriterThatIsNotClosedLeavesTheFileAsItWas) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "old");
  files.OpenForWriting("C:\\VELDRIN\\OLD.TXT")->Write("new");
  EXPECT_EQ(files.ReadText("C:\\VELDRIN\\OLD.TXT"), "old");
}

TEST(SimulatedFiles, FileBeingWrittenIsAlreadyOpen) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "old");
  const auto writer = files.OpenForWriting("C:\\VELDRIN\\OLD.TXT");
  EXPECT_EQ(Guarded([&] { files.OpenForWriting("c:\\veldrin\\old.txt"); }), 55);
  EXPECT_EQ(Guarded([&] { files.ReadText("OLD.TXT"); }), 55);
  EXPECT_EQ(Guarded([&] { files.Delete("OLD.TXT"); }), 55);
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "replaced");
  EXPECT_EQ(files.Text("OLD.TXT"), "replaced");
  writer->Write("written");
  writer->Close();
  EXPECT_EQ(files.ReadText("OLD.TXT"), "written");
}

TEST(SimulatedFiles, FullDiskKeepsTheOldFile) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "old");
  const auto writer = files.OpenForWriting("C:\\VELDRIN\\OLD.TXT");
  writer->Write("a");
  files.SetDiskFull(true);
  EXPECT_EQ(Guarded([&] { writer->Write("b"); }), 61);
  files.SetDiskFull(false);
  EXPECT_EQ(Guarded([&] { writer->Close(); }), 61);
  EXPECT_EQ(files.ReadText("C:\\VELDRIN\\OLD.TXT"), "old");
}

TEST(SimulatedFiles, CloseRaisesWhatBecameOfTheFolder) {
  SimulatedFiles files;
  files.AddFolder("D:\\Gone");
  files.AddFolder("D:\\Closed");
  const auto gone = files.OpenForWriting("D:\\Gone\\x.txt");
  const auto closed = files.OpenForWriting("D:\\Closed\\x.txt");
  files.Remove("D:\\Gone");
  files.SetReadOnly("D:\\Closed");
  EXPECT_EQ(Guarded([&] { gone->Close(); }), 75);
  EXPECT_EQ(Guarded([&] { closed->Close(); }), 70);
}

TEST(SimulatedFiles, WriterMayOutliveTheMachine) {
  std::unique_ptr<FileWriter> writer;
  {
    SimulatedFiles files;
    writer = files.OpenForWriting("C:\\x.txt");
  }
  writer->Write("text");
  writer->Close();
}

TEST(SimulatedFiles, ReplacedFileIsAFreshOne) {
  SimulatedFiles files;
  files.AddFile("C:\\VELDRIN\\old.txt", "old");
  files.SetReadOnly("C:\\VELDRIN\\old.txt");
  files.AddFile("C:\\VELDRIN\\OLD.TXT", "new");
  EXPECT_EQ(files.Matches("C:\\VELDRIN\\*"), (Names{"OLD.TXT"}));
  EXPECT_EQ(Guarded([&] { files.Delete("C:\\VELDRIN\\OLD.TXT"); }), 0);
}

TEST(SimulatedFiles, ReadOnlyFolderLetsTheFoldersInItBeWritten) {
  SimulatedFiles files;
  EXPECT_TRUE(files.SetReadOnly("C:\\VELDRIN"));
  EXPECT_FALSE(files.SetReadOnly("C:\\NOWHERE"));
  EXPECT_EQ(Guarded([&] { files.OpenForWriting("C:\\VELDRIN\\x"); }), 70);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting("C:\\VELDRIN\\DAT\\x"); }), 0);
  files.SetReadOnly("C:\\VELDRIN", false);
  EXPECT_EQ(Guarded([&] { files.OpenForWriting("C:\\VELDRIN\\x"); }), 0);
}

TEST(SimulatedFiles, ScriptMakesFoldersAndDrivesAsItNeedsThem) {
  SimulatedFiles files;
  files.AddFile("E:\\New\\Folder\\x.txt", "text");
  EXPECT_EQ(files.Drives(), (Names{"A:", "C:", "D:", "E:"}));
  files.AddFolder("A:\\");
  EXPECT_TRUE(files.FolderExists("A:\\"));
  EXPECT_EQ(Guarded([&] { files.AddFolder("E:\\New\\Folder\\x.txt\\y"); }), 75);
  EXPECT_EQ(Guarded([&] { files.AddFile("E:\\New", ""); }), 75);
  EXPECT_EQ(files.Text("E:\\New\\Folder\\x.txt"), "text");
  EXPECT_FALSE(files.Text("E:\\New\\Folder").has_value());
  EXPECT_TRUE(files.Remove("E:\\New"));
  EXPECT_FALSE(files.Remove("E:\\New"));
  EXPECT_FALSE(files.Remove("E:\\"));
}

}  // namespace
}  // namespace veldrin
