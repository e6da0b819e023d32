// Puts kept plans on the disk behind the program's back: waiting for a disk must not make a step slow.
#pragma once

#include "platform/keep_folder.h"
#include "safety/kept_plan.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace veldrin {

/// A thread of its own does what it is told, in order. A plan that waits to be written gives way to a newer
/// one with its id. The kept plan is replaced after the plan file that it names, and the plan file before
/// goes last: whenever the process ends, what stands there names a plan file that is whole.
class KeepWriter {
 public:
  explicit KeepWriter(KeepFolder& folder);
  /// Does what it was told to the end.
  ~KeepWriter();
  KeepWriter(const KeepWriter&) = delete;
  KeepWriter& operator=(const KeepWriter&) = delete;

  /// Keeps a plan; `planText` is that of its plan file, whose name is filled in here.
  void Keep(const std::string& id, KeptPlan kept, std::string planText);
  /// Takes a kept plan off the disk.
  void Forget(const std::string& id);
  /// Waits until nothing is left to do.
  void Finish();
  /// The fault of the first plan that could not be written since the last call, 0 for none.
  int TakeFault();

 private:
  struct Job {
    std::string id;
    std::optional<KeptPlan> kept;  // without one, what is kept under the id goes
    std::string planText;
  };

  void Run();
  void Do(Job job);
  void Write(const Job& job);
  void Remove(const std::string& id);
  void Queue(Job job);

  KeepFolder* folder_;
  std::mutex mutex_;
  std::condition_variable told_;
  std::condition_variable done_;
  std::deque<Job> jobs_;
  bool busy_ = false;
  bool ending_ = false;
  int fault_ = 0;
  /// Plan files on the disk by id and how often each was written; the thread's own.
  std::map<std::string, std::string> planFiles_;
  std::map<std::string, int> times_;
  std::thread thread_;
};

/// Takes a kept plan with its plan file off the disk: the kept plan first, so that none is left without its
/// plan file. Raises nothing.
void RemoveKept(KeepFolder& folder, const std::string& id, const std::string& planFile);

}  // namespace veldrin
