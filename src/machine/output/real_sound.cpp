#include "machine/output/real_sound.h"

#include "machine/files/real_path.h"
#include "runtime/fault.h"

#include <QApplication>

#ifdef _WIN32
#include <QLibrary>

#include <windows.h>
#else
#include <QProcess>
#include <QStandardPaths>
#endif

namespace veldrin {

namespace {

#ifdef _WIN32

void PlayFile(const std::filesystem::path& file) {
  constexpr DWORD kAtOnce = 0x0001;        // SND_ASYNC
  constexpr DWORD kNothingElse = 0x0002;   // SND_NODEFAULT
  constexpr DWORD kFromFile = 0x00020000;  // SND_FILENAME
  using PlaySoundFunction = BOOL(WINAPI*)(LPCWSTR, HMODULE, DWORD);
  // Resolved here, the program needs no library of its own for it.
  static const auto kPlaySound =
      reinterpret_cast<PlaySoundFunction>(QLibrary::resolve("winmm", "PlaySoundW"));
  if (kPlaySound != nullptr) kPlaySound(file.c_str(), nullptr, kAtOnce | kNothingElse | kFromFile);
}

#else

/// The first player that is installed.
struct Player {
  QString program;
  QStringList arguments;
};

Player FindPlayer() {
  const Player known[] = {{"paplay", {}}, {"pw-play", {}}, {"aplay", {"-q"}}, {"afplay", {}}};
  for (const Player& player : known) {
    const QString found = QStandardPaths::findExecutable(player.program);
    if (!found.isEmpty()) return {found, player.arguments};
  }
  return {};
}

void PlayFile(const std::filesystem::path& file) {
  const Player player = FindPlayer();
  if (player.program.isEmpty()) return;
  QProcess process;
  process.setProgram(player.program);
  process.setArguments(player.arguments + QStringList(PathString(file)));
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.startDetached();
}

#endif

}  // namespace

void RealSound::Beep() {
  QApplication::beep();
}

void RealSound::Play(const std::string& path) {
  if (!files_->FileExists(path)) return;
  Guarded([&] { PlayFile(PathOnDisk(path)); });
}

}  // namespace veldrin
