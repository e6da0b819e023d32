// Processes of their own for a piece of a test: what two copies of the program do to each other, or what a
// user without rights may do.
//
// A child that stayed behind would hold the test's output open, and the run of all tests would wait for it
// for ever. So it dies with its test, after a minute at the latest, and never returns into the test.
#pragma once

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace veldrin {

constexpr unsigned kLongestChild = 60;  // seconds
constexpr int kChildThrew = 254;

/// Starts a process that ends with the number that `work` returns.
template <class Work>
pid_t StartChild(const Work& work) {
  const pid_t child = fork();
  if (child != 0) return child;
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
  alarm(kLongestChild);
  int status = kChildThrew;
  try {
    status = work();
  } catch (...) {
  }
  _exit(status);
}

/// Waits for the end of a child: the number it ended with, or a signal's number below 0.
inline int WaitForChild(pid_t child) {
  int status = 0;
  if (waitpid(child, &status, 0) != child) return kChildThrew;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace veldrin
