// Who has the focus is to be seen, and so is what F6 has reached, at every zoom.
#include "tests/desktop/test_window.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QImage>

namespace veldrin {
namespace {

class FocusSeenTest : public WidgetsTest, public testing::WithParamInterface<double> {
 protected:
  FocusSeenTest() {
    stage.zoom.Set(GetParam());
    form->Option1[1].Value = true;
    Settle();
    QCoreApplication::processEvents();
  }

  QImage Picture(QWidget& widget) { return widget.grab().toImage(); }

  /// Pixels that differ clearly between two pictures of one size.
  static int Differing(const QImage& one, const QImage& other) {
    constexpr int kClearly = 60;
    if (one.size() != other.size()) return 0;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
      for (int x = 0; x < one.width(); ++x) {
        if (qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > kClearly) ++count;
      }
    }
    return count;
  }
};

INSTANTIATE_TEST_SUITE_P(Zooms, FocusSeenTest, testing::Values(0.5, 1.0, 1.5, 2.0));

TEST_P(FocusSeenTest, EveryKindThatCanHaveTheFocusShowsIt) {
  for (Control* control : form->controls) {
    if (!TakesFocus(*control) || control == &form->Command2) continue;
    QWidget& widget = WidgetOf(*control);
    FocusOn(form->Command2);
    const QImage without = Picture(widget);
    FocusOn(*control);
    ASSERT_TRUE(widget.hasFocus()) << control->FullName();
    // A line once around, but for its rounded or covered corners.
    const int around = 2 * (widget.width() + widget.height());
    EXPECT_GT(Differing(without, Picture(widget)), around / 2) << control->FullName();
    FocusOn(form->Command2);
    EXPECT_EQ(Differing(without, Picture(widget)), 0) << control->FullName() << " still looks in use";
  }
}

TEST_P(FocusSeenTest, WhatF6HasReachedIsInARing) {
  FocusOn(form->Text1);
  const QImage without = Picture(Widget());
  Key(Qt::Key_F6);
  const QWidget* const reached = Widget().Ring().Around();
  ASSERT_NE(reached, nullptr);
  EXPECT_GT(Differing(without, Picture(Widget())), 2 * (reached->width() + reached->height()));
}

TEST_P(FocusSeenTest, EdgeFollowsTheZoom) {
  FocusOn(form->Text3);
  stage.zoom.Set(GetParam() * 1.25);
  Settle();
  QCoreApplication::processEvents();
  QWidget& box = WidgetOf(form->Text3);
  const QImage with = Picture(box);
  FocusOn(form->Command2);
  const QImage without = Picture(box);
  const int right = box.width() - 1;
  const int bottom = box.height() - 1;
  EXPECT_NE(with.pixel(right, bottom / 2), without.pixel(right, bottom / 2));
  EXPECT_NE(with.pixel(right / 2, bottom), without.pixel(right / 2, bottom));
}

TEST_F(WidgetsTest, EdgeOfTheFocusIsNothingToHear) {
  QAccessibleInterface& access = *QAccessible::queryAccessibleInterface(&WidgetOf(form->Text1));
  const int children = access.childCount();
  FocusOn(form->Text1);
  EXPECT_EQ(access.childCount(), children);
}

}  // namespace
}  // namespace veldrin
