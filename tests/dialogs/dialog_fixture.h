// What the tests of the dialogs share: a program on a simulated machine that lets a test look at the program
// at the very moment when it writes to the store, fires an event, draws or shows a message box.
#pragma once

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "workspace/program.h"
#include "workspace/settings.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace veldrin {

/// Files whose names may depend on case; those of the simulated machine still do not.
struct RuledFiles : SimulatedFiles {
  bool caseCounts = false;

  PathRules Rules() const override { return {.caseCounts = caseCounts}; }
};

/// A registry that keeps what was asked to be written to the settings, and tells the value's name before.
struct WatchedRegistry : SimulatedRegistry {
  std::vector<std::string> writes;  // "Tyre_L=1.9"
  std::function<void(const std::string& value)> onWrite;

  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override {
    EXPECT_EQ(root, RegistryRoot::CurrentUser);
    EXPECT_EQ(key, kSettingsKey);
    if (onWrite) onWrite(value);
    writes.push_back(value + "=" + text);
    return SimulatedRegistry::Write(root, key, value, text);
  }
};

/// Windows that tell events before their handlers run, and changes of what is drawn.
struct WatchedWindows : SimulatedWindows {
  using SimulatedWindows::SimulatedWindows;
  std::map<std::string, std::function<void()>> onEvent;  // by names such as "Form7.Label12(1).Change"
  std::function<void(const Control&)> onContent;

  void EventFired(Control& control, const Event& event) override {
    const auto found = onEvent.find(control.FullName() + "." + event.Name());
    if (found != onEvent.end()) found->second();
    SimulatedWindows::EventFired(control, event);
  }
  void ContentChanged(Control& control) override {
    if (onContent) onContent(control);
  }
};

/// Boxes that tell when a message comes up.
struct WatchedBoxes : SimulatedBoxes {
  using SimulatedBoxes::SimulatedBoxes;
  std::function<void()> onMessage;

  BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                    BoxButtons buttons) override {
    if (onMessage) onMessage();
    return SimulatedBoxes::Message(icon, title, text, buttons);
  }
};

struct DialogFixture : testing::Test {
  SimulatedMachine simulated;
  RuledFiles files;
  WatchedRegistry registry;
  WatchedWindows windows{simulated.clock, simulated.log};
  WatchedBoxes boxes{simulated.log};
  Machine machine = MachineWith(simulated, files, registry, windows, boxes);
  Program program{machine};

  ~DialogFixture() override { windows.Forget(); }
};

}  // namespace veldrin
