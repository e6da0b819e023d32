// The program itself, in a process of its own on a real Windows or Wine, used from outside: by its windows'
// titles, by keys, and by what it leaves on the disk and in the registry.
//
// A road begins as for a user who has never started the program. So everything that the user has of it goes
// first: roads run only where VELDRIN_ROADS says that this user is there for them.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <windows.h>

namespace veldrin {

/// Waits until something holds, a minute at the most.
bool Await(const std::function<bool()>& holds);

/// A value of the user's settings.
std::optional<QString> Setting(const QString& name);
void StoreSetting(const QString& name, const QString& text);

/// The path of a file in the user's folder of lists, plans and kept plans.
QString InUsersFolder(const QString& name);

/// The titles of the windows on the screen that a process has shown.
QStringList WindowTitles(qint64 process);

class RealProgram {
 public:
  /// Starts it with these words, in an environment that holds these variables too ("NAME=text").
  explicit RealProgram(const QStringList& words = {}, const QStringList& variables = {});
  ~RealProgram();
  RealProgram(const RealProgram&) = delete;
  RealProgram& operator=(const RealProgram&) = delete;

  bool IsRunning() const { return process_.state() != QProcess::NotRunning; }
  /// Waits for a window whose title holds `part`; null when it does not come.
  HWND AwaitWindow(const QString& part);
  QString Titles() const { return WindowTitles(process_.processId()).join(" | "); }

  /// Presses a key, while `held` (VK_CONTROL, VK_SHIFT) is down, for the window whose title holds `part`.
  void Press(const QString& part, WORD key, WORD held = 0);
  /// Types a text, whatever signs it has, into what has the focus there.
  void Type(const QString& part, const QString& text);
  /// Presses arrows of spin buttons until the plan has changed.
  void ChangePlan();

  /// Closes the window as its user does and waits for the end; tells the exit status, -1 for none.
  int Close();
  /// Ends it from outside; nothing of it gets to clean up.
  void Kill();

 private:
  HWND Window(const QString& part) const;
  void BringForward(const QString& part);

  QProcess process_;
};

class RoadTest : public ::testing::Test {
 protected:
  void SetUp() override;
};

}  // namespace veldrin
