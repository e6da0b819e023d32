// A program on the desktop that starts with settings which a test has stored.
#pragma once

#include "machine/registry/real_registry.h"
#include "tests/desktop/running_program.h"

#include <QAbstractButton>

#include <optional>
#include <string>

namespace veldrin {

class StoredSettingsTest : public RunningProgramTest {
 protected:
  void Anew() {
    TearDown();
    SetUp();
  }
  void Keep(const std::string& value, const std::string& text) {
    RealRegistry().Write(RegistryRoot::CurrentUser, kSettings, value, text);
  }
  std::optional<std::string> Stored(const std::string& value) {
    return RealRegistry().Read(RegistryRoot::CurrentUser, kSettings, value);
  }
  /// Where the settings stand, for people.
  std::string Place() const {
#ifdef _WIN32
    return std::string("HKEY_CURRENT_USER\\") + kSettings;
#else
    return PathOf("config/veldrin/registry.txt");
#endif
  }
  static QAbstractButton* ButtonOf(const QString& caption) {
    for (QAbstractButton* button : OpenBox()->buttons()) {
      if (button->text() == caption) return button;
    }
    return nullptr;
  }
  std::string Shown() {
    const Notice* const notice = Desktop().stage.notices.Shown();
    return notice == nullptr ? "" : notice->text.english;
  }
};

}  // namespace veldrin
