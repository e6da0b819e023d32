// The road from a command to the file chooser: the question for unsaved changes, and the chooser set up in
// one of its roles. There is no role variable: the role is the window's title, one of the messages below.
#pragma once

#include "workspace/language.h"
#include "workspace/program.h"

namespace veldrin {

/// The chooser's roles by the messages of their titles.
enum class ChooserRole : int {
  None = 0,
  LoadList = kListTitleMessage,
  LoadData = kDataTitleMessage,
  Save = kSaveTitleMessage,
  Delete = kDeleteTitleMessage,
  QuickRatio = kQuickRatioTitleMessage,
  Reference = kReferenceTitleMessage,
};

/// Whether unsaved changes have to be asked about before something else is loaded.
bool MustAskBeforeLoading(const Program& program);

/// The role that the chooser's title names.
ChooserRole RoleOfChooser(const Program& program);

/// The chooser in a loading role. With unsaved changes the decision panel asks first, and `ModeWord` keeps
/// what is to be opened. Returns when the chooser has hidden; at once when it is up already, which then
/// stands in its new role.
void OpenListChooser(Program& program);
void OpenDataChooser(Program& program);
void OpenQuickRatioChooser(Program& program);
void OpenReferenceChooser(Program& program);

/// The chooser for saving and for deleting; nothing is asked.
void OpenSaveChooser(Program& program);
void OpenDeleteChooser(Program& program);

/// Gives the openers to the units below that call them.
void AttachLoadDispatch(Program& program);

}  // namespace veldrin
