#include "machine/registry/real_windows_registry.h"

#ifdef _WIN32

#include "machine/files/real_fault.h"
#include "runtime/text.h"

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
  std::vector<wchar_t> text(size / sizeof(wchar_t) + 1, L'\0');
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

}  // namespace

std::optional<std::string> WindowsRegistry::Read(RegistryRoot root, const std::string& key,
                                                 const std::string& value) const {
  std::optional<std::string> text = ReadValue(ReadPlace(root, key), value);
  if (!text && root == RegistryRoot::LocalMachine && EqualsIgnoringCase(value, "CPU")) {
    text = ReadValue(ReadPlace(root, kProcessorKey), "ProcessorNameString");
  }
  return text;
}

bool WindowsRegistry::Write(RegistryRoot root, const std::string& key, const std::string& value,
                            const std::string& text) {
  if (root == RegistryRoot::LocalMachine) return false;
  const Place place = WritePlace(root, key);
  const LSTATUS status = WriteValue(place, value, text);
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
