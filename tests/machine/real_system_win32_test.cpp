// What Windows tells: the country of the user's settings, and the folder for temporary files.
#include "machine/real_system.h"
#include "tests/machine/variable.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <windows.h>

namespace veldrin {
namespace {

TEST(RealProfile, TellsTheUsersCountryAndTheLocalesSeparators) {
  DWORD country = 0;
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICOUNTRY | LOCALE_RETURN_NUMBER,
                 reinterpret_cast<LPWSTR>(&country), sizeof country / sizeof(wchar_t));
  ASSERT_NE(country, 0U);
  const RealProfile german(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(german.International("iCountry"), std::to_string(country));
  EXPECT_EQ(german.International("sDecimal"), ",");
  EXPECT_EQ(german.International("sThousand"), ".");
  EXPECT_EQ(german.International("iDate"), std::nullopt);
}

TEST(RealEnvironment, TempIsTheVariableOrTheSystemsFolder) {
  const Variable temp("TEMP");
  const QTemporaryDir folder;
  const std::string systems = QDir::toNativeSeparators(QDir::tempPath()).toStdString();
  qputenv("TEMP", folder.path().toUtf8() + "/");
  EXPECT_EQ(RealEnvironment().Variable("TEMP"), QDir::toNativeSeparators(folder.path()).toStdString());
  qputenv("TEMP", "C:\\no\\such\\folder");
  EXPECT_EQ(RealEnvironment().Variable("temp"), systems);
}

}  // namespace
}  // namespace veldrin
