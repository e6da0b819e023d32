// bench-desktop: what the program costs beside an empty window of Qt, in one run: the time to the first
// painted main window, the memory at that moment, and a step of a spin button with all that it computes and
// repaints. Each start is a process of its own; the best of several counts. QT_QPA_PLATFORM=offscreen needs
// no display.
#include "desktop/desktop_program.h"
#include "desktop/windows/look.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStarts = 7;
constexpr int kSteps = 200;
constexpr int kRounds = 15;
constexpr double kSplash = 100;  // ms that the splash window stays by rule
constexpr double kFrame = 1000.0 / 60;
constexpr char kShare[] = VELDRIN_SHARE;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Memory that the process holds, in KiB; 0 where the system does not tell.
long Memory() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).simplified().split(' ').first().toLong();
  }
  return 0;
}

/// Calls `done` once, when the widget has been painted for the first time.
class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget& widget, std::function<void()> done) : QObject(&widget), done_(std::move(done)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* widget, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      widget->removeEventFilter(this);
      QTimer::singleShot(0, qApp, done_);
    }
    return false;
  }

 private:
  std::function<void()> done_;
};

/// What a started process tells: milliseconds and KiB at the first painted window, milliseconds of a step,
/// and of one without the net that keeps unsaved plans.
struct Told {
  double painted = 1e9;
  long memory = 0;
  double step = 1e9;
  double netless = 1e9;
};

void Tell(const Told& told) {
  std::printf("%.3f %ld %.5f %.5f\n", told.painted, told.memory, told.step, told.netless);
}

/// Repeats a step with what it leaves to be painted; the milliseconds of processor time of one, all threads
/// together, so that what else the machine does counts less.
double TimeOf(const std::function<void(int)>& step) {
  const std::clock_t begin = std::clock();
  for (int i = 0; i < kSteps; ++i) {
    step(i);
    QCoreApplication::processEvents();
  }
  return static_cast<double>(std::clock() - begin) * 1000 / CLOCKS_PER_SEC / kSteps;
}

int RunEmpty(Clock::time_point start) {
  QWidget window;
  window.resize(640, 466);
  new FirstPaint(window, [&] {
    const double painted = MillisecondsSince(start);
    const long memory = Memory();
    const double step = TimeOf([&](int) { window.update(); });
    Tell({painted, memory, step, step});
    QCoreApplication::exit();
  });
  window.show();
  return QApplication::exec();
}

int RunProgram(QApplication& application, Clock::time_point start) {
  veldrin::SetUpLook(application);
  QDir::setCurrent(qEnvironmentVariable("VELDRIN_HOME"));
  veldrin::DesktopProgram desktop;
  desktop.stage.zoom.Set(1);
  veldrin::Form2& form2 = desktop.program->form2;
  const auto measure = [&] {
    Told told;
    told.painted = MillisecondsSince(start);
    told.memory = Memory();
    auto& input = desktop.stage.input;
    input.Do([&] { return veldrin::user::Click(form2.Command2); });
    QCoreApplication::processEvents();
    const auto step = [&](int i) {
      input.Do([&] { return veldrin::user::Spin(form2.Spin6[5], i % 2 == 0); });
    };
    // In turn, so that both see the same load.
    for (int round = 0; round < kRounds; ++round) {
      told.step = std::min(told.step, TimeOf(step));
      const auto net = std::exchange(desktop.netLooks, nullptr);
      told.netless = std::min(told.netless, TimeOf(step));
      desktop.netLooks = net;
    }
    Tell(told);
    std::fflush(stdout);
    QCoreApplication::exit();
  };
  // The main window comes with the splash window's timer.
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, qApp, [&] {
    veldrin::FormWidget* const form = desktop.windows.FormOf(form2);
    if (form == nullptr) return;
    look.stop();
    new FirstPaint(form->Client(), measure);
  });
  look.start(1);
  return desktop.Run("");
}

/// A folder in memory, as sessions have one for their locks; where there is none, the one for temporary
/// files.
QString MemoryDisk() {
  const QString disk = "/dev/shm";
  return QDir(disk).exists() ? disk : QDir::tempPath();
}

/// Starts one kind of window, with settings in a folder, and reads what it tells.
Told Start(const QString& kind, const QString& home) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    environment.insert(name, home);
  }
  const QTemporaryDir session(MemoryDisk() + "/veldrin-bench-XXXXXX");
  environment.insert("XDG_RUNTIME_DIR", session.path());
  environment.insert("VELDRIN_HOME", kShare);
  process.setProcessEnvironment(environment);
  const auto now = Clock::now().time_since_epoch().count();
  process.start(QCoreApplication::applicationFilePath(), {kind, QString::number(now)});
  Told told;
  if (!process.waitForFinished()) return told;
  const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
  if (words.size() == 4) {
    told = {words[0].toDouble(), words[1].toLong(), words[2].toDouble(), words[3].toDouble()};
  }
  return told;
}

void Report(const char* what, const char* unit, double program, double empty) {
  std::printf("%-30s %7.1f %s, empty window %7.1f %s, ratio %.2f\n", what, program, unit, empty, unit,
              program / empty);
}

void TakeBest(Told& best, const Told& told) {
  best.painted = std::min(best.painted, told.painted);
  best.step = std::min(best.step, told.step);
  best.netless = std::min(best.netless, told.netless);
  best.memory = told.memory;
}

/// The best of several starts, in turn, so that all see the same load: the empty window, and the program
/// without settings and then with them.
struct Starts {
  Told empty;
  Told first;
  Told later;
};

Starts Measure(const QString& homes) {
  Starts starts;
  for (int i = 0; i < kStarts; ++i) {
    const QTemporaryDir home(homes + "/veldrin-bench-XXXXXX");
    TakeBest(starts.empty, Start("empty", home.path()));
    TakeBest(starts.first, Start("program", home.path()));
    TakeBest(starts.later, Start("program", home.path()));
  }
  return starts;
}

void ReportStart(const char* what, const Told& program, const Told& empty) {
  Report(what, "ms", program.painted, empty.painted + kSplash);
  Report("  without the splash", "ms", program.painted - kSplash, empty.painted);
}

int Compare() {
  const Starts quick = Measure(MemoryDisk());
  std::puts("To the first painted main window; the empty window is given the time of the splash as well");
  ReportStart("start", quick.later, quick.empty);
  ReportStart("first start, without settings", quick.first, quick.empty);
  const Starts onDisk = Measure(QDir::tempPath());
  ReportStart("start, settings on disk", onDisk.later, onDisk.empty);
  ReportStart("first start, settings on disk", onDisk.first, onDisk.empty);
  Report("memory", "MiB", static_cast<double>(quick.later.memory) / 1024,
         static_cast<double>(quick.empty.memory) / 1024);
  const double step = quick.later.step;
  std::printf("%-30s %7.2f ms, a frame of 60 Hz %7.2f ms, ratio %.3f\n", "spin step with its repaint", step,
              kFrame, step / kFrame);
  std::printf("%-30s %7.4f ms, without the net  %7.4f ms, ratio %.3f\n", "spin step with its repaint", step,
              quick.later.netless, step / quick.later.netless);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string kind = count > 2 ? arguments[1] : "";
  if (kind.empty()) {
    const QCoreApplication application(count, arguments);
    return Compare();
  }
  const Clock::time_point start{Clock::duration(std::stoll(arguments[2]))};
  QApplication application(count, arguments);
  return kind == "empty" ? RunEmpty(start) : RunProgram(application, start);
}
