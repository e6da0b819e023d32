#include "machine/registry/real_windows_registry.h"

#ifdef _WIN32

#include "machine/files/real_fault.h"
#include "machine/registry/real_file_type.h"
#include "platform/disk.h"
#include "runtime/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>

#include <system_error>
#include <utility>
#include <vector>
#include <windows.h>

namespace veldrin {

namespace {

constexpr char kProcessorKey[] = "hardware\\DESCRIPTION\\System\\CentralProcessor\\0";

std::wstring Wide(const std::string& text) {
  return QString::fromStdString(text).toStdWString();
}

struct Place {
  HKEY root;
  std::wstring key;
};

Place ReadPlace(RegistryRoot root, const std::string& key) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return {HKEY_CLASSES_ROOT, Wide(key)};
    case RegistryRoot::LocalMachine:
      return {HKEY_LOCAL_MACHINE, Wide(key)};
    case RegistryRoot::CurrentUser:
      break;
  }
  return {HKEY_CURRENT_USER, Wide(key)};
}

/// The local machine's root is never written.
Place WritePlace(RegistryRoot root, const std::string& key) {
  return {HKEY_CURRENT_USER, Wide(root == RegistryRoot::ClassesRoot ? "Software\\Classes\\" + key : key)};
}

std::optional<std::string> ReadValue(const Place& place, const std::string& value) {
  const std::wstring name = Wide(value);
  constexpr DWORD kStrings = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
  DWORD size = 0;  // bytes
  if (RegGetValueW(place.root, place.key.c_str(), name.c_str(), kStrings, nullptr, nullptr, &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  // Room for the end that a damaged text lacks, and for the other half of its last character.
  std::vector<wchar_t> text(size / sizeof(wchar_t) + 2, L'\0');
  size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  if (RegGetValueW(place.root, place.key.c_str(), name.c_str(), kStrings, nullptr, text.data(), &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  return QString::fromWCharArray(text.data()).toStdString();
}

LSTATUS WriteValue(const Place& place, const std::string& value, const std::string& text) {
  HKEY opened = nullptr;
  const LSTATUS status =
      RegCreateKeyExW(place.root, place.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &opened, nullptr);
  if (status != ERROR_SUCCESS) return status;
  const std::wstring wide = Wide(text);
  const auto size = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
  const LSTATUS written = RegSetValueExW(opened, Wide(value).c_str(), 0, REG_SZ,
                                         reinterpret_cast<const BYTE*>(wide.c_str()), size);
  RegCloseKey(opened);
  return written;
}

/// A value as the user sees it. The user's own classes come first in the root; not every system that runs
/// programs of Windows shows them there.
std::optional<std::string> ReadSeen(RegistryRoot root, const std::string& key, const std::string& value) {
  std::optional<std::string> text;
  if (root == RegistryRoot::ClassesRoot) text = ReadValue(WritePlace(root, key), value);
  return text ? text : ReadValue(ReadPlace(root, key), value);
}

std::string RunningProgram() {
  return QDir::toNativeSeparators(QCoreApplication::applicationFilePath()).toStdString();
}

/// Whether what opens files of the type is a program that is there.
bool HasOpener() {
  const auto command = ReadSeen(RegistryRoot::ClassesRoot, kFileTypeCommand, "");
  const std::string program = ProgramOfCommand(command.value_or(""));
  std::error_code failure;
  return !program.empty() && std::filesystem::is_regular_file(StatusOnDisk(PathOfText(program), failure));
}

}  // namespace

void WindowsRegistry::Check() {
  const auto command = ReadSeen(RegistryRoot::ClassesRoot, kFileTypeCommand, "");
  if (command) TieFileType();
}

void WindowsRegistry::TieFileType() {
  if (HasOpener()) return;
  for (const char* key : {kFileTypeIcon, kFileTypeCommand}) {
    WriteValue(WritePlace(RegistryRoot::ClassesRoot, key), "", FileTypeText(key, "", RunningProgram()));
  }
}

std::optional<std::string> WindowsRegistry::Read(RegistryRoot root, const std::string& key,
                                                 const std::string& value) const {
  std::optional<std::string> text = ReadSeen(root, key, value);
  if (!text && root == RegistryRoot::LocalMachine && EqualsIgnoringCase(value, "CPU")) {
    text = ReadValue(ReadPlace(root, kProcessorKey), "ProcessorNameString");
  }
  return text;
}

bool WindowsRegistry::Write(RegistryRoot root, const std::string& key, const std::string& value,
                            const std::string& text) {
  if (root == RegistryRoot::LocalMachine) return false;
  const bool ofType = root == RegistryRoot::ClassesRoot && value.empty() && BelongsToFileType(key);
  if (ofType && HasOpener()) return true;
  const std::string written = ofType ? FileTypeText(key, text, RunningProgram()) : text;
  const LSTATUS status = WriteValue(WritePlace(root, key), value, written);
  if (status != ERROR_SUCCESS && troubled && !std::exchange(failureTold_, true)) {
    troubled(
        {PlaceOf(key), FaultFor({static_cast<int>(status), std::system_category()}, FileTask::Write), {}});
  }
  return status == ERROR_SUCCESS;
}

bool WindowsRegistry::DeleteKey(RegistryRoot root, const std::string& key) {
  // Without a name everything would go.
  const bool named = key.find_first_not_of('\\') != std::string::npos;
  if (root == RegistryRoot::LocalMachine || !named) return false;
  const Place place = WritePlace(root, key);
  return RegDeleteTreeW(place.root, place.key.c_str()) == ERROR_SUCCESS;
}

}  // namespace veldrin

#endif
