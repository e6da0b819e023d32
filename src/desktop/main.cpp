// veldrin [FILE]: the program on the desktop. FILE is a machine list or a plan.
#include "desktop/desktop_program.h"
#include "desktop/look.h"
#include "desktop/real_command_line.h"
#include "desktop/real_display.h"
#include "desktop/real_program_folder.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

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

/// The program that is running; Qt's messages come without saying whose they are.
veldrin::DesktopProgram* running = nullptr;

/// Qt's own words for a display that cannot be opened are many; one line does, and no core is left. Where the
/// display goes away Qt ends the process: it is the last that is heard of it.
void TellWithoutCore(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "veldrin: the display cannot be opened; DISPLAY or WAYLAND_DISPLAY must name one\n");
    std::_Exit(EXIT_FAILURE);
  }
  if (running != nullptr && veldrin::TellsLostDisplay(message)) {
    std::exchange(running, nullptr)->LeaveTidy();
    std::fprintf(stderr, "veldrin: the display is gone; what was not saved is lost\n");
    return;
  }
  if (type == QtCriticalMsg) std::fprintf(stderr, "veldrin: %s\n", qPrintable(message));
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
  const std::vector<std::string> words = veldrin::CommandLineWords(count, arguments);
  if (words.size() > 1) {
    std::fputs(kHelp, stderr);
    return EXIT_FAILURE;
  }
  const std::string path = words.empty() ? "" : veldrin::WholePath(words.front());
  std::error_code failure;
  std::filesystem::current_path(veldrin::ProgramFolder(), failure);
  veldrin::DesktopProgram program;
  running = &program;
  const int status = program.Run(path);
  running = nullptr;
  return status;
}
