// The whole desktop program: the real machine, the windows on the screen and the program between them.
#pragma once

#include "desktop/desktop_windows.h"
#include "desktop/font_metrics.h"
#include "desktop/real_machine.h"
#include "desktop/stage.h"
#include "workspace/program.h"

#include <QSessionManager>

#include <memory>
#include <string>

namespace veldrin {

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

  Stage stage;
  DesktopWindows windows{stage};
  FontMetrics metrics;
  RealMachine machine{windows, metrics};
  std::unique_ptr<Program> program;

 private:
  void TakeStoredZoom();
  void ZoomChanged();
  void EndSession(QSessionManager& session);
};

}  // namespace veldrin
