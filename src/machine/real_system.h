// What the program only reads of the system: its international profile, variables, screen, memory and disk.
#pragma once

#include "platform/screen.h"
#include "platform/system.h"

#include <QLocale>
#include <QString>

#include <istream>
#include <string>

namespace veldrin {

/// The country's number in the profile: 81 where the locale's territory is Japan, else 1; on Windows what the
/// user has set.
class RealProfile : public Profile {
 public:
  explicit RealProfile(const QLocale& locale = QLocale::system()) : locale_(locale) {}

  /// Entries are found without regard to case. Separators are told only where one byte holds them.
  std::optional<std::string> International(const std::string& entry) const override;

 private:
  QLocale locale_;
};

/// Whether the profile's country is Japan.
bool IsJapanese(const Profile& profile);

struct RealEnvironment : Environment {
  /// "TEMP" is the system's folder for such files where no variable names a folder; it never ends with a
  /// separator, save for a root.
  std::string Variable(const std::string& name) const override;
};

/// The primary screen.
class RealScreen : public Screen {
 public:
  /// How many logical pixels 15 twips are; the one who paints the windows sets it.
  double zoom = 1;

  float Width() const override;
  float Height() const override;
  int PixelsAcross() const override;
  int PixelsDown() const override;
};

/// Total and available memory from a list as Linux keeps it in /proc/meminfo; zeros for what it does not
/// tell.
MemoryFigures ReadMemoryFigures(std::istream& list);

struct RealFigures : Figures {
  MemoryFigures Memory() const override;
  /// Where there are no drive letters, "C:\" stands for the root. Never tells of a drive without clusters.
  DiskFigures Disk(const std::string& root) const override;
};

}  // namespace veldrin
