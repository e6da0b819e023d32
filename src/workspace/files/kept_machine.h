// The machine that was loaded, with its plan and the main window, as it stood before another one was tried.
//
// A list that is refused has emptied and overwritten the tables by the time that it is, and a plan of another
// machine has put that machine's name in the place of the loaded one's. The chooser goes on from there, as
// long as it is up. When it is left without a machine having been taken, everything stands again as before
// the first try: else the next step would compute on tables that belong to nothing, and the next save would
// write another machine's name into the plan.
#pragma once

#include "platform/canvas.h"
#include "view/remembered_slots.h"
#include "workspace/program.h"

#include <string>

namespace veldrin {

struct KeptMachine {
  explicit KeptMachine(const Program& program);

  Workspace workspace;
  DecisionPanelState decisionPanel;
  RememberedSlots controls;  // of the main window
  std::string title;
  Surface chart;
  bool quitOffered;  // by the chooser
};

/// Keeps what stands now, unless something is kept already: several tries go back to before the first.
/// Raises nothing.
void KeepMachine(Program& program);

/// A list was read to its end: there is no way back.
void ForgetKeptMachine(Program& program);

/// Nothing more is tried: puts back what was kept, and gives `MachineName` the name of the loaded machine.
/// The folder of the plans stays where the chooser has gone. Raises nothing.
void SettleMachine(Program& program);

}  // namespace veldrin
