// The machine that the program runs on: one reference for each kind of service. The simulated machine serves
// scripts and tests, the real one people.
#pragma once

#include "platform/canvas.h"
#include "platform/files.h"
#include "platform/notices.h"
#include "platform/screen.h"
#include "platform/system.h"
#include "view/windows.h"

namespace veldrin {

struct Machine {
  Files& files;
  Registry& registry;
  Profile& profile;
  Environment& environment;
  Instances& instances;
  Screen& screen;
  Windows& windows;
  Boxes& boxes;
  Notices& notices;
  TextMetrics& metrics;
  Printer& printer;
  Pictures& pictures;
  Shell& shell;
  Sound& sound;
  Figures& figures;
};

}  // namespace veldrin
