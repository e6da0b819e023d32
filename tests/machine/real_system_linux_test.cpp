// What a Linux system tells: its locale, and the variables that name its folders. On Windows the user's
// settings tell the country, and "/" names no folder.
#include "machine/real_system.h"
#include "tests/machine/variable.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealProfile, TellsTheLocale) {
  struct Case {
    QLocale locale;
    const char* country;
    std::optional<std::string> decimal;
    std::optional<std::string> thousand;
  };
  const Case cases[] = {
      {QLocale(QLocale::Japanese, QLocale::Japan), "81", ".", ","},
      {QLocale("ja"), "81", ".", ","},
      {QLocale(QLocale::English, QLocale::UnitedStates), "1", ".", ","},
      {QLocale(QLocale::German, QLocale::Germany), "1", ",", "."},
      {QLocale::c(), "1", ".", ","},
      {QLocale(QLocale::French, QLocale::France), "1", ",", std::nullopt},
      {QLocale(QLocale::Arabic, QLocale::Egypt), "1", std::nullopt, std::nullopt},
  };
  for (const Case& c : cases) {
    const RealProfile profile(c.locale);
    EXPECT_EQ(profile.International("icountry"), c.country) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("sDecimal"), c.decimal) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("STHOUSAND"), c.thousand) << c.locale.name().toStdString();
    EXPECT_EQ(profile.International("iDate"), std::nullopt);
    EXPECT_EQ(IsJapanese(profile), std::string(c.country) == "81");
  }
}

TEST(RealEnvironment, TempIsTheVariableOrTheSystemsFolder) {
  const Variable temp("TEMP");
  const Variable tmpdir("TMPDIR");
  const QTemporaryDir folder;
  const RealEnvironment environment;
  qputenv("TEMP", folder.path().toUtf8() + "/");
  EXPECT_EQ(environment.Variable("TEMP"), folder.path().toStdString());
  qputenv("TEMP", "/");
  EXPECT_EQ(environment.Variable("TEMP"), "/");
  qputenv("TMPDIR", folder.path().toUtf8() + "/");
  qputenv("TEMP", "/no/such/folder");
  EXPECT_EQ(environment.Variable("TEMP"), folder.path().toStdString());
  qunsetenv("TEMP");
  EXPECT_EQ(environment.Variable("temp"), folder.path().toStdString());
}

TEST(RealEnvironment, WithoutANamedFolderTempIsTheUsersOwnForTheSession) {
  const Variable temp("TEMP");
  const Variable tmpdir("TMPDIR");
  const Variable runtime("XDG_RUNTIME_DIR");
  const QTemporaryDir folder;
  qunsetenv("TEMP");
  qunsetenv("TMPDIR");
  qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
  EXPECT_EQ(RealEnvironment().Variable("TEMP"), folder.path().toStdString());
}

}  // namespace
}  // namespace veldrin
