// What changes is painted anew, at once and without being asked.
#include "tests/desktop/event_counts.h"
#include "tests/desktop/main_window.h"

namespace veldrin {
namespace {

class RepaintTest : public WidgetsTest {
 protected:
  /// Whether the control's widget paints itself behind the change; it does not before.
  testing::AssertionResult Paints(const Control& control, const std::function<void()>& change) {
    PaintCount painted(WidgetOf(control));
    if (painted.Taken() != 0) return testing::AssertionFailure() << control.name << " never rests";
    change();
    Settle();
    if (painted.Taken() > 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << control.name << " still shows what it did";
  }
};

TEST_F(RepaintTest, ALineTakesItsColour) {
  EXPECT_TRUE(Paints(form->Line1, [this] { form->Line1.ForeColor = kRed; }));
}

TEST_F(RepaintTest, APictureShowsAnotherImageAndWhatIsDrawn) {
  EXPECT_TRUE(Paints(form->Picture1, [this] { form->Picture1.Image = 2004; }));
  EXPECT_TRUE(Paints(form->Picture1, [this] { form->Picture1.surface.Line(0, 0, 500, 500, kRed); }));
  EXPECT_TRUE(Paints(form->Picture1, [this] { form->Picture1.surface.Clear(); }));
}

TEST_F(RepaintTest, AListShowsATextThatIsNoneOfItsEntries) {
  EXPECT_TRUE(Paints(form->Combo2, [this] { form->Combo2.Text = "other"; }));
}

TEST_F(MainWindowTest, FirstStepsFollowTheLanguage) {
  RunEvent(*program, [&] { OpenDroppedFile(*program, "C:\\VELDRIN\\LIST\\NX4.RAT"); });
  windows.Settle();
  PaintCount painted(Widget().Client());
  windows.Settle();
  ASSERT_EQ(painted.Taken(), 0);
  program->workspace.Language = kJapanese;
  windows.Settle();
  EXPECT_GT(painted.Taken(), 0);
}

}  // namespace
}  // namespace veldrin
