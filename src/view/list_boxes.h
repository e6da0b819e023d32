// The controls that hold a list: a combo, and the boxes of drives, folders and files, which the machine's
// files fill.
//
// Which write fires what: a combo's Text, a drive box's Drive and a folder box's Path fire Change; a
// ListIndex fires Click; a file box's FileName fires its DblClick.
#pragma once

#include "view/controls.h"

#include <string>
#include <vector>

namespace veldrin {

/// A text with a list to pick from.
struct ComboBox : FocusControl {
  ComboBox(const char* name, Control& parent, const Place& place, const Look& look = {},
           std::vector<std::string> entries = {}, bool editable = true);

  const bool editable;
  std::vector<std::string> entries;
  Slot<std::string> Text;
  /// Picking an entry takes its text, which fires no Change.
  Slot<int> ListIndex;
  Event Change{*this, "Change"};
  Event Click{*this, "Click"};

  void AddItem(const std::string& entry);
  void Clear();
};

struct DriveBox : FocusControl {
  DriveBox(const char* name, Control& parent, const Place& place, const Look& look = {});

  std::vector<std::string> entries;
  /// Raises fault 68 for a drive that the machine does not have. Takes any path on the drive.
  Slot<std::string> Drive;
  Slot<int> ListIndex;
  Event Change{*this, "Change"};
  Event Click{*this, "Click"};
};

/// The folders of a folder. Entry i is the full path of the i-th folder in it; ListIndex -1 is the folder
/// itself.
struct FolderBox : FocusControl {
  FolderBox(const char* name, Control& parent, const Place& place, const Look& look = {});

  std::vector<std::string> entries;
  /// Raises the faults of a folder that cannot be had.
  Slot<std::string> Path;
  Slot<int> ListIndex;
  Event Change{*this, "Change"};
  Event Click{*this, "Click"};

  /// Reads the folder again. Faults leave the list empty.
  void Refresh();
};

/// The files of a folder that match a pattern.
struct FileBox : FocusControl {
  FileBox(const char* name, Control& parent, const Place& place, const Look& look = {},
          const char* pattern = "*.*");

  std::vector<std::string> entries;
  Slot<std::string> Path;
  Slot<std::string> Pattern;
  /// The selected name. Raises fault 53 for a name that is not in the folder; the empty text selects nothing.
  Slot<std::string> FileName;
  Slot<int> ListIndex;
  Event Click{*this, "Click"};
  Event DblClick{*this, "DblClick"};

  /// Reads the folder again; nothing is selected then. Faults leave the list empty.
  void Refresh();
};

/// The entries of a list; null for kinds without.
const std::vector<std::string>* EntriesOf(const Control& control);

}  // namespace veldrin
