// The simulated machine that scripts and tests run on: everything lives in memory and starts the same way
// every time. A Program is made on `machine` and has to be gone before it; where a Program goes without
// unloading its windows, windows.Forget() comes first.
#pragma once

#include "simulated/simulated_boxes.h"
#include "simulated/simulated_clock.h"
#include "simulated/simulated_files.h"
#include "simulated/simulated_log.h"
#include "simulated/simulated_notices.h"
#include "simulated/simulated_printer.h"
#include "simulated/simulated_registry.h"
#include "simulated/simulated_shell.h"
#include "simulated/simulated_system.h"
#include "simulated/simulated_windows.h"
#include "view/machine.h"

namespace veldrin {

struct SimulatedMachine {
  SimulatedMachine();
  ~SimulatedMachine();
  SimulatedMachine(const SimulatedMachine&) = delete;
  SimulatedMachine& operator=(const SimulatedMachine&) = delete;

  SimulatedLog log;
  SimulatedFiles files;
  SimulatedRegistry registry;
  SimulatedProfile profile;
  SimulatedEnvironment environment;
  SimulatedInstances instances;
  SimulatedScreen screen;
  SimulatedClock clock;
  SimulatedWindows windows{clock, log};
  SimulatedBoxes boxes{log};
  SimulatedNotices notices;
  SimulatedMetrics metrics;
  SimulatedPrinter printer{metrics};
  SimulatedPictures pictures{files};
  SimulatedShell shell{files, log};
  SimulatedSound sound{files, log};
  SimulatedFigures figures;

  /// What the program sees of it.
  Machine machine{files,   registry, profile, environment, instances, screen, windows, boxes,
                  notices, metrics,  printer, pictures,    shell,     sound,  figures};
};

}  // namespace veldrin
