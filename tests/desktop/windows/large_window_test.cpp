// Windows larger than the screen, which scroll.
#include "tests/desktop/windows/form_widget.h"

namespace veldrin {
namespace {

TEST_F(FormWidgetTest, FocusIsScrolledTo) {
  Zoom(3);
  stage.input.Do([&] { return user::Focus(form->Command1); });
  EXPECT_TRUE(IsSeen(form->Command1));
  stage.input.Do([&] { return user::Focus(form->Combo2); });
  EXPECT_TRUE(IsSeen(form->Combo2));
  EXPECT_FALSE(IsSeen(form->Command1));
  stage.input.Do([&] { return user::Focus(form->Command1); });
  EXPECT_TRUE(IsSeen(form->Command1));
}

TEST_F(FormWidgetTest, ZoomKeepsTheFocusInSight) {
  stage.input.Do([&] { return user::Focus(form->Combo2); });
  Zoom(3);
  EXPECT_TRUE(IsSeen(form->Combo2));
}

TEST_F(FormWidgetTest, WindowThatOpensTooLargeShowsItsFocus) {
  Zoom(3);
  TestForm other(program->desk);
  other.LoadWindow();
  other.MoveFocus(&other.Combo2);
  other.Show();
  ServeEvents();
  FormWidget& widget = *windows.FormOf(other);
  QWidget& combo = *widget.ViewOf(other.Combo2)->Widget();
  const QScrollArea& area = *widget.findChild<QScrollArea*>();
  EXPECT_TRUE(area.viewport()->rect().contains(combo.mapTo(area.viewport(), combo.rect().center())));
  other.UnloadWindow();
}

TEST_F(FormWidgetTest, PanelThatComesToTheFrontIsScrolledTo) {
  Zoom(3);
  ASSERT_FALSE(IsSeen(form->Picture1));
  stage.input.Do([&] {
    form->Picture1.BringToFront();
    return true;
  });
  EXPECT_TRUE(IsSeen(form->Picture1));
}

TEST_F(FormWidgetTest, HiddenPanelThatComesToTheFrontIsNot) {
  Zoom(3);
  form->Picture1.Visible = false;
  stage.input.Do([&] {
    form->Picture1.BringToFront();
    return true;
  });
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelScrollsWhereNoControlHasAUseForIt) {
  Zoom(3);
  const QScrollBar& down = *Area().verticalScrollBar();
  for (QWidget* widget :
       {&WidgetOf(form->Label1), &WidgetOf(form->Command1), &WidgetOf(form->Text1), &WidgetOf(form->Picture1),
        &WidgetOf(form->Option1[1]), &TargetOf(form->Text3), static_cast<QWidget*>(&Widget().Client())}) {
    const int before = down.value();
    Wheel(*widget, -1);
    EXPECT_GT(down.value(), before) << widget->objectName().toStdString();
    Wheel(*widget, 1);
    EXPECT_EQ(down.value(), before);
    Wheel(*widget, 1);  // at the end
    EXPECT_EQ(down.value(), before);
  }
  form->Command1.Enabled = false;
  Wheel(WidgetOf(form->Command1), -1);
  EXPECT_GT(down.value(), 0);
}

TEST_F(FormWidgetTest, ControlsKeepTheWheelThatTheyUse) {
  Zoom(3);
  Wheel(WidgetOf(form->Spin1), -1);
  EXPECT_EQ(events, Events{"Spin1.SpinDown"});
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelWithShiftScrollsAcross) {
  Zoom(3);
  QWidget& client = Widget().Client();
  QWheelEvent event(QPointF(5, 5), client.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::ShiftModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&client, &event);
  EXPECT_GT(Area().horizontalScrollBar()->value(), 0);
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelDoesNothingWhereThereIsRoom) {
  Wheel(WidgetOf(form->Label1), -1);
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
  EXPECT_EQ(WidgetOf(form->Label1).mapTo(Area().viewport(), QPoint(0, 0)), QPoint(10, 10));
}

TEST_F(FormWidgetTest, WindowLargerThanTheScreenCanBeMaximisedAndRestored) {
  Zoom(3);
  const QSize before = Widget().size();
  Maximise();
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), QSize(1200, 900));
  Restore();
  EXPECT_EQ(Widget().size(), before);
  Maximise();
  Zoom(1);
  Restore();
  EXPECT_EQ(Widget().Client().size(), QSize(400, 300));
  EXPECT_EQ(Widget().size(), QSize(400, 300 + Bar().height()));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_EQ(Differences(), Events{});
}

}  // namespace
}  // namespace veldrin
