#include "workspace/settings.h"

#include "model/decimal.h"
#include "model/setting_names.h"
#include "platform/paths.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "workspace/stored_values.h"

#include <algorithm>
#include <charconv>

namespace veldrin {

namespace {

constexpr std::size_t kReadLimit = 1024;  // bytes of a stored text
constexpr char kOlderSettingsFile[] = "VELDRIN.INI";
constexpr char kDefaultSeparator[] = ".";

/// `text` without its bytes from `limit` on; a character that the limit cuts goes as a whole.
std::string CutBytes(std::string text, std::size_t limit) {
  if (text.size() <= limit) return text;
  while (limit > 0 && (static_cast<unsigned char>(text[limit]) & 0xC0) == 0x80) --limit;
  text.resize(limit);
  return text;
}

/// One character of the profile.
std::string Separator(const Program& program, const char* entry) {
  const std::string text = program.machine.profile.International(entry).value_or("");
  return text.empty() ? kDefaultSeparator : Left(text, 1);
}

// ---- Migration ----

/// What the older settings file's text has to be.
enum class Rule { Anything, UpperCased, Int16, Int32 };

struct MigratedKey {
  const char* key;
  const char* value;
  Rule rule;
};

/// The keys besides those of the running conditions.

// clang-format off
constexpr MigratedKey kMigratedKeys[] = {
    {"LIST_FILE",   kListFileValue,   Rule::Anything},
    {"LIST_PATH",   kListPathValue,   Rule::Anything},
    {"DATA_PATH",   kDataPathValue,   Rule::Anything},
    {"HISTORY",     kHistoryMaxValue, Rule::Int16},
    {"QUICKQUIT",   kQuickQuitValue,  Rule::UpperCased},
    {"FONT",        kPrintFontValue,  Rule::Anything},
    {"LANGUAGE",    kLanguageValue,   Rule::UpperCased},
    {"SEPARATE_34", kSeparate34Value, Rule::Anything},
    {"1st",         kColourValues[0], Rule::Int32},
    {"2nd",         kColourValues[1], Rule::Int32},
    {"3rd",         kColourValues[2], Rule::Int32},
    {"4th",         kColourValues[3], Rule::Int32},
    {"5th",         kColourValues[4], Rule::Int32},
    {"6th",         kColourValues[5], Rule::Int32},
};
// clang-format on

/// `text` as it goes into the store, or nothing when it is none of the numbers that the key takes.
std::optional<std::string> AcceptedCondition(const Workspace& workspace, const Condition& condition,
                                             const std::string& text) {
  double number = 0;
  const int fault = Guarded(
      [&] { number = condition.whole ? SystemInt16(workspace, text) : RepairedSingle(workspace, text); });
  if (fault != 0 || !condition.limits.Holds(number)) return std::nullopt;
  return condition.whole ? text : FixDecimal(workspace, text);
}

/// The same for a key that has no limits.
std::optional<std::string> Accepted(const Workspace& workspace, Rule rule, const std::string& text) {
  if (rule == Rule::Anything) return text;
  if (rule == Rule::UpperCased) return UpperCase(text);
  const int fault = Guarded([&] {
    if (rule == Rule::Int16) SystemInt16(workspace, text);
    if (rule == Rule::Int32) SystemInt32(workspace, text);
  });
  if (fault != 0) return std::nullopt;
  return text;
}

void MigrateOlderSettings(Program& program, const std::string& path) {
  program.files.OpenInput(Handle::OlderSettings, path);
  TextReader& reader = program.files.Reader(Handle::OlderSettings);
  while (!reader.AtEnd()) {
    const std::optional<StoredValue> stored = MigrateLine(program.workspace, reader.Line());
    if (stored) Store(program, stored->value, stored->text);
  }
  program.files.Close(Handle::OlderSettings);
  // One that refuses to go stays: only a first run looks for it.
  Guarded([&] { program.machine.files.Delete(path); });
}

void RegisterFileType(Program& program) {
  const std::string type = kFileTypeKey;
  const std::string executable =
      JoinPath(program.machine.files.Rules(), program.workspace.AppPath, "veldrin.exe");
  const auto write = [&](const std::string& key, const std::string& text) {
    WriteSetting(program, RegistryRoot::ClassesRoot, key, kDefaultValue, text);
  };
  write(type, "「べるどりん君」ﾌｧｲﾙ");
  write(type + "\\DefaultIcon", executable + ",1");
  write(type + "\\Shell\\open", "「べるどりん君」で開く");
  write(type + "\\Shell\\open\\command", executable + " %1");
}

}  // namespace

std::string ReadSetting(const Program& program, RegistryRoot root, const std::string& key,
                        const std::string& value) {
  std::string text = CutBytes(program.machine.registry.Read(root, key, value).value_or(""), kReadLimit);
  text.resize(std::min(text.find('\0'), text.size()));
  return text;
}

bool WriteSetting(Program& program, RegistryRoot root, const std::string& key, const std::string& value,
                  const std::string& text) {
  return program.machine.registry.Write(root, key, value, text);
}

std::string Stored(const Program& program, const std::string& value) {
  return Stored(program, kSettingsKey, value);
}

std::string Stored(const Program& program, const std::string& key, const std::string& value) {
  return ReadSetting(program, RegistryRoot::CurrentUser, key, value);
}

void Store(Program& program, const std::string& value, const std::string& text) {
  Store(program, kSettingsKey, value, text);
}

void Store(Program& program, const std::string& key, const std::string& value, const std::string& text) {
  WriteSetting(program, RegistryRoot::CurrentUser, key, value, text);
}

std::string ColourValue(int gear) {
  return kColourValues[gear - 1];
}

std::string ExtensionKey(const std::string& slot) {
  return std::string(kSettingsKey) + "\\Ext\\" + slot;
}

bool DeleteKey(Program& program, RegistryRoot root, const std::string& key) {
  return program.machine.registry.DeleteKey(root, key);
}

int CountryCode(const Program& program, int absent) {
  const std::string text = Trim(program.machine.profile.International("iCountry").value_or(""));
  if (text.empty()) return absent;
  int code = 0;
  std::from_chars(text.data(), text.data() + text.size(), code);
  return code;
}

void ReadRegionalValues(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.DecimalSep = Separator(program, "sDecimal");
  workspace.ThousandSep = Separator(program, "sThousand");
  workspace.PrintFontBold = false;
  workspace.PrintFontItalic = false;
}

bool ReadAppPath(Program& program) {
  program.workspace.AppPath = Stored(program, kAppPathValue);
  return program.workspace.AppPath.empty();
}

void CreateSettings(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.AppPath = program.machine.files.CurrentFolder();
  Store(program, kAppPathValue, workspace.AppPath);
  Store(program, kExtensionCountValue, "0");
  RegisterFileType(program);
  const std::string older = JoinPath(program.machine.files.Rules(), workspace.AppPath, kOlderSettingsFile);
  // A file that cannot be read leaves the defaults.
  if (program.machine.files.FileExists(older)) Guarded([&] { MigrateOlderSettings(program, older); });
}

std::optional<StoredValue> MigrateLine(const Workspace& workspace, const std::string& line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return std::nullopt;
  const std::string key = line.substr(0, equals);
  const std::string text = line.substr(equals + 1);
  const auto stored = [](const char* value,
                         const std::optional<std::string>& accepted) -> std::optional<StoredValue> {
    if (!accepted) return std::nullopt;
    return StoredValue{value, *accepted};
  };
  for (const Condition& condition : kConditions) {
    if (key == condition.key) return stored(condition.setting, AcceptedCondition(workspace, condition, text));
  }
  for (const MigratedKey& migrated : kMigratedKeys) {
    if (key == migrated.key) return stored(migrated.value, Accepted(workspace, migrated.rule, text));
  }
  return std::nullopt;
}

void ReadSettings(Program& program) {
  Workspace& workspace = program.workspace;
  const PathRules rules = program.machine.files.Rules();
  workspace.TyreLength = StoredSingle(program, kTyreLengthValue, kDefaultTyreLength);
  workspace.CheckNe = StoredInt16(program, kCheckNeValue, kDefaultCheckNe);
  workspace.ShiftNe = StoredInt16(program, kShiftNeValue, kDefaultShiftNe);
  workspace.MaxSpeed = StoredInt16(program, kMaxSpeedValue, kDefaultMaxSpeed);
  workspace.MaxNe = StoredInt16(program, kMaxNeValue, kDefaultMaxNe);
  workspace.ListFile = StoredText(program, kListFileValue, "NX4.RAT");
  workspace.ListPath = StoredText(program, kListPathValue, JoinPath(rules, workspace.AppPath, "LIST"));
  workspace.DataPath = StoredText(program, kDataPathValue, JoinPath(rules, workspace.AppPath, "DAT"));
  workspace.HistoryMax = StoredInt16(program, kHistoryMaxValue, kDefaultHistoryMax);
  workspace.MinPlan = StoredInt16(program, kMinPlanValue, 1);
  workspace.QuickQuit = StoredText(program, kQuickQuitValue, kNoWord);
  workspace.Language = StoredText(program, kLanguageValue, kJapanese);
  workspace.PrintFont = StoredText(program, kPrintFontValue, "ＭＳ ゴシック");
  workspace.Separate34 = StoredText(program, kSeparate34Value, "nv0");
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.GearColour[gear] = StoredColour(program, ColourValue(gear), DesignedGearColour(gear));
  }
  workspace.InitialDataPath = workspace.DataPath;
  if (CountryCode(program, 0) != kJapan) {
    workspace.PrintFont = "Arial";
    workspace.Language = kEnglish;
  }
}

}  // namespace veldrin
