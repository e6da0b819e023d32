// The settings store: the texts of one registry key, their defaults, the first run with the migration of the
// older settings file, and the system's regional values.
//
// At start, in this order: ReadRegionalValues (the migration repairs separators by them), ReadAppPath, on a
// first run CreateSettings, then ReadSettings. The history and the main window's place are kept elsewhere.
#pragma once

#include "workspace/program.h"

#include <optional>
#include <string>

namespace veldrin {

/// The key of all settings below the current user. The names of its values stand in model/setting_names.h.
inline constexpr char kSettingsKey[] = "Software\\Tarn Ridge\\Veldrin";

/// The name of a key's default value.
inline constexpr char kDefaultValue[] = "";

/// The key below `kSettingsKey` that holds an extension's name and history; the slot is its number, or "Sub"
/// for a machine without one.
std::string ExtensionKey(const std::string& slot);

/// The value that holds the colour of gear 1..6.
std::string ColourValue(int gear);

/// The file type's key below the classes root.
inline constexpr char kFileTypeKey[] = "Veldrin.file";

/// The country code of Japan in the system's profile.
inline constexpr int kJapan = 81;

/// The text of a value: at most 1024 bytes (whole characters), cut at its first zero character; empty when
/// the key or the value is missing. Raises nothing.
std::string ReadSetting(const Program& program, RegistryRoot root, const std::string& key,
                        const std::string& value);

/// Writes a text, making the key if needed. True on success. Raises nothing.
bool WriteSetting(Program& program, RegistryRoot root, const std::string& key, const std::string& value,
                  const std::string& text);

/// Reads and writes a value of the current user, of `kSettingsKey` where no key is named. Failing writes go
/// unnoticed. Raises nothing.
std::string Stored(const Program& program, const std::string& value);
std::string Stored(const Program& program, const std::string& key, const std::string& value);
void Store(Program& program, const std::string& value, const std::string& text);
void Store(Program& program, const std::string& key, const std::string& value, const std::string& text);

/// Deletes a key. True on success. Raises nothing.
bool DeleteKey(Program& program, RegistryRoot root, const std::string& key);

/// The profile's country code: the whole number at the beginning of the entry, 0 where none stands there;
/// `absent` when the entry is missing or empty. Raises nothing.
int CountryCode(const Program& program, int absent);

/// Fills `DecimalSep` and `ThousandSep`, one character each, "." when the profile has none, and clears
/// `PrintFontBold` and `PrintFontItalic`. Raises nothing.
/// Kept: a missing thousands separator becomes "." as well.
void ReadRegionalValues(Program& program);

/// Fills `AppPath` from the store. True when it is absent there, which marks the first run. Raises nothing.
bool ReadAppPath(Program& program);

/// The first run: `AppPath` becomes the current folder, the store is begun, the file type registered, and
/// the older settings file in `AppPath` migrated and deleted. Failing writes to the store go unnoticed, and
/// so does an older file that cannot be read or does not go. Raises nothing.
void CreateSettings(Program& program);

/// A value of the store with its text.
struct StoredValue {
  std::string value;
  std::string text;

  friend bool operator==(const StoredValue&, const StoredValue&) = default;
};

/// What a line of the older settings file becomes in the store; nothing for a line without "=", an unknown
/// key, and a number that is none or lies outside its range. Keys are compared exactly, from the line's
/// beginning. Raises nothing.
std::optional<StoredValue> MigrateLine(const Workspace& workspace, const std::string& line);

/// Fills the workspace from the store, the default standing for an absent, empty or zero value; sets
/// `InitialDataPath`; outside Japan `PrintFont` is "Arial" and `Language` "ENGLISH" whatever is stored.
/// Raises fault 13 for a stored number that is none, and 6 for one beyond its width, 16 bits for all but the
/// tyre length and the colours.
void ReadSettings(Program& program);

}  // namespace veldrin
