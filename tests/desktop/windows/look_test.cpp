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

/// Somebody who was there before, and has no words of his own.
QAccessibleInterface* AnswerNothing(const QString& /*kind*/, QObject* object) {
  const auto* const view = dynamic_cast<PlacedView*>(object);
  const bool isLabel =
      view != nullptr && view->Shows() != nullptr && view->Shows()->kind == ControlKind::Label;
  if (isLabel) ++askedElsewhere;
  return nullptr;
}

TEST_F(WidgetsTest, LookIncludesWhatScreenReadersHear) {
  QAccessible::installFactory(AnswerNothing);
  SetUpLook(*qApp);
  // Qt asks for each widget but once, while it is made or when it is heard first.
  const auto later = std::make_shared<TestForm>(program->desk);
  later->LoadWindow();
  QWidget* const label = windows.FormOf(*later)->ViewOf(later->Label1)->Widget();
  EXPECT_NE(QAccessible::queryAccessibleInterface(label), nullptr);
  EXPECT_EQ(askedElsewhere, 0);
  QAccessible::removeFactory(AnswerNothing);
  later->UnloadWindow();
}

}  // namespace
}  // namespace veldrin
