// Menus, as their entries come and go.
#include "desktop/controls/menu_view.h"
#include "tests/desktop/shown_differences.h"
#include "tests/desktop/test_window.h"

#include <QPointer>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

class MenusTest : public WidgetsTest {
 protected:
  Events Differences() { return DifferenceLines(Widget(), stage); }
};

TEST_F(MenusTest, MenusGrowAndShrinkInTheirOwnEvent) {
  Menu& entry = form->menu_d.Load(1);
  entry.Caption = "C:\\A&B.nx4";
  entry.Visible = true;
  entry.Click.Bind([this](int) { form->menu_d.Unload(1); });
  Settle();
  auto* view = dynamic_cast<MenuView*>(Widget().ViewOf(entry));
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->Action().text(), "C:\\A&&B.nx4");
  EXPECT_EQ(Differences(), Events{});
  view->Action().trigger();
  EXPECT_FALSE(form->menu_d.Has(1));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(MenusTest, EntryThatIsGoneLeavesNothingBehind) {
  form->menu_d.Load(1).Visible = true;
  Settle();
  const QPointer<QAction> action = &dynamic_cast<MenuView*>(Widget().ViewOf(form->menu_d[1]))->Action();
  QPointer<QAction> standing;
  form->menu_d[1].Click.Bind([&](int) {
    form->menu_d.Unload(1);
    Settle();
    QCoreApplication::processEvents();
    standing = action;
  });
  action->trigger();
  EXPECT_NE(standing, nullptr) << "it was inside of its own event";
  Settle();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(action, nullptr);
}

TEST_F(MenusTest, ASeparatorOfAMenuHasNoTextInItsLine) {
  auto* view = dynamic_cast<MenuView*>(Widget().ViewOf(form->menu_d[0]));
  ASSERT_NE(view, nullptr);
  EXPECT_TRUE(view->Action().isSeparator());
  EXPECT_EQ(view->Action().text(), "");
}

TEST_F(MenusTest, MarksOfMenusAreKeysInBracketsAlone) {
  EXPECT_EQ(MenuText("File(&F)"), "File(&F)");
  EXPECT_EQ(MenuText(" 640 * 480(&6)"), " 640 * 480(&6)");
  EXPECT_EQ(MenuText("/home/a&b/x.nx4"), "/home/a&&b/x.nx4");
  EXPECT_EQ(MenuText("(&)"), "(&&)");
  EXPECT_EQ(MenuText("&"), "&&");
}

TEST_F(MenusTest, EntryOfAMenuThatIsOffDoesNothing) {
  form->menu_a.Enabled = false;
  dynamic_cast<MenuView*>(Widget().ViewOf(form->menu_b))->Action().trigger();
  EXPECT_EQ(events, Events{});
}

}  // namespace
}  // namespace veldrin
