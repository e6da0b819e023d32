#include "desktop/desktop_program.h"

#include "desktop/stored_settings.h"
#include "dialogs/dropped_file.h"
#include "machine/files/real_leftovers.h"
#include "machine/output/real_guide.h"
#include "model/setting_names.h"
#include "program/assemble.h"
#include "program/event_boundary.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "workspace/language.h"
#include "workspace/settings.h"

#include <QApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace veldrin {

namespace {

constexpr double kPercent = 100;
constexpr int kPrepareAfter = 20;  // ms

constexpr char kKeptVariable[] = "VELDRIN_KEPT";  // what a copy leaves for the one that it starts
constexpr char kNotPrinted[] = "The page could not be printed.";
constexpr char kNotPrintedJapanese[] = "印刷できませんでした。";
constexpr char kNoGuide[] =
    "The user's guide could not be opened. It comes with the program, in its folder share/doc/veldrin/guide.";
constexpr char kNoGuideJapanese[] =
    "ユーザーガイドを開けませんでした。ガイドはプログラムに付属の share/doc/veldrin/guide "
    "フォルダにあります。";
constexpr char kNoLists[] =
    "No machine list (*.RAT) was found.\r\n\r\n"
    "Sample machines come with the program, in its folder share/veldrin/LIST. Copy them to the folder below, "
    "or choose a list of your own here.\r\n\r\n";
constexpr char kNoListsJapanese[] =
    "機種ファイル（*.RAT）が見つかりません。\r\n\r\n"
    "サンプルの機種ファイルは、プログラムに付属の share/veldrin/LIST フォルダにあります。"
    "下記のフォルダにコピーするか、この画面でお手持ちの機種ファイルを選択してください。\r\n\r\n";

/// The kept plan that the copy before this one has left open. Programs that this one starts do not inherit
/// it.
std::string TakeWantedPlan() {
  const std::string id = qEnvironmentVariable(kKeptVariable).toStdString();
  qunsetenv(kKeptVariable);
  return id;
}

void StartAnew(const std::string& keptId, const std::string& file) {
  QProcess anew;
  anew.setProgram(QCoreApplication::applicationFilePath());
  if (keptId.empty() && !file.empty()) anew.setArguments({QString::fromStdString(file)});
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kKeptVariable, QString::fromStdString(keptId));
  anew.setProcessEnvironment(environment);
  anew.startDetached();
}

}  // namespace

void ProgramWindows::EventFired(Control& control, const Event& event) {
  DesktopWindows::EventFired(control, event);
  if (eventComes) eventComes(control, event);
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
  machine.boxes.tellFault = [this](int number) { return TellFault(number); };
  machine.notices.told = [this](Notice notice) { stage.notices.Add(std::move(notice)); };
  machine.registry.troubled = [this](const SettingsTrouble& trouble) {
    settingsTrouble_ = trouble;
    machine.notices.Tell(SettingsNotice(trouble));
  };
  machine.registry.Check();
  program = AssembleProgram(machine.machine);
  const auto runEvent = [this](const std::function<void()>& event) { stage.input.Run(event); };
  kept_ = std::make_unique<KeptPlans>(*program, keepFolder_, runEvent, TakeWantedPlan());
  netLooks = [this] { kept_->EventEnded(); };
  windows.eventComes = [this](const Control& control, const Event& event) { HearEvent(control, event); };
  stage.input.afterEvent = [this, settle = std::exchange(stage.input.afterEvent, {})] {
    settle();
    LayOutForPlan();
    if (netLooks) netLooks();
  };
  startAgain = StartAnew;
  stage.input.Serve(program.get());
  stage.input.ended = [] { QCoreApplication::exit(); };
  stage.fileDropped = [this](const std::string& path) {
    stage.input.Do([&] { return OpenDroppedFile(*program, path); });
  };
  stage.helpAsked = [this](std::string_view section) { ShowGuide(section); };
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &listener_,
                   [this](QSessionManager& session) { CommitSession(session); });
}

void DesktopProgram::HearEvent(const Control& control, const Event& event) {
  const Workspace& workspace = program->workspace;
  const Form3& form3 = program->form3;
  inBox_ = control.kind == ControlKind::TextBox;
  if (&event == &program->form2.QueryUnload) kept_->Closing();
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
  stage.input.Run([this] { program->form2.Resize(); });
}

/// The chooser has come up with nothing to choose.
void DesktopProgram::TellMissingLists() {
  const bool japanese = program->workspace.Language == kJapanese;
  machine.boxes.Message(BoxIcon::Information, "",
                        (japanese ? kNoListsJapanese : kNoLists) + program->workspace.ListPath,
                        BoxButtons::Ok);
}

void DesktopProgram::ShowGuide(std::string_view section) {
  const QString guide = GuideFolder(QCoreApplication::applicationDirPath());
  if (OpenGuide(guide, SpeaksJapanese(program->workspace), section)) return;
  machine.notices.Tell({Severity::Failure, {kNoGuide, kNoGuideJapanese}});
}

DesktopProgram::~DesktopProgram() {
  stage.input.Serve(nullptr);
  kept_.reset();
  windows.Forget();
  windows.Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// From the registry itself, as there is no program yet.
void DesktopProgram::TakeStoredZoom() {
  const auto stored = machine.registry.Read(RegistryRoot::CurrentUser, kSettingsKey, kZoomValue);
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
  Store(*program, kZoomValue, ShortestText(stage.zoom.Factor() * kPercent));
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
  stage.input.Run([this] { CloseUnasked(); });
  // Also from the box of a fault that has ended the program already.
  QCoreApplication::exit();
}

void DesktopProgram::LeaveTidy() {
  try {
    RunEvent(*program, [this] { CloseUnasked(); });
  } catch (const EndOfProgram&) {
    // Nobody goes on with the event around this one.
  }
  kept_->End();
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
  kept_->End();
  GoOnAnew();
  return program->endFault == 0 ? 0 : 1;
}

}  // namespace veldrin
