#include "view/user_input.h"

#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin::user {

namespace {

void Fire(Control& control, const char* eventName, int argument = 0) {
  if (Event* event = control.FindEvent(eventName)) (*event)(argument);
}

/// The pointer goes into the window, which becomes the active one.
bool Approach(Control& control) {
  if (!Reachable(control)) return false;
  control.window.ComeToFront();
  return Reachable(control);
}

/// And the focus to the control, where it takes it.
bool ApproachWithFocus(Control& control) {
  if (!Approach(control)) return false;
  SetFocus(control);
  return Reachable(control);
}

Slot<std::string>* TextOf(Control& control) {
  if (!TakesText(control)) return nullptr;
  if (control.kind == ControlKind::TextBox) return &static_cast<TextBox&>(control).Text;
  return &static_cast<ComboBox&>(control).Text;
}

/// Place of an entry, as written or else without regard to case; -1 where it is missing.
int EntryPlace(const std::vector<std::string>& entries, const std::string& entry) {
  auto found = std::find(entries.begin(), entries.end(), entry);
  if (found == entries.end()) {
    found = std::find_if(entries.begin(), entries.end(),
                         [&](const std::string& other) { return EqualsIgnoringCase(other, entry); });
  }
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

/// Picks an entry. A write of the place it has already fires nothing, but the user's pick does.
template <class Box>
bool Pick(Box& box, const std::string& entry) {
  const int place = EntryPlace(box.entries, entry);
  if (place < 0) return false;
  if (box.ListIndex == place) {
    box.Click();
  } else {
    box.ListIndex = place;
  }
  return true;
}

std::string LastPart(const std::string& path, char separator) {
  return path.substr(path.find_last_of(separator) + 1);
}

/// A folder may be there and yet not be entered.
bool CanBeEntered(const FolderBox& box, const std::string& path) {
  return Guarded([&] { box.window.desk.machine.files.ResolveFolder(path); }) == 0;
}

}  // namespace

bool Reachable(const Control& control) {
  const Window& window = control.window;
  const bool modalInFront = !window.desk.modal.empty() && window.desk.modal.back() != &window;
  return window.loaded && window.Visible && window.Enabled && !modalInFront && IsUsable(control);
}

bool Focus(Control& control) {
  return TakesFocus(control) && ApproachWithFocus(control);
}

bool Click(Control& control, int button) {
  if (!ApproachWithFocus(control)) return false;
  if (control.kind != ControlKind::Menu) {
    Fire(control, "MouseDown", button);
    Fire(control, "MouseUp", button);
  }
  if (button == kLeftButton) FinishClick(control);
  return true;
}

void FinishClick(Control& control) {
  if (control.kind == ControlKind::OptionButton) {
    auto& option = static_cast<OptionButton&>(control);
    if (!option.Value) {
      option.Value = true;  // fires Click
      return;
    }
  }
  Fire(control, "Click");
}

bool DoubleClick(Control& control) {
  if (!Click(control)) return false;
  if (Reachable(control)) Fire(control, "DblClick");
  return true;
}

bool DoubleClickEntry(FileBox& box, const std::string& entry) {
  if (!SelectEntry(box, entry)) return false;
  DoubleClick(box);
  return true;
}

bool PressKey(Control& control, int key) {
  if (!Focus(control)) return false;
  Fire(control, "KeyDown", key);
  return true;
}

bool TakesText(const Control& control) {
  if (control.kind == ControlKind::ComboBox) return static_cast<const ComboBox&>(control).editable;
  return control.kind == ControlKind::TextBox;
}

bool EnterText(Control& control, const std::string& text) {
  Slot<std::string>* slot = TextOf(control);
  if (slot == nullptr || !Focus(control)) return false;
  *slot = text;
  return true;
}

bool TypeText(Control& control, const std::string& text) {
  Slot<std::string>* slot = TextOf(control);
  if (slot == nullptr || !Focus(control)) return false;
  const std::vector<std::string> characters = Characters(text);
  for (std::size_t i = 0; i < characters.size() && Reachable(control); ++i) {
    std::string piece = characters[i];
    if (piece == "\r" && i + 1 < characters.size() && characters[i + 1] == "\n") piece += characters[++i];
    *slot = slot->get() + piece;
  }
  return true;
}

bool SelectEntry(Control& control, const std::string& entry) {
  if (!ApproachWithFocus(control)) return false;
  switch (control.kind) {
    case ControlKind::ComboBox:
      return Pick(static_cast<ComboBox&>(control), entry);
    case ControlKind::FileBox:
      return Pick(static_cast<FileBox&>(control), entry);
    case ControlKind::DriveBox: {
      auto& box = static_cast<DriveBox&>(control);
      const int place = EntryPlace(box.entries, entry);
      if (place < 0) return false;
      box.ListIndex = place;
      return true;
    }
    default:
      return false;
  }
}

bool OpenFolder(FolderBox& box, const std::string& path) {
  if (!ApproachWithFocus(box) || !CanBeEntered(box, path)) return false;
  box.Path = path;
  return true;
}

bool HighlightFolder(FolderBox& box, const std::string& folder) {
  if (!ApproachWithFocus(box)) return false;
  int place = EntryPlace(box.entries, folder);
  for (std::size_t i = 0; place < 0 && i < box.entries.size(); ++i) {
    const char separator = box.window.desk.machine.files.Rules().separator;
    if (EqualsIgnoringCase(LastPart(box.entries[i], separator), folder)) place = static_cast<int>(i);
  }
  if (place < 0 && !EqualsIgnoringCase(box.Path.get(), folder)) return false;
  box.ListIndex = place;
  return true;
}

bool PickCell(Grid& grid, int row, int column) {
  if (!ApproachWithFocus(grid)) return false;
  if (row < 0 || row >= grid.Rows || column < 0 || column >= grid.Cols) return false;
  grid.row = row;
  grid.column = column;
  grid.Pick();
  return true;
}

bool Spin(SpinButton& spin, bool up) {
  if (!Approach(spin)) return false;
  (up ? spin.SpinUp : spin.SpinDown)();
  return true;
}

bool ScrollTo(ScrollBar& bar, int value) {
  if (!Approach(bar)) return false;
  bar.Value = bar.WithinEnds(value);
  return true;
}

bool Resize(Window& window, float width, float height) {
  if (!Reachable(window)) return false;
  window.SetSize(width, height);
  return true;
}

bool Move(Window& window, float left, float top) {
  if (!Reachable(window)) return false;
  window.Left = left;
  window.Top = top;
  return true;
}

bool SetState(Window& window, int state) {
  if (!Reachable(window)) return false;
  window.WindowState = state;
  return true;
}

bool Close(Window& window, CloseReason reason) {
  if (!(reason == CloseReason::SessionEnd ? window.loaded : Reachable(window))) return false;
  window.UnloadWindow(reason);
  return true;
}

bool Activate(Window& window) {
  if (!Reachable(window)) return false;
  window.ComeToFront();
  return true;
}

bool Deactivate(Window& window) {
  if (!window.loaded || !window.Visible) return false;
  window.LoseActivity();
  return true;
}

}  // namespace veldrin::user
