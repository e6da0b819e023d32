// The program as one record: the machine below it, the workspace, the windows, and the operations that stand
// above their callers. Units are free functions that take it.
#pragma once

#include "model/dialog_state.h"
#include "model/workspace.h"
#include "view/forms/form1.h"
#include "view/forms/form10.h"
#include "view/forms/form2.h"
#include "view/forms/form3.h"
#include "view/forms/form4.h"
#include "view/forms/form5.h"
#include "view/forms/form6.h"
#include "view/forms/form7.h"
#include "view/forms/form9.h"
#include "workspace/decision_panel/decision_panel_state.h"
#include "workspace/files/file_handles.h"

#include <functional>
#include <memory>
#include <string>

namespace veldrin {

/// An operation whose unit stands above its caller. Empty until the program is put together; calling an
/// empty one does nothing.
class Hook {
 public:
  Hook& operator=(std::function<void()> operation) {
    operation_ = std::move(operation);
    return *this;
  }
  void operator()() const {
    if (operation_) operation_();
  }

 private:
  std::function<void()> operation_;
};

struct Hooks {
  Hook ChartScale;
  Hook ChartPlan;
  Hook RefreshDisplay;
  /// The same, with the chart of the requests while these are being entered.
  Hook RefreshPlan;
  /// The extension menu: built when the main window loads, brought up to date when a list was read.
  Hook BuildExtensionMenu;
  Hook UpdateExtensionMenu;
  /// The chooser in one of its loading roles, after the question for unsaved changes.
  Hook OpenListChooser;
  Hook OpenDataChooser;
  Hook OpenQuickRatioChooser;
  Hook OpenReferenceChooser;
  /// The chooser in its saving and in its deleting role.
  Hook OpenSaveChooser;
  Hook OpenDeleteChooser;
  /// A list or plan was refused, by a fault or by what it holds (0): whoever can says why.
  std::function<void(const std::string& path, int fault)> FileRefused;
  // For who watches over the plan; nothing depends on these being filled.
  /// A plan or a list was read and stands in the place of what was there.
  Hook Loaded;
  /// The plan on the screen has just been written to its file.
  Hook Saved;
  /// It is that of the working file again.
  Hook Restored;
  /// The user has given the unsaved changes up: what follows may drop them.
  Hook GivenUp;
};

struct KeptMachine;

struct Program {
  explicit Program(Machine& theMachine);
  ~Program();

  Machine& machine;
  FileHandles files;
  Workspace workspace;
  PlanDialogState planDialog;
  CompareState compare;
  ChooserState chooser;
  SettingsDialogState settingsDialog;
  DecisionPanelState decisionPanel;
  /// What stood before another machine was tried; null while none is.
  std::unique_ptr<KeptMachine> kept;
  Hooks hooks;

  /// How the program ended: not at all, at its own word (fault 0), or by a fault.
  bool ended = false;
  int endFault = 0;
  /// Events that are running now, one inside the other through modal windows.
  int eventDepth = 0;

  Desk desk;
  Form1 form1{desk};
  Form2 form2{desk};
  Form3 form3{desk};
  TransientWindow<Form4> form4{desk};
  TransientWindow<Form5> form5{desk};
  TransientWindow<Form6> form6{desk};
  TransientWindow<Form7> form7{desk};
  TransientWindow<Form9> form9{desk};
  TransientWindow<Form10> form10{desk};
};

}  // namespace veldrin
