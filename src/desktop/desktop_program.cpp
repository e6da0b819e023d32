#include "desktop/desktop_program.h"

#include "desktop/dropped_file.h"
#include "program/assemble.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "workspace/settings.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace veldrin {

namespace {

constexpr char kZoomSetting[] = "Zoom";
constexpr double kPercent = 100;
constexpr int kPrepareAfter = 20;  // ms

}  // namespace

DesktopProgram::DesktopProgram() {
  TakeStoredZoom();
  stage.zoom.changed = [this, rescale = std::exchange(stage.zoom.changed, {})] {
    rescale();
    ZoomChanged();
  };
  // What an event behind a box threw goes on where the box was asked for.
  machine.boxes.closed = [this] { stage.input.RethrowCaught(); };
  program = AssembleProgram(machine.machine);
  stage.input.Serve(program.get());
  stage.input.ended = [] { QCoreApplication::exit(); };
  stage.fileDropped = [this](const std::string& path) {
    stage.input.Do([&] {
      if (!user::Activate(program->form2)) return false;
      OpenDroppedFile(*program, path);
      return true;
    });
  };
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                   [this](QSessionManager& session) { EndSession(session); });
}

DesktopProgram::~DesktopProgram() {
  stage.input.Serve(nullptr);
  windows.Forget();
  windows.Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void DesktopProgram::TakeStoredZoom() {
  const auto stored = machine.registry.Read(RegistryRoot::CurrentUser, kSettingsKey, kZoomSetting);
  double factor = 0;
  if (stored) Guarded([&] { factor = ParseNumber(*stored) / kPercent; });
  if (factor <= 0) {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QSize room = screen == nullptr ? QSize(0, 0) : screen->availableSize();
    factor = FittingZoom(room.width(), room.height());
  }
  stage.zoom.Set(factor);
  machine.screen.zoom = stage.zoom.Factor();
}

void DesktopProgram::ZoomChanged() {
  machine.screen.zoom = stage.zoom.Factor();
  machine.registry.Write(RegistryRoot::CurrentUser, kSettingsKey, kZoomSetting,
                         ShortestText(stage.zoom.Factor() * kPercent));
}

/// The main window may refuse while there are unsaved changes; it asks, and the session waits for it.
void DesktopProgram::EndSession(QSessionManager& session) {
  if (program->ended || !program->form2.loaded) return;
  const bool mayAsk = session.allowsInteraction();
  stage.input.Do([&] { return user::Close(program->form2, CloseReason::SessionEnd); });
  if (!program->ended && mayAsk) session.cancel();
  if (mayAsk) session.release();
}

int DesktopProgram::Run(const std::string& commandLine) {
  QTimer::singleShot(0, qApp, [&] {
    StartProgram(*program, commandLine);
    windows.Settle();
    if (program->ended) QCoreApplication::exit();
  });
  // The splash window is on the screen by then and waits for nothing; the main window is the largest.
  QTimer::singleShot(kPrepareAfter, qApp, [&] {
    if (!program->ended) windows.Prepare(program->form2);
  });
  QApplication::exec();
  windows.Forget();
  return program->endFault == 0 ? 0 : 1;
}

}  // namespace veldrin
