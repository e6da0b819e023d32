// The machine that serves people: files, settings and devices of the system that the program runs on. The
// windows and the measuring of texts come from the one who paints. A Program is made on `machine` and has to
// be gone before it. Needs a QApplication.
#pragma once

#include "machine/files/real_files.h"
#include "machine/output/real_boxes.h"
#include "machine/output/real_notices.h"
#include "machine/output/real_pictures.h"
#include "machine/output/real_printer.h"
#include "machine/output/real_shell.h"
#include "machine/output/real_sound.h"
#include "machine/real_instances.h"
#include "machine/real_system.h"
#include "machine/registry/real_registry.h"
#include "platform/system_code_pages.h"
#include "view/machine.h"

namespace veldrin {

class RealMachine {
 public:
  /// Both have to outlive the machine. From here on this copy of the program counts as running.
  RealMachine(Windows& windows, TextMetrics& metrics);
  RealMachine(const RealMachine&) = delete;
  RealMachine& operator=(const RealMachine&) = delete;

  RealProfile profile;
  RealFiles files{SystemCodePages(IsJapanese(profile))};
  RealRegistry registry;
  RealEnvironment environment;
  RealInstances instances;
  RealScreen screen;
  RealPrinter printer;
  RealBoxes boxes{printer};
  RealNotices notices;
  RealPictures pictures{files};
  RealShell shell{files};
  RealSound sound{files};
  RealFigures figures;

  /// What the program sees of it.
  Machine machine;
};

}  // namespace veldrin
