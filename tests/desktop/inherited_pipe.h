// Waiting for processes that nobody is the parent of any more: each of them inherits the end of a pipe, which
// closes when the last of them is gone.
#pragma once

#include <poll.h>
#include <unistd.h>

namespace veldrin {

class InheritedPipe {
 public:
  InheritedPipe() { Open(); }
  ~InheritedPipe() { Close(); }
  InheritedPipe(const InheritedPipe&) = delete;
  InheritedPipe& operator=(const InheritedPipe&) = delete;

  /// Waits until all processes that were started since the last call have ended; false when that takes longer
  /// than a minute.
  bool AwaitEnd() {
    close(ends_[1]);
    ends_[1] = -1;
    pollfd end = {ends_[0], POLLIN, 0};
    const bool ended = poll(&end, 1, kPatience) == 1;
    Close();
    Open();
    return ended;
  }

 private:
  static constexpr int kPatience = 60000;  // ms

  void Open() {
    if (pipe(ends_) != 0) ends_[0] = ends_[1] = -1;
  }
  void Close() {
    for (const int end : ends_) {
      if (end >= 0) close(end);
    }
  }

  int ends_[2] = {-1, -1};
};

}  // namespace veldrin
