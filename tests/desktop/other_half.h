// Another process for a part of a test, on every system: this very executable, which runs one of its disabled
// tests.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>
#ifdef _WIN32
#include <windows.h>
#endif

namespace veldrin {

/// Ends this process as a crash or a kill from outside does: nothing gets to clean up.
[[noreturn]] inline void DieAtOnce() {
#ifdef _WIN32
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_CONTROL_C_EXIT));
#else
  raise(SIGKILL);
#endif
  std::abort();
}

class OtherHalf {
 public:
  /// Starts the test of this name ("DISABLED_Suite.Name"), which asks for its words by Words().
  explicit OtherHalf(const QString& test, const QStringList& words = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kWords, words.join('\n'));
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(QCoreApplication::applicationFilePath(),
                   {"--gtest_also_run_disabled_tests", "--gtest_filter=" + test});
  }

  /// Called in the other half: the words it was given. It ends by itself should nobody wait for it any more.
  static QStringList Words() {
    std::thread([] {
      std::this_thread::sleep_for(std::chrono::milliseconds(kPatience));
      std::_Exit(EXIT_FAILURE);
    }).detach();
    return qEnvironmentVariable(kWords).split('\n');
  }
  /// Called in the other half: lets AwaitReady return.
  static void TellReady() {
    std::printf("\n%s\n", kReady);
    std::fflush(stdout);
  }

  /// Waits until it is ready; false when it never is.
  bool AwaitReady() {
    QElapsedTimer time;
    time.start();
    while (!said_.contains(kReady) && time.elapsed() < kPatience &&
           process_.state() != QProcess::NotRunning) {
      process_.waitForReadyRead(kLook);
      said_ += process_.readAll();
    }
    return said_.contains(kReady);
  }

  void Kill() {
    process_.kill();
    process_.waitForFinished(kPatience);
  }
  /// Whether it has ended by now; waits for that a moment.
  bool HasEnded() { return process_.state() == QProcess::NotRunning || process_.waitForFinished(kLook); }
  /// Waits for its end. What it did not pass is shown.
  void AwaitEnd() {
    EXPECT_TRUE(process_.state() == QProcess::NotRunning || process_.waitForFinished(kPatience));
    said_ += process_.readAll();
    if (!Died() && !Passed()) ADD_FAILURE() << said_.toStdString();
  }
  /// Whether it ended by itself and found all as it should be.
  bool Passed() const { return !Died() && process_.exitCode() == 0; }
  /// Whether it was killed, by itself or from outside.
  bool Died() const { return process_.exitStatus() == QProcess::CrashExit; }

 private:
  static constexpr int kPatience = 60000;  // ms
  static constexpr int kLook = 20;         // ms
  static constexpr char kWords[] = "VELDRIN_TEST_WORDS";
  static constexpr char kReady[] = "@ready";

  QProcess process_;
  QByteArray said_;
};

}  // namespace veldrin
