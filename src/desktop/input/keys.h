// Keys by the platform's numbers, and back.
#pragma once

#include <QFocusEvent>
#include <QKeyEvent>

namespace veldrin {

/// The number of a pressed key; 0 for one that has none here.
int KeyNumber(const QKeyEvent& event);

/// The Qt key of a number; 0 where there is none.
int QtKey(int number);

/// Whether no Shift, Ctrl, Alt or Meta is held with a key.
bool IsUnmodified(const QKeyEvent& event);

/// Whether a key stands for the right button of the mouse: the menu key or Shift+F10.
bool IsRightClick(const QKeyEvent& event);

/// Whether a focus was brought by Tab or by the program, through which Tab and Enter go as well.
bool IsByKeyboard(const QFocusEvent& event);

}  // namespace veldrin
