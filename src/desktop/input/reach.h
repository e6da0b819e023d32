// The keyboard's way to what only the mouse works: spin buttons, scroll bars, and labels and pictures that
// answer a click. None of them can have the focus; the program's own focus stays where it is.
//
//   F6, Shift+F6       reach the next one or the one before, which gets a ring; past the end none is reached
//   arrows             turn a spin button, move a scroll bar
//   PageUp, PageDown   move a scroll bar far, Home and End to its ends
//   Space, Enter       click a label or picture; Enter clicks twice where that means something of its own
//   Menu, Shift+F10    click it with the right button
//   Escape             lets go
//
// Those keys belong to what is reached and are not heard by the control with the focus. F1 tells of what is
// reached. Any other key lets go as well, and does what it always does; so does the mouse. F6 itself fires
// the KeyDown of the control with the focus, as every key does. While a list that popped up has the focus,
// all keys are the list's.
#pragma once

#include "desktop/windows/stage.h"
#include "view/window.h"

#include <QKeyEvent>
#include <QWidget>

#include <string_view>

namespace veldrin {

/// Whether a handler waits for an event of the control.
bool IsHandled(const Control& control, std::string_view event);

/// Whether a handler waits for clicks on it. The head of a column of labels has that of the column, and does
/// nothing with it.
bool AnswersClicks(const Control& control);

/// Whether the control is of those that F6 reaches, if the user could act on it.
bool OnlyForTheMouse(const Control& control);

/// The control that is reached in the window of a widget; null for none.
Control* ReachedIn(const QWidget& inside);

/// Whether a button of the message strip is reached in the window of a widget.
bool ReachesStrip(const QWidget& inside);

/// A key for what is reached; `inside` is any widget of the window. False where nothing is, and for other
/// keys.
bool ServeReached(Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event);

/// F6 and Shift+F6. False for other keys, and where there is nothing to reach.
bool ServeReach(const Window& window, const QWidget& inside, const QKeyEvent& event);

}  // namespace veldrin
