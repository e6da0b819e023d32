// A user of the tests' own. Elsewhere variables name the places for what a program stores, and each test sets
// them; Windows has its registry and its known folders, which are put aside for the whole process.
#pragma once

#ifdef _WIN32

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QString>

#include <string>
#include <windows.h>

namespace veldrin {

class OwnUser {
 public:
  /// A process that a test starts shares its user.
  OwnUser() : isFirst_(!qEnvironmentVariableIsSet(kVariable)) {
    if (isFirst_) qputenv(kVariable, "Software\\Veldrin-Test-" + QByteArray::number(GetCurrentProcessId()));
    name_ = qEnvironmentVariable(kVariable).toStdWString();
    QStandardPaths::setTestModeEnabled(true);
    PutInPlaceOf(HKEY_CURRENT_USER, name_);
    PutInPlaceOf(HKEY_CLASSES_ROOT, L"Software\\Classes");
    if (isFirst_) Forget();
  }
  OwnUser(const OwnUser&) = delete;
  OwnUser& operator=(const OwnUser&) = delete;
  ~OwnUser() {
    if (isFirst_) Forget();
    RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    if (isFirst_) RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
  }

  /// Everything as for a user who has never started the program.
  static void Forget() {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Tarn Ridge");
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Classes");
    PutInPlaceOf(HKEY_CLASSES_ROOT, L"Software\\Classes");
    QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/veldrin")
        .removeRecursively();
  }

 private:
  static constexpr char kVariable[] = "VELDRIN_TEST_USER";

  static void PutInPlaceOf(HKEY root, const std::wstring& name) {
    RegOverridePredefKey(root, nullptr);
    HKEY own = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &own, nullptr);
    RegOverridePredefKey(root, own);
    RegCloseKey(own);
  }

  bool isFirst_;
  std::wstring name_;
};

}  // namespace veldrin

#else

namespace veldrin {

struct OwnUser {
  static void Forget() {}
};

}  // namespace veldrin

#endif
