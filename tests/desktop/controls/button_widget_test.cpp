#include "tests/desktop/test_window.h"

#include <QImage>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace veldrin {
namespace {

class ButtonWidgetTest : public WidgetsTest {
 protected:
  /// How many pixels of two pictures are clearly of another brightness.
  static int Differences(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
      for (int x = 0; x < one.width(); ++x) {
        if (std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 60) ++count;
      }
    }
    return count;
  }

  QImage PictureOf(const Control& control) { return WidgetOf(control).grab().toImage(); }
};

TEST_F(ButtonWidgetTest, FocusIsSeenAtEveryZoom) {
  for (const double factor : {1.0, 2.0}) {
    stage.zoom.Set(factor);
    FocusOn(form->Text1);
    const QImage before = PictureOf(form->Command1);
    FocusOn(form->Command1);
    EXPECT_TRUE(WidgetOf(form->Command1).hasFocus());
    // A ring close to the edge: half of its dots are there.
    EXPECT_GT(Differences(before, PictureOf(form->Command1)), (before.width() + before.height()) / 2)
        << factor;
    FocusOn(form->Text1);
    EXPECT_EQ(Differences(before, PictureOf(form->Command1)), 0) << factor;
  }
}

TEST_F(ButtonWidgetTest, CaptionOfAButtonThatIsOffIsPaler) {
  const auto darkest = [this] {
    const QImage picture = PictureOf(form->Command1);
    int grey = 255;
    // Its middle, where nothing but the caption is.
    for (int y = picture.height() / 4; y < picture.height() * 3 / 4; ++y) {
      for (int x = picture.width() / 4; x < picture.width() * 3 / 4; ++x)
        grey = std::min(grey, qGray(picture.pixel(x, y)));
    }
    return grey;
  };
  EXPECT_LT(darkest(), 50);
  form->Command1.Enabled = false;
  Settle();
  EXPECT_GE(darkest(), 110);
  EXPECT_LT(darkest(), 160) << "and can still be read";
}

TEST_F(ButtonWidgetTest, ButtonThatItsOwnPressHidesIsUpWhenItIsShownAgain) {
  reactions["Command1.MouseDown"] = [this] { form->Command1.Visible = false; };
  Press(form->Command1);
  form->Command1.Visible = true;
  Settle();
  EXPECT_FALSE(WidgetOf<QPushButton>(form->Command1).isDown());
  reactions["Option1(2).MouseDown"] = [this] { form->Option1[2].Visible = false; };
  Press(form->Option1[2]);
  form->Option1[2].Visible = true;
  Settle();
  EXPECT_FALSE(WidgetOf<QRadioButton>(form->Option1[2]).isDown());
}

TEST_F(ButtonWidgetTest, ButtonWhoseWindowGoesAtItsPressIsUpWhenTheWindowComesBack) {
  reactions["Command1.MouseDown"] = [this] { form->Hide(); };
  Press(form->Command1);
  form->Show();
  Settle();
  EXPECT_FALSE(WidgetOf<QPushButton>(form->Command1).isDown());
}

TEST_F(ButtonWidgetTest, ButtonThatIsHiddenWhileItIsHeldIsUpWhenItIsShownAgain) {
  Press(form->Command1);
  EXPECT_TRUE(WidgetOf<QPushButton>(form->Command1).isDown());
  form->Command1.Visible = false;
  form->Command1.Visible = true;
  Settle();
  EXPECT_FALSE(WidgetOf<QPushButton>(form->Command1).isDown());
  FocusOn(form->Command1);
  events.clear();
  Click(form->Command1);
  EXPECT_EQ(events, (Events{"Command1.MouseDown", "Command1.MouseUp", "Command1.Click"}));
}

TEST_F(ButtonWidgetTest, ButtonThatItsOwnPressSwitchesOffIsUpWhenItIsOnAgain) {
  reactions["Command1.MouseDown"] = [this] { form->Command1.Enabled = false; };
  Press(form->Command1);
  form->Command1.Enabled = true;
  Settle();
  EXPECT_FALSE(WidgetOf<QPushButton>(form->Command1).isDown());
}

TEST_F(ButtonWidgetTest, ButtonThatIsOutOfReachByThePressIsNotDown) {
  Click(form->Text1);
  reactions["Text1.LostFocus"] = [this] { form->Command1.Enabled = false; };
  Press(form->Command1);
  form->Command1.Enabled = true;
  Settle();
  EXPECT_FALSE(WidgetOf<QPushButton>(form->Command1).isDown());
}

TEST_F(ButtonWidgetTest, ScrollBarThatIsOffLooksOff) {
  const QImage on = PictureOf(form->HScroll1);
  form->HScroll1.Enabled = false;
  Settle();
  const QImage off = PictureOf(form->HScroll1);
  // The thumb stands in the middle; at both ends are the arrows.
  const auto grey = [](const QImage& image, int x, int y) { return qGray(image.pixel(x, y)); };
  const int middle = on.height() / 2;
  const auto darkest = [&](const QImage& image) {
    int least = 255;
    for (int x = 0; x < image.height(); ++x) least = std::min(least, grey(image, x, middle));
    return least;
  };
  EXPECT_GT(darkest(off), darkest(on) + 60) << "arrows";
  EXPECT_NE(grey(off, off.width() / 2, middle), grey(on, on.width() / 2, middle)) << "thumb";
  form->HScroll1.Enabled = true;
  Settle();
  EXPECT_EQ(PictureOf(form->HScroll1), on);
}

TEST_F(ButtonWidgetTest, SpinButtonHasAnArrowInEachHalf) {
  const QImage picture = PictureOf(form->Spin1);
  const auto dark = [&](int top, int bottom) {
    int count = 0;
    for (int y = top; y < bottom; ++y) {
      for (int x = 3; x < picture.width() - 3; ++x) count += qGray(picture.pixel(x, y)) < 30 ? 1 : 0;
    }
    return count;
  };
  const int middle = picture.height() / 2;
  EXPECT_GE(dark(3, middle - 3), 6);
  EXPECT_GE(dark(middle + 3, picture.height() - 3), 6);
}

TEST_F(ButtonWidgetTest, SpinButtonThatIsOffHasNoDarkArrows) {
  const auto darkest = [](const QImage& image) {
    int least = 255;
    for (int y = 3; y < image.height() - 3; ++y) {
      for (int x = 3; x < image.width() - 3; ++x) least = std::min(least, qGray(image.pixel(x, y)));
    }
    return least;
  };
  EXPECT_LT(darkest(PictureOf(form->Spin1)), 30);
  form->Spin1.Enabled = false;
  Settle();
  EXPECT_GT(darkest(PictureOf(form->Spin1)), 130);
  form->Spin1.ForeColor = kWhite;
  Settle();
  EXPECT_EQ(WidgetOf(form->Spin1).palette().color(QPalette::ButtonText), Qt::white);
}

}  // namespace
}  // namespace veldrin
