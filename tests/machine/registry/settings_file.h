// A settings file of a test's own, and the registry that stands in it.
#pragma once

#include "machine/registry/real_settings_registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace veldrin {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr auto kClasses = RegistryRoot::ClassesRoot;
constexpr auto kLocal = RegistryRoot::LocalMachine;
constexpr char kKey[] = "Software\\Tarn Ridge\\Veldrin";

class RealRegistryTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  QString file = folder.path() + "/settings/registry.txt";
  SettingsRegistry registry{file};

  QByteArray Text() const {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("(not there)");
  }
  void PutText(const QByteArray& text) const {
    QDir(folder.path()).mkpath("settings");
    QFile opened(file);
    ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
    opened.write(text);
  }
};

}  // namespace veldrin
