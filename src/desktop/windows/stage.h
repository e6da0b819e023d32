// What all widgets of the program share.
#pragma once

#include "desktop/input/program_input.h"
#include "desktop/windows/notice_queue.h"
#include "desktop/windows/zoom.h"

#include <functional>
#include <string>
#include <string_view>

namespace veldrin {

struct Stage {
  ProgramInput input;
  Zoom zoom;
  /// What the program tells beside its windows.
  NoticeQueue notices;
  /// How many writers are carrying slots to widgets now; what widgets signal then is not the user's doing.
  int applying = 0;
  /// Whether keys fire their event and do nothing else, as scripts ask of them.
  bool keysAlone = false;
  /// Whether timers run by the real clock.
  bool servesTimers = true;
  /// Whether windows get their widgets when they are loaded, and not only when they are shown.
  bool buildsAtOnce = false;
  /// Takes the path of a file that was dropped on the window with the menu.
  std::function<void(const std::string& path)> fileDropped;
  /// Shows a section of the user's guide.
  std::function<void(std::string_view section)> helpAsked;
};

/// While one lives, slots are being carried to widgets.
class Applying {
 public:
  explicit Applying(Stage& stage) : stage_(&stage) { ++stage_->applying; }
  ~Applying() { --stage_->applying; }
  Applying(const Applying&) = delete;
  Applying& operator=(const Applying&) = delete;

 private:
  Stage* stage_;
};

}  // namespace veldrin
