// What a user does with mouse and keys, as the view sees it: which events a gesture fires, and in which
// order.
//
//   the window becomes the active one -> the focus moves -> mouse down -> mouse up -> Click -> DblClick
//
// Labels, pictures, spin buttons, scroll bars and menus do not take the focus; a menu entry knows Click
// alone. Each gesture returns whether the user could do it. What cannot be reached stays as it is, and so
// does a control that the handlers of the gesture's first events have put out of reach: they are asked again
// behind each step that runs other controls' handlers.
//
// Gestures belong into one event of the program each: whoever calls them catches faults and the end.
#pragma once

#include "view/controls.h"
#include "view/grid.h"
#include "view/list_boxes.h"
#include "view/window.h"

#include <string>

namespace veldrin::user {

/// Whether a user could act on the control: it, everything around it and its window are visible and enabled,
/// and no other window is modal in front. What merely lies over it is not looked at.
bool Reachable(const Control& control);

/// Moves the focus to the control; its window becomes the active one. False for kinds without focus.
bool Focus(Control& control);

/// Mouse down, mouse up and, with the left button, Click, which also sets an option button.
bool Click(Control& control, int button = kLeftButton);
/// The end of a click with the left button: Click, which also sets an option button.
void FinishClick(Control& control);
/// Click, then DblClick.
bool DoubleClick(Control& control);
/// Picks an entry of a file box, then double-clicks it: two Clicks, then DblClick.
bool DoubleClickEntry(FileBox& box, const std::string& entry);

/// The focus, then KeyDown and nothing that the key does by itself.
bool PressKey(Control& control, int key);
/// The whole text of a text box or combo becomes `text` at once.
bool EnterText(Control& control, const std::string& text);
/// Adds characters behind the text, one at a time; CR LF is one.
bool TypeText(Control& control, const std::string& text);
/// Whether a text can be written into the control: a text box, or a combo that is editable.
bool TakesText(const Control& control);

/// Picks the entry with this text of a combo, drive or file box: Click, also when it was the one before.
/// False where there is no such entry.
bool SelectEntry(Control& control, const std::string& entry);
/// A folder box goes to a folder. False where it is not there or cannot be entered.
bool OpenFolder(FolderBox& box, const std::string& path);
/// The bar of a folder box goes to a folder, named by its path or its last part, without opening it.
bool HighlightFolder(FolderBox& box, const std::string& folder);
/// Picks a cell of a grid. False outside of it.
bool PickCell(Grid& grid, int row, int column);
/// The event of one of the two arrows.
bool Spin(SpinButton& spin, bool up);
/// Moves a scroll bar, held within its ends, also where its value lay beyond them.
bool ScrollTo(ScrollBar& bar, int value);

/// Outer size and place of a window in twips, and its state.
bool Resize(Window& window, float width, float height);
bool Move(Window& window, float left, float top);
bool SetState(Window& window, int state);
/// The close box, or the end of the system's session, which also asks windows that are out of reach.
bool Close(Window& window, CloseReason reason);
/// The window becomes, or stops being, the active one.
bool Activate(Window& window);
bool Deactivate(Window& window);

}  // namespace veldrin::user
