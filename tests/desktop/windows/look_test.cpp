#include "desktop/windows/look.h"

#include "tests/desktop/test_window.h"

#include <QAccessible>
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

int askedElsewhere = 0;

QAccessibleInterface* AnswerNothing(const QString& /*kind*/, QObject* /*object*/) {
  ++askedElsewhere;
  return nullptr;
}

TEST_F(WidgetsTest, LookIncludesWhatScreenReadersHear) {
  QAccessible::installFactory(AnswerNothing);
  SetUpLook(*qApp);
  // Whoever was there before is not asked for what the program has words for.
  EXPECT_NE(QAccessible::queryAccessibleInterface(&WidgetOf(form->Label1)), nullptr);
  EXPECT_EQ(askedElsewhere, 0);
  QAccessible::removeFactory(AnswerNothing);
}

}  // namespace
}  // namespace veldrin
