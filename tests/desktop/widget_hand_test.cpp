// Scripts through the widgets prove nothing of these where a gesture goes past them: each must come as the
// events that a user's mouse and keys bring.
#include "window_script/widget_hand.h"

#include "script/script_runner.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

namespace veldrin {
namespace {

/// The events that widgets have been sent since.
class SentEvents : public QObject {
 public:
  SentEvents() { qApp->installEventFilter(this); }
  ~SentEvents() override { qApp->removeEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object->isWidgetType()) ++counts_[event->type()];
    return false;
  }
  int Count(QEvent::Type type) const { return counts_.contains(type) ? counts_.at(type) : 0; }

 private:
  std::map<QEvent::Type, int> counts_;
};

constexpr char kWithAPlan[] =
    "file \"C:\\VELDRIN\\LIST\\NX4.RAT\"\n"
    "LIST\nNX4\nFINAL-DRIVE\n16,99\nFINAL-DRIVEN\n40,99\nROWS,1,PRIMARY\n20,40\n99\n-\n-\n"
    "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\nM34-ARRAY\n0\nend\n"
    "start\nadvance 100\nadvance 1200\nclick Form2.Command2\n";

/// How many events of the type a line of a script brings.
int Brought(const std::string& line, QEvent::Type type) {
  const auto run = [&](const std::string& more) {
    const SentEvents sent;
    WidgetHand hand(1);
    std::istringstream text(kWithAPlan + more);
    std::ostringstream out;
    std::ostringstream err;
    RunScript(text, "test", ".", hand, out, err);
    EXPECT_EQ(err.str(), "");
    return sent.Count(type);
  };
  return run(line) - run("");
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
  for (const auto& gesture : kGestures) EXPECT_GT(Brought(gesture.line, gesture.type), 0) << gesture.line;
}

}  // namespace
}  // namespace veldrin
