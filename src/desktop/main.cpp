// veldrin [FILE]: the program on the desktop. FILE is a machine list or a plan.
#include "desktop/desktop_program.h"
#include "desktop/windows/look.h"
#include "machine/files/real_program_folder.h"
#include "machine/real_command_line.h"
#include "machine/real_display.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

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

/// The last that is done before Qt ends the process.
void LeaveTidy() {
  if (running != nullptr) std::exchange(running, nullptr)->LeaveTidy();
}

/// Qt's own words for a display that cannot be opened are many; one line does, and no core is left. Where the
/// display goes away Qt ends the process: it is the last that is heard of it.
void TellWithoutCore(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtFatalMsg) {
    LeaveTidy();
    std::fprintf(stderr, "veldrin: %s\n", qPrintable(veldrin::FatalText(message)));
    std::_Exit(EXIT_FAILURE);
  }
  if (running != nullptr && veldrin::TellsLostDisplay(message)) {
    LeaveTidy();
    std::fprintf(stderr, "veldrin: the display is gone; what was not saved is kept for the next start\n");
    // Nobody would see a window of the program any more, should it live on.
    QCoreApplication::exit(EXIT_FAILURE);
    return;
  }
  if (type == QtCriticalMsg) std::fprintf(stderr, "veldrin: %s\n", qPrintable(message));
}

#ifdef _WIN32
/// A program with windows has no console: its words go to the one that it was started from, unless they are
/// sent elsewhere.
void SpeakOnConsole() {
  const bool unheard = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) == FILE_TYPE_UNKNOWN;
  if (!unheard || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
  for (std::FILE* stream : {stdout, stderr}) {
    if (std::freopen("CONOUT$", "w", stream) == nullptr) return;
  }
}
#else
void SpeakOnConsole() {}
#endif

}  // namespace

int main(int count, char** arguments) {
  SpeakOnConsole();
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
  const std::optional<std::string> path = veldrin::PathOfWords(words);
  if (!path) {
    std::fputs(kHelp, stderr);
    return EXIT_FAILURE;
  }
  std::error_code failure;
  std::filesystem::current_path(veldrin::ProgramFolder(), failure);
  veldrin::DesktopProgram program;
  running = &program;
  const int status = program.Run(*path);
  running = nullptr;
  return status;
}
