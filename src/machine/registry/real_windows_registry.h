// The registry of Windows. What is written to the classes root goes to the user's own classes, which the
// system shows in the root and which need no administrator; the type of plan files as real_file_type.h tells.
#pragma once

#ifdef _WIN32

#include "machine/registry/settings_trouble.h"
#include "platform/system.h"

namespace veldrin {

class WindowsRegistry : public Registry {
 public:
  /// Hears once that a value could not be written.
  TellSettingsTrouble troubled;

  /// The system keeps its registry whole. A type of plan files that names a program which is not there, as
  /// older versions left it and as a program leaves it that was moved, is tied to the running one.
  void Check();
  /// Where a user's value stands, for people.
  std::string PlaceOf(const std::string& key) const { return "HKEY_CURRENT_USER\\" + key; }

  /// The value "CPU", which newer systems no longer have where the program asks for it, is answered with the
  /// processor's name.
  std::optional<std::string> Read(RegistryRoot root, const std::string& key,
                                  const std::string& value) const override;
  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override;
  bool DeleteKey(RegistryRoot root, const std::string& key) override;

  /// Sees to it that files of the program's type are opened: by the program that is named, if it is there,
  /// else by the running one. Failures are silent.
  static void TieFileType();

 private:
  bool failureTold_ = false;
};

}  // namespace veldrin

#endif
