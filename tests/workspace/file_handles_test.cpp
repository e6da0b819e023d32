// Which opens refuse each other. Names are told apart without regard to case, as the file system does.
#include "workspace/files/file_handles.h"

#include "runtime/fault.h"
#include "simulated/simulated_files.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

constexpr char kPlan[] = "C:\\VELDRIN\\DAT\\A.nx4";
constexpr char kSamePlan[] = "c:\\veldrin\\dat\\a.NX4";
constexpr char kOther[] = "C:\\VELDRIN\\DAT\\B.nx4";

/// A file system that lets a file be read and written at the same time, as the real one does.
struct EasyFiles : SimulatedFiles {
  std::string ReadText(const std::string& path) override { return Text(path).value_or(""); }
};

struct Handles : testing::Test {
  EasyFiles files;
  FileHandles handles{files};

  Handles() {
    files.AddFile(kPlan, "old\r\n");
    files.AddFile(kOther, "other\r\n");
  }
  int FaultOfInput(Handle handle, const char* path) {
    return Guarded([&] { handles.OpenInput(handle, path); });
  }
  int FaultOfOutput(Handle handle, const char* path) {
    return Guarded([&] { handles.OpenOutput(handle, path); });
  }
};

TEST_F(Handles, ANumberInUseIsNotOpenedAgain) {
  handles.OpenInput(Handle::Reader, kPlan);
  EXPECT_EQ(FaultOfInput(Handle::Reader, kOther), 55);
  EXPECT_EQ(FaultOfOutput(Handle::Reader, kOther), 55);
  EXPECT_EQ(handles.Reader(Handle::Reader).Line(), "old");
  handles.Close(Handle::Reader);
  EXPECT_EQ(FaultOfInput(Handle::Reader, kOther), 0);
  EXPECT_EQ(handles.Reader(Handle::Reader).Line(), "other");
}

TEST_F(Handles, AFileBeingWrittenIsNotRead) {
  handles.OpenOutput(Handle::Plan, kPlan);
  EXPECT_EQ(FaultOfInput(Handle::Reader, kSamePlan), 55);
  EXPECT_FALSE(handles.IsOpen(Handle::Reader));
  EXPECT_EQ(FaultOfInput(Handle::Reader, kOther), 0);
  handles.Close(Handle::Reader);
  handles.Close(Handle::Plan);
  EXPECT_EQ(FaultOfInput(Handle::Reader, kSamePlan), 0);
}

TEST_F(Handles, AFileBeingReadIsReadTwiceAndNotWritten) {
  handles.OpenInput(Handle::Reader, kPlan);
  EXPECT_EQ(FaultOfInput(Handle::Compare, kSamePlan), 0);
  EXPECT_EQ(FaultOfOutput(Handle::Plan, kSamePlan), 55);
  EXPECT_FALSE(handles.IsOpen(Handle::Plan));
  EXPECT_EQ(FaultOfOutput(Handle::Plan, kOther), 0);
}

TEST_F(Handles, AFileBeingWrittenIsNotWrittenUnderAnotherNumber) {
  handles.OpenOutput(Handle::Plan, kPlan);
  EXPECT_EQ(FaultOfOutput(Handle::WorkFile, kSamePlan), 55);
}

TEST_F(Handles, AnAbandonedFileStaysAsItWas) {
  handles.OpenOutput(Handle::Plan, kPlan);
  handles.Write(Handle::Plan, "new");
  handles.Abandon(Handle::Plan);
  EXPECT_FALSE(handles.IsOpen(Handle::Plan));
  EXPECT_EQ(files.ReadText(kPlan), "old\r\n");
  handles.OpenOutput(Handle::Plan, kPlan);
  handles.Write(Handle::Plan, "new");
  handles.Close(Handle::Plan);
  EXPECT_EQ(files.ReadText(kPlan), "new");
}

TEST_F(Handles, ReadingAndWritingNeedAHandleOfTheirKind) {
  EXPECT_EQ(Guarded([&] { handles.Reader(Handle::Reader); }), 52);
  EXPECT_EQ(Guarded([&] { handles.Write(Handle::Plan, "x"); }), 52);
  handles.OpenInput(Handle::Reader, kPlan);
  EXPECT_EQ(Guarded([&] { handles.Write(Handle::Reader, "x"); }), 52);
  handles.OpenOutput(Handle::Plan, kOther);
  EXPECT_EQ(Guarded([&] { handles.Reader(Handle::Plan); }), 52);
}

TEST_F(Handles, ClosingWhatIsNotOpenIsNoError) {
  EXPECT_EQ(Guarded([&] { handles.Close(Handle::Reader); }), 0);
}

}  // namespace
}  // namespace veldrin
