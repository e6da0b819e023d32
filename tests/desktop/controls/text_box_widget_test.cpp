#include "desktop/controls/text_box_widget.h"

#include "tests/desktop/test_window.h"

namespace veldrin {
namespace {

class TextAreaWidgetTest : public WidgetsTest {
 protected:
  TextAreaWidget& Area() { return WidgetOf<TextAreaWidget>(form->Text3); }

  void Write(const std::string& text) {
    form->Text3.Text = text;
    FocusOn(form->Text3);
    Area().moveCursor(QTextCursor::End);
    events.clear();
  }
};

TEST_F(TextAreaWidgetTest, BlankThatDoesNotBreakShows) {
  Write("a\u00a0b");
  EXPECT_EQ(Area().WhatShows().text, "a\u00a0b");
}

TEST_F(TextAreaWidgetTest, BlankThatDoesNotBreakStaysWhereTheTextGoesOn) {
  Write("12\u00a0km");
  Type("h");
  EXPECT_EQ(form->Text3.Text.get(), "12\u00a0kmh");
}

TEST_F(TextAreaWidgetTest, CompositionBesideABlankThatDoesNotBreakChangesNothing) {
  Write("a\u00a0b");
  Compose("", "あ");
  EXPECT_EQ(form->Text3.Text.get(), "a\u00a0b");
  EXPECT_EQ(events, Events{});
}

TEST_F(TextAreaWidgetTest, WriteOfTheTextThatIsThereKeepsWhatCanBeTakenBack) {
  Write("a\u00a0b");
  Type("c");
  form->Text3.Text = "a\u00a0bc";
  EXPECT_TRUE(Area().document()->isUndoAvailable());
}

TEST_F(TextAreaWidgetTest, EveryKindOfLineEndIsTheProgramsOwn) {
  Write("a");
  Key(Qt::Key_Return, Qt::NoModifier, "\r");
  Type("b");
  Key(Qt::Key_Return, Qt::ShiftModifier, "\r");
  Type("c");
  EXPECT_EQ(form->Text3.Text.get(), "a\r\nb\r\nc");
  EXPECT_EQ(Area().WhatShows().text, "a\r\nb\r\nc");
}

}  // namespace
}  // namespace veldrin
