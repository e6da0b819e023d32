// Scripts through the widgets prove nothing of these where a gesture goes past them: each must come as the
// events that a user's mouse and keys bring.
#include "window_script/widget_hand.h"

#include "script/script_runner.h"
#include "tests/desktop/event_counts.h"
#include "tests/desktop/sample_files.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

namespace veldrin {
namespace {

/// The events of a script that makes a first plan and goes on with a line.
std::map<QEvent::Type, int> EventsWith(const std::string& line) {
  const EventCounts sent(*qApp);
  WidgetHand hand(1);
  std::istringstream text(std::string("file \"C:\\VELDRIN\\LIST\\NX4.RAT\"\r\n") + kSampleList +
                          "end\r\nstart\nadvance 100\nadvance 1200\nclick Form2.Command2\n" + line);
  std::ostringstream out;
  std::ostringstream err;
  RunScript(text, "test", ".", hand, out, err);
  EXPECT_EQ(err.str(), "");
  return sent.of;
}

TEST(WidgetHand, BringsTheEventsOfMouseAndKeys) {
  const struct {
    const char* line;
    QEvent::Type type;
  } kGestures[] = {
      {"click Form2.Command2\n", QEvent::MouseButtonPress},
      {"click Form2.Command2\n", QEvent::MouseButtonRelease},
      {"dblclick Form2.Picture21\n", QEvent::MouseButtonDblClick},
      {"key Form2.Text2 Enter\n", QEvent::KeyPress},
      {"enter Form2.Text6 rain\n", QEvent::InputMethod},
      {"type Form2.Text6 rain\n", QEvent::InputMethod},
      {"spin Form2.Spin5 up\n", QEvent::MouseButtonPress},
      {"resize Form2 13025 9000\n", QEvent::Resize},
      {"drop Form2 \"C:\\VELDRIN\\LIST\\NX4.RAT\"\n", QEvent::Drop},
      {"close Form2\n", QEvent::Close},
  };
  std::map<QEvent::Type, int> without = EventsWith("");
  for (const auto& gesture : kGestures) {
    EXPECT_GT(EventsWith(gesture.line)[gesture.type], without[gesture.type]) << gesture.line;
  }
}

}  // namespace
}  // namespace veldrin
