#include "desktop/desktop_program.h"

#include "dialogs/dropped_file.h"
#include "machine/files/real_leftovers.h"
#include "program/assemble.h"
#include "program/event_boundary.h"
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

constexpr char kNotPrinted[] = "The page could not be printed.";
constexpr char kNotPrintedJapanese[] = "印刷できませんでした。";
constexpr char kNoLists[] =
    "No machine list (*.RAT) was found.\r\n\r\n"
    "Sample machines come with the program, in its folder share/veldrin/LIST. Copy them to the folder below, "
    "or choose a list of your own here.\r\n\r\n";
constexpr char kNoListsJapanese[] =
    "機種ファイル（*.RAT）が見つかりません。\r\n\r\n"
    "サンプルの機種ファイルは、プログラムに付属の share/veldrin/LIST フォルダにあります。"
    "下記のフォルダにコピーするか、この画面でお手持ちの機種ファイルを選択してください。\r\n\r\n";

}  // namespace

void ProgramWindows::EventFired(Control& control, const Event& event) {
  DesktopWindows::EventFired(control, event);
  if (eventComes) eventComes(event);
}

DesktopProgram::DesktopProgram() {
  TakeStoredZoom();
  stage.zoom.changed = [this, rescale = std::exchange(stage.zoom.changed, {})] {
    rescale();
    ZoomChanged();
  };
  // What an event behind a box threw goes on where the box was asked for.
  machine.boxes.closed = [this] { stage.input.RethrowCaught(); };
  machine.printer.failed = [this] {
    const bool japanese = program->workspace.Language == kJapanese;
    machine.boxes.Message(BoxIcon::Exclamation, "", japanese ? kNotPrintedJapanese : kNotPrinted,
                          BoxButtons::Ok);
  };
  program = AssembleProgram(machine.machine);
  windows.eventComes = [this](const Event& event) { HearEvent(event); };
  stage.input.afterEvent = [this, settle = std::exchange(stage.input.afterEvent, {})] {
    settle();
    LayOutForPlan();
  };
  stage.input.Serve(program.get());
  stage.input.ended = [] { QCoreApplication::exit(); };
  stage.fileDropped = [this](const std::string& path) {
    stage.input.Do([&] { return OpenDroppedFile(*program, path); });
  };
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &listener_,
                   [this](QSessionManager& session) { CommitSession(session); });
}

void DesktopProgram::HearEvent(const Event& event) {
  const Workspace& workspace = program->workspace;
  const Form3& form3 = program->form3;
  if (&event == &program->form2.Resize) {
    layoutDue_ = workspace.ModeWord == mode::kBasing;
  } else if (&event == &program->form2.Unload) {
    DeleteLeftovers(machine.files, machine.instances, machine.environment.Variable("TEMP"));
  } else if (&event == &form3.Activate && workspace.MachineKey.empty() && form3.File1.entries.empty()) {
    if (!std::exchange(missingTold_, true)) QTimer::singleShot(0, &listener_, [this] { TellMissingLists(); });
  }
}

/// The main window passes over a size that it is given before there is a plan, as when it is maximised then.
/// It is laid out for it as soon as there is one.
void DesktopProgram::LayOutForPlan() {
  const Workspace& workspace = program->workspace;
  const bool rests = !program->ended && program->eventDepth == 0;
  if (!layoutDue_ || !rests || workspace.ModeWord == mode::kBasing) return;
  layoutDue_ = false;
  stage.input.Do([this] {
    program->form2.Resize();
    return true;
  });
}

/// The chooser has come up with nothing to choose.
void DesktopProgram::TellMissingLists() {
  const bool japanese = program->workspace.Language == kJapanese;
  machine.boxes.Message(BoxIcon::Information, "",
                        (japanese ? kNoListsJapanese : kNoLists) + program->workspace.ListPath,
                        BoxButtons::Ok);
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
  TakeZoom();
}

void DesktopProgram::TakeZoom() {
  machine.screen.zoom = stage.zoom.Factor();
  machine.boxes.SetZoom(stage.zoom.Factor());
}

void DesktopProgram::ZoomChanged() {
  TakeZoom();
  machine.registry.Write(RegistryRoot::CurrentUser, kSettingsKey, kZoomSetting,
                         ShortestText(stage.zoom.Factor() * kPercent));
}

void DesktopProgram::CommitSession(QSessionManager& session) {
  const bool mayAsk = session.allowsInteraction();
  const bool mayEnd = EndSession(mayAsk);
  if (!mayEnd) session.cancel();
  if (mayAsk) session.release();
}

bool DesktopProgram::EndSession(bool mayAsk) {
  if (program->ended || !program->form2.loaded) return true;
  if (!mayAsk) {
    EndAtOnce();
  } else {
    stage.input.Do([this] { return user::Close(program->form2, CloseReason::SessionEnd); });
  }
  return program->ended;
}

void DesktopProgram::EndAtOnce() {
  stage.input.Do([this] {
    CloseUnasked();
    return true;
  });
  // Also from the box of a fault that has ended the program already.
  QCoreApplication::exit();
}

void DesktopProgram::LeaveTidy() {
  try {
    RunEvent(*program, [this] { CloseUnasked(); });
  } catch (const EndOfProgram&) {
    // Nobody goes on with the event around this one.
  }
}

void DesktopProgram::CloseUnasked() {
  Workspace& workspace = program->workspace;
  workspace.QuickQuit = kYesWord;
  user::Close(program->form2, CloseReason::SessionEnd);
  // Without its main window the program knows neither a history nor a place yet.
  Guarded([&] { machine.files.Delete(workspace.WorkFile); });
  throw EndOfProgram{};
}

int DesktopProgram::Run(const std::string& commandLine) {
  QTimer::singleShot(0, &listener_, [&] {
    StartProgram(*program, commandLine);
    windows.Settle();
    if (program->ended) QCoreApplication::exit();
  });
  // The splash window is on the screen by then and waits for nothing; the main window is the largest.
  QTimer::singleShot(kPrepareAfter, &listener_, [this] {
    if (!program->ended) windows.Prepare(program->form2);
  });
  QApplication::exec();
  windows.Forget();
  return program->endFault == 0 ? 0 : 1;
}

}  // namespace veldrin
