// The net beneath the desktop's program: when it looks, when it writes, and when the plans that were kept are
// offered.
#pragma once

#include "machine/files/real_keep_folder.h"
#include "safety/kept_offers.h"
#include "safety/safety_net.h"
#include "workspace/program.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <string>

namespace veldrin {

class KeptPlans {
 public:
  /// `runEvent` runs something as an event of the program; `wanted` is the id of the plan that the copy
  /// before this one wants to be opened, empty for none.
  KeptPlans(Program& program, KeepFolder& folder, std::function<void(std::function<void()>)> runEvent,
            std::string wanted);

  /// An event has ended, also one inside of another. The look follows when nothing else is to be done; what
  /// it finds is on the disk within two seconds.
  void EventEnded();
  /// The main window is about to close.
  void Closing();
  /// A fault has ended the program, and its box is about to be shown.
  void Secure();
  /// The program has ended.
  void End();

  /// The id of the copy that is kept of what is on the screen; empty for none.
  const std::string& KeptId() const { return net_.KeptId(); }

 private:
  void Look();
  void Begin();

  Program* program_;
  std::function<void(std::function<void()>)> runEvent_;
  std::string wanted_;
  SafetyNet net_;
  KeptOffers offers_;
  bool begun_ = false;
  QTimer look_;
  QTimer write_;
};

}  // namespace veldrin
