// A program keeps an edited plan, saves it and ends. At every system call on the way the process dies, or the
// call is refused, or a folder goes away, one after the other until a run comes through untouched: always
// there is the new plan, or the old one with the new one kept beside it, or the old one from before anything
// was kept.
#include "tests/desktop/every_step/edited_plan.h"
#include "tests/desktop/every_step/stepped_process.h"

#if defined(__linux__) && defined(__x86_64__)

#include <fcntl.h>
#include <set>
#include <sys/syscall.h>

namespace veldrin {
namespace {

namespace fs = std::filesystem;

bool IsAnyCall(long /*call*/) {
  return true;
}

/// Calls that need room on the disk.
bool NeedsRoom(long call) {
  static const std::set<long> kCalls = {SYS_write, SYS_pwrite64,  SYS_writev, SYS_fsync,
                                        SYS_mkdir, SYS_fdatasync, SYS_mkdirat};
  return kCalls.contains(call);
}

/// Calls that change something on the disk.
bool Changes(long call) {
  static const std::set<long> kCalls = {SYS_rename,   SYS_renameat, SYS_renameat2, SYS_unlink,
                                        SYS_unlinkat, SYS_link,     SYS_linkat,    SYS_ftruncate};
  return NeedsRoom(call) || kCalls.contains(call);
}

/// The same, with those that open and close.
bool IsOfFiles(long call) {
  static const std::set<long> kCalls = {SYS_open,   SYS_openat, SYS_creat, SYS_close,
                                        SYS_fchmod, SYS_fchown, SYS_flock};
  return Changes(call) || kCalls.contains(call);
}

class EveryStepTest : public ::testing::Test, protected EditedPlan {
 protected:
  /// Runs with the blow at each step until one comes through without; `counts` tells what is a step.
  void Sweep(bool (*counts)(long call), const std::function<Fate(int past, long call)>& blow) {
    const std::string newText = NewText();
    int reached = 1;
    int at = 0;
    while (reached >= at && !HasFailure()) {
      ++at;
      Reset();
      reached = 0;
      SteppedProcess process([&](long call) {
        if (!counts(call)) return Fate{};
        ++reached;
        return reached < at ? Fate{} : blow(reached - at, call);
      });
      cameThrough_ = process.Run([this] { return KeepAndSave(); });
      SCOPED_TRACE("step " + std::to_string(at) + (Came().kept ? ", kept" : "") +
                   (Came().saved ? ", saved" : ""));
      EXPECT_FALSE(process.Fell());
      Judge(newText);
    }
    EXPECT_TRUE(cameThrough_);
    EXPECT_TRUE(Came().kept);
    EXPECT_TRUE(Came().saved);
    EXPECT_EQ(Kept("state"), 0) << "a saved plan is kept no more";
    EXPECT_GT(at, 10) << "the steps were seen";
    RecordProperty("steps", at - 1);
    std::cout << at - 1 << " steps" << std::endl;
  }

  void Judge(const std::string& newText) {
    // Where a folder has gone, the chooser saves into the one that it shows instead.
    bool isNew = false;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(PathOf(""))) {
      if (entry.path().filename() != "A.nx4") continue;
      const QByteArray plan =
          Bytes(QString::fromStdString(entry.path().lexically_relative(PathOf("")).string()));
      const bool isThis = plan == QByteArray::fromStdString(newText);
      EXPECT_TRUE(isThis || plan == kSamplePlan) << plan.toStdString();
      isNew = isNew || isThis;
    }
    const int kept = Kept("state") + Kept("state.gone");
    EXPECT_TRUE(isNew || !Came().saved);
    EXPECT_TRUE(isNew || !Came().kept || kept >= 1) << "neither the new plan nor a kept one";
    EXPECT_LE(kept, 1);
  }

  /// How many plans are kept in a folder. Each has to be whole, with a plan file that is, and free for
  /// whoever starts next.
  int Kept(const QString& name) {
    if (!QFileInfo::exists(In(name))) return 0;
    RealKeepFolder keepFolder(In(name));
    int count = 0;
    for (const std::string& file : keepFolder.KeptNames()) {
      const ReadKept read = ParseKept(keepFolder.Read(file).value_or(""));
      EXPECT_EQ(read.flaw, KeptFlaw::None);
      // A save that fails may have made the plan its own baseline.
      EXPECT_TRUE(SameChoice(read.kept.plan, Edited()));
      EXPECT_EQ(keepFolder.Read(read.kept.planFile), NewText());
      EXPECT_NE(keepFolder.Claim(file.substr(0, file.size() - 5)), nullptr);
      ++count;
    }
    return count;
  }

  bool cameThrough_ = false;
};

Fate Once(int past, int error) {
  return {false, past == 0 ? error : 0};
}

TEST_F(EveryStepTest, Killed) {
  Sweep(IsAnyCall, [](int, long) { return Fate{true, 0}; });
}

TEST_F(EveryStepTest, NoRoomForOneCall) {
  Sweep(IsOfFiles, [](int past, long) { return Once(past, ENOSPC); });
}

TEST_F(EveryStepTest, NoRoomAnyMore) {
  Sweep(NeedsRoom, [](int, long) { return Fate{false, ENOSPC}; });
}

TEST_F(EveryStepTest, OneCallDenied) {
  Sweep(IsOfFiles, [](int past, long) { return Once(past, EACCES); });
}

TEST_F(EveryStepTest, ReadOnlyFromThereOn) {
  Sweep(Changes, [](int, long) { return Fate{false, EROFS}; });
}

TEST_F(EveryStepTest, ThePlansFolderGoesAway) {
  Sweep(Changes, [this](int past, long) {
    if (past == 0) fs::rename(PathOf("program/DAT"), PathOf("DAT.gone"));
    return Fate{};
  });
}

TEST_F(EveryStepTest, TheFolderOfKeptPlansGoesAway) {
  Sweep(Changes, [this](int past, long) {
    std::error_code notThereYet;
    if (past == 0) fs::rename(PathOf("state"), PathOf("state.gone"), notThereYet);
    return Fate{};
  });
}

}  // namespace
}  // namespace veldrin

#endif
