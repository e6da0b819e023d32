// The whole desktop program: the real machine, the windows on the screen and the program between them.
#pragma once

#include "desktop/kept_plans.h"
#include "desktop/windows/desktop_windows.h"
#include "desktop/windows/stage.h"
#include "machine/painting/font_metrics.h"
#include "machine/real_end_signals.h"
#include "machine/real_machine.h"
#include "workspace/program.h"

#include <QObject>
#include <QSessionManager>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace veldrin {

/// The windows, and a word before each event, from whatever side it comes.
class ProgramWindows : public DesktopWindows {
 public:
  using DesktopWindows::DesktopWindows;

  void EventFired(Control& control, const Event& event) override;

  std::function<void(const Control& control, const Event& event)> eventComes;
};

/// Needs a QApplication. The zoom is the one that the user left, at first the one that fits the screen.
class DesktopProgram {
 public:
  DesktopProgram();
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  /// Runs the program with the text of its command line until it ends. Returns the process's exit status:
  /// 1 when a fault ended it.
  int Run(const std::string& commandLine);

  /// Closes the main window at the session's end. It may refuse while there are unsaved changes, and asks;
  /// where nobody can be asked it ends as EndAtOnce does. Returns whether the session may end.
  bool EndSession(bool mayAsk);
  /// Ends the program as the main window's end does, but without a question: unsaved changes are kept
  /// for the next start, the history and the window's place are stored, the working file goes.
  void EndAtOnce();
  /// The same for a process that is about to end by itself and whose windows are gone already.
  void LeaveTidy();

  Stage stage;
  ProgramWindows windows{stage};
  FontMetrics metrics;
  RealMachine machine{windows, metrics};
  std::unique_ptr<Program> program;

  /// Starts the program anew with the kept plan of this id, or where it is empty with a file, when this one
  /// has ended by a fault and its user wants to go on.
  std::function<void(const std::string& keptId, const std::string& file)> startAgain;

  /// The net's part of an event's end; empty, the program runs without it.
  std::function<void()> netLooks;

 private:
  void TakeStoredZoom();
  void TakeZoom();
  void ZoomChanged();
  void CommitSession(QSessionManager& session);
  void HearEvent(const Control& control, const Event& event);
  void LayOutForPlan();
  void TellMissingLists();
  bool BoxIsJapanese() const;
  FaultStory TellFault(int number);
  void TellBadSetting(FaultStory& story);
  void StartWithDefault(const std::string& value);
  void GoOnAnew();
  void ShowGuide(std::string_view section);
  /// The last event of the program; ends it.
  void CloseUnasked();

  RealKeepFolder keepFolder_;
  std::unique_ptr<KeptPlans> kept_;
  SettingsTrouble settingsTrouble_;  // the last one
  bool inBox_ = false;               // the event that came last is a text box's
  bool wantsAnew_ = false;           // the user wants to go on after the fault
  std::string keptAtFault_;          // id of the kept plan
  bool layoutDue_ = false;           // the main window has a size that it was not laid out for
  bool missingTold_ = false;         // the user knows that there are no machine lists
  QObject listener_;                 // what would be told to the program is not told any more when it is gone
  EndSignals signals_{[this] { EndAtOnce(); }};
};

}  // namespace veldrin
