// Keys by the platform's numbers, and back.
#pragma once

#include <QKeyEvent>

namespace veldrin {

/// The number of a pressed key; 0 for one that has none here.
int KeyNumber(const QKeyEvent& event);

/// The Qt key of a number; 0 where there is none.
int QtKey(int number);

}  // namespace veldrin
