#include "machine/real_system.h"

#include "machine/runtime_folder.h"
#include "runtime/text.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QStorageInfo>

#include <algorithm>
#include <cmath>
#include <fstream>

#ifdef _WIN32
#include <windows.h>
#elif defined(__linux__)
#include <sys/sysinfo.h>
#endif

namespace veldrin {

namespace {

constexpr char kJapansNumber[] = "81";
constexpr char kOtherNumber[] = "1";
constexpr std::int64_t kSectorSize = 512;    // bytes
constexpr std::int64_t kClusterSize = 4096;  // bytes, where the system tells none

std::string CountryNumber(const QLocale& locale) {
#ifdef _WIN32
  wchar_t number[16] = {};
  if (GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICOUNTRY, number, 16) > 0) {
    return QString::fromWCharArray(number).toStdString();
  }
#endif
  return locale.territory() == QLocale::Japan ? kJapansNumber : kOtherNumber;
}

/// The program works with separators of one byte; others it could not tell from its digits.
std::optional<std::string> OneByte(const QString& separator) {
  if (separator.size() != 1 || separator[0].unicode() >= 0x80) return std::nullopt;
  return separator.toStdString();
}

/// A folder as the program joins names to it.
std::string FolderText(const QString& folder) {
  return QDir::toNativeSeparators(QDir::cleanPath(folder)).toStdString();
}

/// The folder that "TEMP" names, or what the system has in its place. The system's is often shared by all its
/// users, while names of working files tell only the copies of one user apart; so the session's comes first.
QString TemporaryFolder(const QString& named) {
  if (QFileInfo(named).isDir()) return named;
  const QString session = qEnvironmentVariableIsSet("TMPDIR") ? QString() : UsersRuntimeFolder();
  return session.isEmpty() ? QDir::tempPath() : session;
}

float Twips(int pixels, double zoom) {
  return static_cast<float>(pixels * kTwipsPerPixel / zoom);
}

/// In logical pixels, each of `sharpness` pixels of the screen.
struct ScreenFigures {
  QSize size{1024, 768};
  double sharpness = 1;
};

ScreenFigures PrimaryScreen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return {screen->size(), screen->devicePixelRatio()};
}

/// Logical pixels are rounded; screens have an even number of their own.
int OwnPixels(int logical, double sharpness) {
  const double exact = logical * sharpness;
  const bool whole = sharpness == std::floor(sharpness);
  return static_cast<int>(whole ? std::lround(exact) : 2 * std::lround(exact / 2));
}

}  // namespace

std::optional<std::string> RealProfile::International(const std::string& entry) const {
  if (EqualsIgnoringCase(entry, "iCountry")) return CountryNumber(locale_);
  if (EqualsIgnoringCase(entry, "sDecimal")) return OneByte(locale_.decimalPoint());
  if (EqualsIgnoringCase(entry, "sThousand")) return OneByte(locale_.groupSeparator());
  return std::nullopt;
}

bool IsJapanese(const Profile& profile) {
  return profile.International("iCountry") == kJapansNumber;
}

std::string RealEnvironment::Variable(const std::string& name) const {
  const QString value = qEnvironmentVariable(name.c_str());
  if (!EqualsIgnoringCase(name, "TEMP")) return value.toStdString();
  return FolderText(TemporaryFolder(value));
}

float RealScreen::Width() const {
  return Twips(PrimaryScreen().size.width(), zoom);
}

float RealScreen::Height() const {
  return Twips(PrimaryScreen().size.height(), zoom);
}

int RealScreen::PixelsAcross() const {
  const ScreenFigures screen = PrimaryScreen();
  return OwnPixels(screen.size.width(), screen.sharpness);
}

int RealScreen::PixelsDown() const {
  const ScreenFigures screen = PrimaryScreen();
  return OwnPixels(screen.size.height(), screen.sharpness);
}

MemoryFigures ReadMemoryFigures(std::istream& list) {
  MemoryFigures figures{0, 0};
  std::string name;
  std::int64_t kilobytes = 0;
  for (std::string rest; list >> name >> kilobytes; std::getline(list, rest)) {
    if (name == "MemTotal:") figures.total = kilobytes * 1024;
    if (name == "MemAvailable:") figures.available = kilobytes * 1024;
  }
  return figures;
}

MemoryFigures RealFigures::Memory() const {
#ifdef _WIN32
  MEMORYSTATUSEX status = {};
  status.dwLength = sizeof status;
  GlobalMemoryStatusEx(&status);
  MemoryFigures figures{static_cast<std::int64_t>(status.ullTotalPhys),
                        static_cast<std::int64_t>(status.ullAvailPhys)};
#else
  std::ifstream list("/proc/meminfo");
  MemoryFigures figures = ReadMemoryFigures(list);
#ifdef __linux__
  struct sysinfo status = {};
  if (figures.total == 0 && sysinfo(&status) == 0) {
    figures.total = static_cast<std::int64_t>(status.totalram) * status.mem_unit;
    figures.available = static_cast<std::int64_t>(status.freeram) * status.mem_unit;
  }
#endif
#endif
  // A share of nothing would be a fault.
  figures.total = std::max<std::int64_t>(figures.total, 1);
  return figures;
}

DiskFigures RealFigures::Disk(const std::string& root) const {
#ifdef _WIN32
  const QStorageInfo disk(QDir::fromNativeSeparators(QString::fromStdString(root)));
#else
  const bool letter = root.size() >= 2 && root[1] == ':';
  const QStorageInfo disk(letter ? QDir::rootPath() : QString::fromStdString(root));
#endif
  const std::int64_t cluster = disk.blockSize() < kSectorSize ? kClusterSize : disk.blockSize();
  return {cluster / kSectorSize, kSectorSize, std::max<std::int64_t>(disk.bytesAvailable(), 0) / cluster,
          std::max<std::int64_t>(disk.bytesTotal() / cluster, 1)};
}

}  // namespace veldrin
