// The zoom of a window, and maximised windows.
#include "tests/desktop/windows/form_widget.h"

#include <utility>

/// Asks the shortcuts of the active window for a key, as the keyboard does before any widget hears of it. Qt
/// has it for its own tests; the name is Qt's.
// NOLINTNEXTLINE(readability-identifier-naming)
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong time, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text = {},
                                               bool repeats = false, ushort count = 1);

namespace veldrin {
namespace {

TEST_F(FormWidgetTest, KeysZoom) {
  const auto press = [this](int key) {
    QWidget* const target = Widget().focusWidget() != nullptr ? Widget().focusWidget() : &Widget();
    qt_sendShortcutOverrideEvent(target, 0, key, Qt::ControlModifier);
    return stage.zoom.Factor();
  };
  EXPECT_EQ(press(Qt::Key_Plus), 1.25);
  EXPECT_EQ(press(Qt::Key_Equal), 1.5);
  EXPECT_EQ(press(Qt::Key_Minus), 1.25);
  EXPECT_EQ(press(Qt::Key_Plus), 1.5);
  EXPECT_EQ(press(Qt::Key_0), 1);
  EXPECT_EQ(press(Qt::Key_Minus), 0.75);
  EXPECT_EQ(Widget().Client().size(), QSize(300, 225));
}

TEST_F(FormWidgetTest, ZoomLeavesTheFrameWhereItIsAndTellsItsPlace) {
  Widget().move(100, 60);
  ServeEvents();
  for (const double factor : {1.25, 3.0, 0.5, 1.75, 1.0}) {
    Zoom(factor);
    EXPECT_EQ(Widget().pos(), QPoint(100, 60));
    EXPECT_FLOAT_EQ(form->Left.get(), static_cast<float>(1500 / factor));
    EXPECT_FLOAT_EQ(form->Top.get(), static_cast<float>(900 / factor));
  }
  EXPECT_EQ(form->Left.get(), 1500);
  EXPECT_EQ(form->Width.get(), 6120);
}

TEST_F(FormWidgetTest, MaximisedWindowKeepsItsPlaceThroughAZoom) {
  Widget().move(120, 60);
  ServeEvents();
  Maximise();
  Zoom(2);
  Restore();
  EXPECT_EQ(Widget().pos(), QPoint(120, 60));
  EXPECT_EQ(form->Left.get(), 900);
  EXPECT_EQ(form->Top.get(), 450);
}

TEST_F(FormWidgetTest, MaximisedWindowTellsItsSize) {
  Maximise();
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), Area().viewport()->size());
  EXPECT_EQ(form->Width.get(), static_cast<float>(ScreenSize().width() * 15 + 120));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, ZoomOfAMaximisedWindowFillsTheScreenAgain) {
  Maximise();
  for (const double factor : {1.25, 1.5, 0.5, 1.0}) {
    events.clear();
    Zoom(factor);
    EXPECT_EQ(Widget().size(), ScreenSize());
    EXPECT_EQ(Bar().width(), ScreenSize().width());
    EXPECT_EQ(Widget().Client().size(), ScreenSize() - QSize(0, Bar().height()));
    EXPECT_EQ(TwipsInPixels(), Widget().Client().size()) << factor;
    EXPECT_FALSE(Area().verticalScrollBar()->isVisible());
    EXPECT_FALSE(Area().horizontalScrollBar()->isVisible());
    EXPECT_EQ(events, Events{"Resize"});
    EXPECT_EQ(Differences(), Events{});
  }
}

TEST_F(FormWidgetTest, WindowThatWasZoomedMaximisedGetsItsNormalSizeBack) {
  const std::pair<float, float> normal = {form->Width, form->Height};
  Maximise();
  Zoom(1.25);
  Restore();
  EXPECT_EQ(form->Width.get(), normal.first);
  EXPECT_EQ(form->Height.get(), normal.second);
  EXPECT_EQ(Widget().Client().size(), QSize(500, 375));
  EXPECT_EQ(Widget().size(), Widget().Client().size() + QSize(0, Bar().height()));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, WindowThatWasMaximisedKeepsTheSizeThatTheUserDrew) {
  Widget().resize(Widget().size() + QSize(61, 33));
  ServeEvents();
  const QSize drawn = Widget().size();
  Maximise();
  Restore();
  EXPECT_EQ(Widget().size(), drawn);
  EXPECT_EQ(TwipsInPixels(), QSize(461, 333));
  Maximise();
  Zoom(0.5);
  Restore();
  EXPECT_EQ(TwipsInPixels(), QSize(231, 167));
  EXPECT_EQ(form->Width.get(), 461 * 15 + 120);
}

TEST_F(FormWidgetTest, WindowLargerThanTheScreenKeepsTheSizeThatTheUserDrew) {
  Widget().resize(Widget().size() + QSize(61, 33));
  ServeEvents();
  Zoom(3);
  Maximise();
  Zoom(1);
  Restore();
  EXPECT_EQ(TwipsInPixels(), QSize(461, 333));
  EXPECT_EQ(Widget().Client().size(), QSize(461, 333));
}

TEST_F(FormWidgetTest, HandlerMayWishForAnotherSize) {
  form->Resize.Bind([this](int) {
    if (form->Width > 7000) form->SetSize(7000, form->Height);
  });
  Widget().resize(Widget().size() + QSize(200, 0));
  ServeEvents();
  EXPECT_EQ(form->Width.get(), 7000);
  EXPECT_EQ(Widget().width(), qRound(6880 / 15.0));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, MaximisedWindowWithoutRoomScrolls) {
  Maximise();
  Zoom(3);
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), QSize(1200, 900));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
  EXPECT_TRUE(Area().horizontalScrollBar()->isVisible());
  Zoom(1);
  EXPECT_FALSE(Area().verticalScrollBar()->isVisible());
  EXPECT_EQ(Widget().Client().size(), ScreenSize() - QSize(0, Bar().height()));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, OneMissingSideMakesOneBar) {
  form->SetSize(6120, 12690);
  ServeEvents();
  Maximise();
  EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
  EXPECT_FALSE(Area().horizontalScrollBar()->isVisible());
  EXPECT_EQ(Widget().Client().size(), QSize(ScreenSize().width() - Area().verticalScrollBar()->width(), 800));
}

TEST_F(FormWidgetTest, WindowTellsItsSizeWhenNothingModalStandsInFrontAnyMore) {
  TestForm modal(program->desk);
  Maximise();
  const float before = form->Width;
  QTimer::singleShot(0, qApp, [&] {
    Zoom(1.25);
    EXPECT_EQ(form->Width.get(), before);
    stage.input.Do([&] {
      modal.Hide();
      return true;
    });
  });
  stage.input.Do([&] {
    modal.ShowModal();
    return true;
  });
  ServeEvents();
  EXPECT_EQ(TwipsInPixels(), ScreenSize() - QSize(0, Bar().height()));
  modal.UnloadWindow();
}

TEST_F(FormWidgetTest, MinimisedWindowTakesAZoomWhenItComesBack) {
  Widget().showMinimized();
  ServeEvents();
  Zoom(1.5);
  Restore();
  EXPECT_EQ(Widget().Client().size(), QSize(600, 450));
  EXPECT_EQ(Widget().size(), Widget().Client().size() + QSize(0, Bar().height()));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_EQ(Differences(), Events{});
}

}  // namespace
}  // namespace veldrin
