// Boxes and dialogs that a test answers.
#pragma once

#include "machine/output/real_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace veldrin {

struct NoMetrics : TextMetrics {
  TextSize Measure(const Font& /*font*/, const std::string& /*text*/) const override { return {0, 0}; }
};

/// Calls `answer` with the dialog that comes up; it has to close it.
template <class Dialog>
void WhenShown(const std::function<void(Dialog&)>& answer) {
  QTimer::singleShot(0, qApp, [answer] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      WhenShown(answer);
    } else {
      answer(*dialog);
    }
  });
}

class RealBoxesTest : public ::testing::Test {
 protected:
  NoMetrics metrics;
  RealPrinter printer{metrics};
  RealBoxes boxes{printer};
};

}  // namespace veldrin
