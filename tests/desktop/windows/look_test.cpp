#include "desktop/windows/look.h"

#include <QLocale>
#include <QPalette>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(Look, BoxesSpeakTheSystemsLanguage) {
  QLocale::setDefault(QLocale(QLocale::Japanese));
  SetUpLook(*qApp);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "キャンセル");
}

TEST(Look, ADarkDesktopMixesInNothing) {
  QApplication::setPalette(QPalette(Qt::black));
  SetUpLook(*qApp);
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(QApplication::palette().color(QPalette::Text), QColor(Qt::black));
}

}  // namespace
}  // namespace veldrin
