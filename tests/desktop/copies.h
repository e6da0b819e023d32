// Copies of the program that run side by side in processes of their own, the first that ends told first.
#pragma once

#ifdef _WIN32
#include "tests/desktop/other_half.h"
#else
#include "tests/desktop/child_process.h"
#endif

#include <QStringList>

#include <functional>
#include <list>

namespace veldrin {

enum class CopyEnd { Whole, Killed, Wrong };

#ifdef _WIN32

constexpr bool kCopiesStartQuickly = false;

/// Windows starts each as a program of its own, by the name of a disabled test and its words.
class Copies {
 public:
  void Start(const QString& test, const QStringList& words, const std::function<int()>& /*work*/) {
    running_.emplace_back(test, words);
  }
  int Running() const { return static_cast<int>(running_.size()); }

  CopyEnd AwaitOne() {
    for (;;) {
      for (auto copy = running_.begin(); copy != running_.end(); ++copy) {
        if (!copy->HasEnded()) continue;
        const CopyEnd end = copy->Died() ? CopyEnd::Killed : copy->Passed() ? CopyEnd::Whole : CopyEnd::Wrong;
        running_.erase(copy);
        return end;
      }
    }
  }

 private:
  std::list<OtherHalf> running_;
};

inline int OwnProcess() {
  return static_cast<int>(GetCurrentProcessId());
}
inline bool IsAlive(int process) {
  const HANDLE opened = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
  if (opened == nullptr) return false;
  const bool alive = WaitForSingleObject(opened, 0) == WAIT_TIMEOUT;
  CloseHandle(opened);
  return alive;
}

#else

constexpr bool kCopiesStartQuickly = true;

/// Elsewhere a process divides, and a copy costs next to nothing.
class Copies {
 public:
  void Start(const QString& /*test*/, const QStringList& /*words*/, const std::function<int()>& work) {
    StartChild(work);
    ++running_;
  }
  int Running() const { return running_; }

  CopyEnd AwaitOne() {
    int status = 0;
    if (wait(&status) <= 0) return CopyEnd::Wrong;
    --running_;
    if (WIFSIGNALED(status)) return WTERMSIG(status) == SIGKILL ? CopyEnd::Killed : CopyEnd::Wrong;
    return WEXITSTATUS(status) == 0 ? CopyEnd::Whole : CopyEnd::Wrong;
  }

 private:
  int running_ = 0;
};

inline int OwnProcess() {
  return getpid();
}
inline bool IsAlive(int process) {
  return kill(process, 0) == 0;
}

#endif

}  // namespace veldrin
