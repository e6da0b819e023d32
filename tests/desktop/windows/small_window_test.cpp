// A window that the user draws smaller than what is in it.
#include "desktop/windows/placement.h"
#include "tests/desktop/test_window.h"
#include "window_script/shown_check.h"

#include <QScrollBar>

namespace veldrin {
namespace {

/// The test window is described with 400 by 300 pixels inside.
class SmallWindowTest : public WidgetsTest {
 protected:
  static void ServeEvents() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  QScrollArea& Area() { return *Widget().findChild<QScrollArea*>(); }
  QMenuBar& Bar() { return *Widget().findChild<QMenuBar*>(); }
  int BarSize() { return Area().verticalScrollBar()->sizeHint().width(); }
  bool ScrollsDown() { return Area().verticalScrollBar()->isVisible(); }
  bool ScrollsAcross() { return Area().horizontalScrollBar()->isVisible(); }

  /// Draws the frame to what is below its menu.
  void Draw(int width, int height) {
    Widget().resize(width, height + Bar().height());
    ServeEvents();
  }

  void Set(float width, float height) {
    stage.input.Do([&] {
      form->SetSize(width, height);
      return true;
    });
    ServeEvents();
  }

  QSize TwipsInPixels() { return ClientPixels(*form, stage.zoom); }

  std::string Differences() {
    std::string names;
    for (const Mismatch& mismatch : DifferencesIn(Widget(), stage)) names += mismatch.name + " ";
    return names;
  }
};

TEST_F(SmallWindowTest, WhatHasRoomHasNoBars) {
  EXPECT_FALSE(ScrollsDown() || ScrollsAcross());
  Draw(401, 300);
  EXPECT_FALSE(ScrollsDown() || ScrollsAcross());
}

TEST_F(SmallWindowTest, OneMissingSideMakesOneBar) {
  Draw(300, 340);
  EXPECT_TRUE(ScrollsAcross());
  EXPECT_FALSE(ScrollsDown());
  EXPECT_EQ(Widget().Client().size(), QSize(400, 340 - BarSize()));
  EXPECT_EQ(TwipsInPixels(), QSize(300, 340 - BarSize()));
  EXPECT_EQ(events, Events{"Resize"});
  EXPECT_EQ(Differences(), "");
}

TEST_F(SmallWindowTest, ABarMayTakeTheRoomThatTheOtherSideNeeds) {
  Draw(300, 300);
  EXPECT_TRUE(ScrollsDown() && ScrollsAcross());
  EXPECT_EQ(TwipsInPixels(), QSize(300 - BarSize(), 300 - BarSize()));
  EXPECT_EQ(Widget().Client().size(), QSize(400, 300));
  EXPECT_EQ(Differences(), "");
}

TEST_F(SmallWindowTest, EveryControlCanBeScrolledTo) {
  Draw(220, 200);
  for (Control* control : {static_cast<Control*>(&form->Combo2), static_cast<Control*>(&form->Command1)}) {
    stage.input.Do([&] { return user::Focus(*control); });
    QWidget& widget = WidgetOf(*control);
    const QRect seen(widget.mapTo(Area().viewport(), QPoint(0, 0)), widget.size());
    EXPECT_TRUE(Area().viewport()->rect().contains(seen)) << control->IndexedName();
  }
}

TEST_F(SmallWindowTest, BarsGoWhenThereIsRoomAgain) {
  Draw(220, 200);
  Draw(420, 310);
  EXPECT_FALSE(ScrollsDown() || ScrollsAcross());
  EXPECT_EQ(TwipsInPixels(), QSize(420, 310));
  EXPECT_EQ(Widget().Client().size(), QSize(420, 310));
}

TEST_F(SmallWindowTest, MenuAndHalfOfTheContentCannotBeDrawnAway) {
  Widget().resize(1, 1);
  ServeEvents();
  EXPECT_GE(Widget().width(), Bar().sizeHint().width());
  EXPECT_EQ(Widget().width(), std::max(200, Bar().sizeHint().width()));
  EXPECT_EQ(Widget().height(), 150 + Bar().height());
}

TEST_F(SmallWindowTest, ASizeThatTheProgramSetsKeepsItsRoomBesideTheBars) {
  Set(4620, 5190);
  EXPECT_EQ(Widget().size(), QSize(300, 300 + BarSize() + Bar().height()));
  EXPECT_TRUE(ScrollsAcross());
  EXPECT_FALSE(ScrollsDown());
  Widget().move(Widget().pos() + QPoint(10, 10));
  ServeEvents();
  EXPECT_EQ(form->Width.get(), 4620);
  EXPECT_EQ(form->Height.get(), 5190);
  EXPECT_EQ(Differences(), "");
}

TEST_F(SmallWindowTest, ItStaysAsItIsThroughAZoomAndAMaximisedTime) {
  Draw(300, 340);
  const QSize inside = TwipsInPixels();
  const float width = form->Width;
  stage.zoom.Set(1.5);
  ServeEvents();
  EXPECT_TRUE(ScrollsAcross());
  EXPECT_EQ(form->Width.get(), width);
  EXPECT_EQ(Widget().Client().width(), 600);
  stage.zoom.Set(1);
  ServeEvents();
  Widget().showMaximized();
  ServeEvents();
  EXPECT_FALSE(ScrollsAcross());
  Widget().showNormal();
  ServeEvents();
  Wait(50);
  EXPECT_EQ(TwipsInPixels(), inside);
  EXPECT_TRUE(ScrollsAcross());
  EXPECT_EQ(Differences(), "");
}

}  // namespace
}  // namespace veldrin
