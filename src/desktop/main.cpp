// veldrin [FILE]: the program on the desktop. FILE is a machine list or a plan.
#include "desktop/desktop_program.h"
#include "desktop/look.h"
#include "desktop/real_program_folder.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr char kHelp[] =
    "usage: veldrin [FILE]\n"
    "\n"
    "Chooses the gearing of a motorcycle. FILE is a machine list (.RAT) or a plan of one of its machines.\n"
    "\n"
    "  --help     shows this text\n"
    "  --version  shows the version\n"
    "\n"
    "VELDRIN_HOME names the program's folder, with LIST and DAT in it.\n";

/// Qt's own words for a display that cannot be opened are many; one line does, and no core is left.
void TellWithoutCore(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "veldrin: the display cannot be opened; DISPLAY or WAYLAND_DISPLAY must name one\n");
    std::_Exit(EXIT_FAILURE);
  }
  if (type == QtCriticalMsg) std::fprintf(stderr, "veldrin: %s\n", qPrintable(message));
}

/// The path as the program takes it, whole: the program goes into its own folder before it reads it.
std::string WholePath(const QString& argument) {
  return QDir::toNativeSeparators(QFileInfo(argument).absoluteFilePath()).toStdString();
}

}  // namespace

int main(int count, char** arguments) {
  const std::string first = count > 1 ? arguments[1] : "";
  if (first == "--help" || first == "-h") {
    std::fputs(kHelp, stdout);
    return EXIT_SUCCESS;
  }
  if (first == "--version") {
    std::printf("veldrin %s\n", VELDRIN_VERSION);
    return EXIT_SUCCESS;
  }
  qInstallMessageHandler(TellWithoutCore);
  QApplication application(count, arguments);
  veldrin::SetUpLook(application);
  const QStringList rest = QApplication::arguments().mid(1);
  if (rest.size() > 1) {
    std::fputs(kHelp, stderr);
    return EXIT_FAILURE;
  }
  const std::string path = rest.empty() ? "" : WholePath(rest.first());
  QDir::setCurrent(veldrin::ProgramFolder());
  veldrin::DesktopProgram program;
  return program.Run(path);
}
