// A window with one control of each kind that a gesture is for, on a simulated machine that tells its events.
#pragma once

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "view/user_input.h"
#include "view/window.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace veldrin {

/// A window with one control of each kind that a gesture is for.
struct Sample : Window {
  explicit Sample(Desk& theDesk, const char* windowName = "Sample")
      : Window(theDesk, windowName, {0, 0, 9000, 6000}, {}) {}

  Picture Panel{"Panel", *this, {0, 0, 4000, 4000}};
  Button First{"First", Panel, {0, 0, 900, 300}};
  Button Second{"Second", *this, {0, 0, 900, 300}};
  TextBox Box{"Box", *this, {0, 0, 900, 300}, {.caption = "ab"}};
  Label Text{"Text", *this, {0, 0, 900, 300}};
  OptionButton One{"One", *this, {0, 0, 900, 300}};
  OptionButton Two{"Two", *this, {0, 0, 900, 300}};
  SpinButton Arrows{"Arrows", *this, {0, 0, 900, 300}};
  ScrollBar Bar{"Bar", *this, {0, 0, 900, 300}, {0, 100, 50, 1, 10}};
  ComboBox Combo{"Combo", *this, {0, 0, 900, 300}, {}, {"x", "y"}};
  ComboBox Fixed{"Fixed", *this, {0, 0, 900, 300}, {}, {"x", "y"}, false};
  DriveBox Drives{"Drives", *this, {0, 0, 900, 300}};
  FolderBox Folders{"Folders", *this, {0, 0, 900, 300}};
  FileBox Names{"Names", *this, {0, 0, 900, 300}};
  Grid Cells{"Cells", *this, {0, 0, 900, 300}};
  Menu Entry{"Entry", *this, "Entry"};
  Menu Inner{"Inner", Entry, "Inner"};
};

struct UserInput : ::testing::Test {
  UserInput() {
    machine.files.AddFile("C:\\VELDRIN\\A.RAT", "");
    machine.files.AddFile("C:\\VELDRIN\\B.RAT", "");
    window.Names.Refresh();
    window.Show();
    machine.windows.trace = &trace;
  }

  /// The events since the last time, without their window's name.
  std::string Events() {
    std::istringstream lines(trace.str());
    std::string events;
    for (std::string line; std::getline(lines, line);) {
      const std::string head = "event Sample.";
      if (line.rfind(head, 0) == 0) events += (events.empty() ? "" : " ") + line.substr(head.size());
    }
    trace.str("");
    return events;
  }

  SimulatedMachine machine;
  std::ostringstream trace;
  Desk desk{machine.machine};
  Sample window{desk};
};

}  // namespace veldrin
