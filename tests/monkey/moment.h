// What stands at one moment of a sequence, as far as the next moment is judged by it.
#pragma once

#include "dialogs/load_dispatch.h"
#include "workspace/program.h"

#include <array>
#include <string>
#include <vector>

namespace veldrin::monkey {

struct Moment {
  bool started = false;
  bool ended = false;
  int endFault = 0;

  std::string mode;
  std::string caller;
  std::string pending;
  std::string dataChanged;
  bool stale = false;
  std::string machineKey;
  /// Rows of the plan: primary, final, gears 1 to 6.
  std::array<int, 8> rows{};

  /// Number of the message that the decision panel asks; 0 while it is hidden, -1 for none of its own.
  int question = 0;
  bool chooserUp = false;
  ChooserRole role = ChooserRole::None;
  /// The chooser's prompt line; empty while it is hidden.
  std::string prompt;
  std::string chooserFolder;

  /// The main window's focus by its name, and what is written there.
  std::string focus;
  std::string focusText;
  std::string title;
  std::vector<std::string> history;

  bool Running() const { return started && !ended; }
};

/// The moment of a program that was started.
Moment MomentOf(const Program& program);

}  // namespace veldrin::monkey
