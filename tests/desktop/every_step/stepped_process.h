// Work in a process of its own that is held at each of its system calls, those of all its threads in the
// order in which they come: there it can die, be refused, or find the world changed.
#pragma once

#if defined(__linux__) && defined(__x86_64__)

#include "tests/desktop/child_process.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <functional>
#include <map>
#include <sched.h>
#include <string>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/user.h>
#include <sys/wait.h>

namespace veldrin {

/// What becomes of a system call.
struct Fate {
  bool dies = false;  // the whole process, before the call has done anything
  int error = 0;      // the call is not made and answers with this; 0: it is made
};

/// Keeps this thread and the processes that it starts on the core where it is: two that take turns are woken
/// there at a fraction of the cost.
class OnOneCore {
 public:
  OnOneCore() {
    sched_getaffinity(0, sizeof before_, &before_);
    cpu_set_t here;
    CPU_ZERO(&here);
    CPU_SET(sched_getcpu(), &here);
    sched_setaffinity(0, sizeof here, &here);
  }
  ~OnOneCore() { sched_setaffinity(0, sizeof before_, &before_); }
  OnOneCore(const OnOneCore&) = delete;
  OnOneCore& operator=(const OnOneCore&) = delete;

 private:
  cpu_set_t before_{};
};

class SteppedProcess {
 public:
  /// `fate` is asked about each call, by the number that the system knows it by.
  explicit SteppedProcess(std::function<Fate(long call)> fate) : fate_(std::move(fate)) {}

  /// Does the work. Returns whether it came to its own end.
  template <class Work>
  bool Run(const Work& work) {
    const OnOneCore here;
    const pid_t child = StartChild([&] {
      if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) return kChildThrew;
      raise(SIGSTOP);
      return work();
    });
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) return false;
    ptrace(PTRACE_SETOPTIONS, child, nullptr,
           PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE);
    Resume(child, 0);
    return Watch(child);
  }

  /// Whether the last one was ended otherwise than by the work and by its fate: by a sanitizer, or a bad
  /// access.
  bool Fell() const { return fell_; }

 private:
  static constexpr int kCallStop = SIGTRAP | 0x80;

  static void Resume(pid_t thread, int signal) {
    ptrace(PTRACE_SYSCALL, thread, nullptr, static_cast<std::intptr_t>(signal));
  }

  bool Watch(pid_t child) {
    int status = 0;
    while (true) {
      const pid_t thread = waitpid(-1, &status, __WALL);
      if (thread < 0 && errno == EINTR) continue;
      if (thread < 0) return false;
      if (!WIFSTOPPED(status)) {
        if (thread == child) return EndedWell(status);
        continue;
      }
      const int signal = WSTOPSIG(status);
      if (signal == kCallStop) {
        Meet(child, thread);
      } else {
        // A thread begins with a stop; events of the tracing are none of the process's.
        const bool own = signal != SIGSTOP && signal != SIGTRAP;
        Resume(thread, own ? signal : 0);
      }
    }
  }

  bool EndedWell(int status) {
    const bool ended = WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == kChildThrew);
    const bool killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    fell_ = !ended && !killed;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  /// A call begins or ends.
  void Meet(pid_t child, pid_t thread) {
    const auto refused = refused_.find(thread);
    bool& inside = inside_[thread];
    inside = !inside;
    if (inside && !WritesToPipe(thread)) {
      const Fate fate = fate_(Peek(thread, offsetof(user_regs_struct, orig_rax)));
      if (fate.dies) kill(child, SIGKILL);
      if (fate.error != 0) {
        Poke(thread, offsetof(user_regs_struct, orig_rax), -1);
        refused_[thread] = fate.error;
      }
    } else if (!inside && refused != refused_.end()) {
      Poke(thread, offsetof(user_regs_struct, rax), -refused->second);
      refused_.erase(refused);
    }
    Resume(thread, 0);
  }

  /// Nothing of the program does: the sanitizers look through a pipe whether memory can be read, and would
  /// end the process if that were refused.
  static bool WritesToPipe(pid_t thread) {
    if (Peek(thread, offsetof(user_regs_struct, orig_rax)) != SYS_write) return false;
    const long file = Peek(thread, offsetof(user_regs_struct, rdi));
    struct stat kind {};
    const std::string path = "/proc/" + std::to_string(thread) + "/fd/" + std::to_string(file);
    return stat(path.c_str(), &kind) == 0 && S_ISFIFO(kind.st_mode);
  }

  static long Peek(pid_t thread, std::size_t place) {
    return ptrace(PTRACE_PEEKUSER, thread, place, nullptr);
  }
  static void Poke(pid_t thread, std::size_t place, long value) {
    ptrace(PTRACE_POKEUSER, thread, place, value);
  }

  std::function<Fate(long call)> fate_;
  bool fell_ = false;
  std::map<pid_t, bool> inside_;
  std::map<pid_t, int> refused_;
};

}  // namespace veldrin

#endif
