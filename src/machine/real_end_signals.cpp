#include "machine/real_end_signals.h"

#include <QSocketNotifier>

#include <utility>

#ifndef _WIN32
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>
#endif

namespace veldrin {

#ifdef _WIN32

EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {}
EndSignals::~EndSignals() = default;

#else

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};
constexpr std::time_t kPatience = 5;  // s

// A handler may do next to nothing: it leaves word in a pipe, which wakes the event loop.
int pipeEnds[2] = {-1, -1};
volatile std::sig_atomic_t heardBefore = 0;
volatile std::time_t firstHeard = 0;
struct sigaction former[std::size(kSignals)];

void TakeSignal(int signal) {
  const int error = errno;
  const std::time_t now = std::time(nullptr);
  if (heardBefore == 0) {
    heardBefore = 1;
    firstHeard = now;
  } else if (now - firstHeard >= kPatience) {
    std::signal(signal, SIG_DFL);
    raise(signal);
  }
  const char sign = 's';
  // A pipe that is full has told it already.
  if (write(pipeEnds[1], &sign, 1) != 1) errno = 0;
  errno = error;
}

bool OpenPipe() {
  if (pipe(pipeEnds) != 0) return false;
  for (const int end : pipeEnds) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

void Listen() {
  struct sigaction taken = {};
  taken.sa_handler = TakeSignal;
  taken.sa_flags = SA_RESTART;
  sigemptyset(&taken.sa_mask);
  for (std::size_t i = 0; i < std::size(kSignals); ++i) {
    sigaction(kSignals[i], nullptr, &former[i]);
    if (former[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &taken, nullptr);
  }
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {
  if (pipeEnds[0] >= 0 || !OpenPipe()) return;
  heard_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  QObject::connect(heard_.get(), &QSocketNotifier::activated, heard_.get(), [this] {
    char signs[16];
    while (read(pipeEnds[0], signs, sizeof signs) > 0) {
    }
    end_();
  });
  heardBefore = 0;
  Listen();
}

EndSignals::~EndSignals() {
  if (!heard_) return;
  for (std::size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &former[i], nullptr);
  heard_.reset();
  for (int& end : pipeEnds) {
    close(end);
    end = -1;
  }
}

#endif

}  // namespace veldrin
